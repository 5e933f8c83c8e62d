// The program's main window on a machine in memory, driven by messages.
#pragma once

#include <aygshell.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "app/main_window.h"
#include "tests/support/test_device.h"
#include "tests/support/window_support.h"

namespace tidewell {

inline constexpr wchar_t kEnglishLibrary[] =
    L"\\Program Files\\Velmont\\Tidewell\\LangRes\\TWEngRc.dll";

class ProgramTest : public testing::Test, protected TestDevice {
 protected:
  ProgramTest() {
    MemoryLibraries::Texts texts;
    // Not the keys of message boxes, which the system keeps.
    for (const auto& [first, last] : {std::pair(607u, 1432u), {2020, 2037}, {2070, 2074}}) {
      for (std::uint32_t id = first; id <= last; ++id) texts[id] = L"text " + std::to_wstring(id);
    }
    memory.libraries.Put(kEnglishLibrary, std::move(texts));
  }
  // What a test leaves of the end of the loop must not end the next one.
  ~ProgramTest() override {
    program.reset();
    PumpMessages();
  }

  void Start() { StartOn(machine, Parts()); }
  void StartOn(const Machine& itsMachine, MainWindowParts parts) {
    program = std::make_unique<MainWindow>(GetModuleHandleW(nullptr), itsMachine, std::move(parts));
    ASSERT_TRUE(program->Create());
    PumpMessages();
  }

  MainWindowParts Parts() {
    return {[this](int page, HWND host, PageContext&) { return MakePage(page, host); },
            [this](const std::wstring&) { return std::make_unique<ListedCategories>(categories); },
            &dialogs};
  }

  HWND Window() const { return program->Window(); }
  bool IsOpen() const { return program->Window() != nullptr; }
  void TapBar(bool right) {
    const RECT client = ClientArea(Window());
    Tap(Window(), {right ? client.right - 5 : 5, client.bottom - 5});
  }
  void RunRow(int row) {
    for (int i = 0; i < 13; ++i) PressKey(Window(), VK_UP);
    for (int i = 0; i < row; ++i) PressKey(Window(), VK_DOWN);
    PressKey(Window(), VK_RETURN);
  }
  std::vector<int> Commands() const {
    std::vector<int> commands;
    for (const auto& entry : program->List().Entries()) commands.push_back(entry.command);
    return commands;
  }

  std::vector<std::wstring> Captions() const {
    std::vector<std::wstring> captions;
    for (const auto& entry : program->List().Entries()) captions.push_back(entry.caption);
    return captions;
  }

  // A page is a bare window over its host; none unless a test wants pages.
  class Page final : public PageWindow {
   public:
    Page(HWND host, int& destroyed) : window_(WS_POPUP, 0, {}, host), destroyed_(destroyed) {}
    ~Page() override { ++destroyed_; }
    HWND Window() const override { return window_.Get(); }

   private:
    TestWindow window_;
    int& destroyed_;
  };
  std::unique_ptr<PageWindow> MakePage(int page, HWND host) {
    pageAsked = page;
    captionSeen = CaptionOf(host);
    if (!hasPages) return nullptr;
    auto made = std::make_unique<Page>(host, pagesDestroyed);
    pageWindow = made->Window();
    return made;
  }

  std::unique_ptr<MainWindow> program;
  std::vector<PimCategory> categories;
  bool hasPages = false;
  int pageAsked = -1;
  HWND pageWindow = nullptr;
  std::wstring captionSeen;
  int pagesDestroyed = 0;
};

}  // namespace tidewell
