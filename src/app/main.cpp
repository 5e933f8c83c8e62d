// The program's entry: the command line, one instance, the message loop.
#include <windows.h>

#include <optional>
#include <string_view>

#include "app/main_window.h"
#include "app/resource.h"
#include "app/single_instance.h"
#include "categories/windows/pim_categories.h"
#include "pages/windows/create_page.h"
#include "platform/desktop/device_shell.h"
#include "platform/windows/windows_machine.h"

namespace tidewell {

namespace {

constexpr int kStartNotCompleted = 2;  // the exit code; docs/design.md

enum class StartMode { kNormal, kAbout };

StartMode StartModeOf(std::wstring_view commandLine) {
  return commandLine == L"About" ? StartMode::kAbout : StartMode::kNormal;
}

CategorySourceFactory OpenPimCategories(Files& files) {
  return [&files](const std::wstring& iconsFolder) {
    return std::make_unique<PimCategorySource>(files, iconsFolder);
  };
}

// Nothing when the program has a window now and goes on, else its exit code.
std::optional<int> StartInstance(MainWindow& window, StartMode mode, int showCommand) {
  StartTurn turn;
  if (!turn.IsOurs() || BringRunningInstanceForward()) return 0;
  if (!window.Create()) return 0;
  turn.End();
  if (!window.IsComplete()) {
    window.GiveUp();
    return kStartNotCompleted;
  }
  if (mode == StartMode::kAbout) window.ShowAbout();
  ShowWindow(window.Window(), showCommand);
  UpdateWindow(window.Window());
  return std::nullopt;
}

int RunMessageLoop(HINSTANCE instance) {
  const HACCEL accelerators = LoadAcceleratorsW(instance, kMainWindowClass);
  MSG message{};
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    if (TranslateAcceleratorW(message.hwnd, accelerators, &message)) continue;
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  return static_cast<int>(message.wParam);
}

int Run(HINSTANCE instance, std::wstring_view commandLine, int showCommand) {
  InstallDeviceShell();
  WindowsMachine machine;
  MainWindow window(instance, machine.Door(), {CreatePage, OpenPimCategories(machine.files)});
  const auto exitCode = StartInstance(window, StartModeOf(commandLine), showCommand);
  return exitCode ? *exitCode : RunMessageLoop(instance);
}

}  // namespace

}  // namespace tidewell

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, wchar_t* commandLine, int showCommand) {
  return tidewell::Run(instance, commandLine, showCommand);
}
