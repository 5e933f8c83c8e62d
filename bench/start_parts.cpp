// Starts as the program does and writes how long each part of that took, as kStartPartCount doubles
// in milliseconds, to its standard output. The marks are set by what the main window asks for.
#include "bench/start_parts.h"

#include <windows.h>

#include <array>
#include <memory>

#include "app/main_window.h"
#include "categories/windows/pim_categories.h"
#include "pages/windows/create_page.h"
#include "platform/desktop/device_shell.h"
#include "platform/windows/windows_machine.h"

namespace tidewell::bench {

namespace {

double MillisecondsOf(const FILETIME& time) {
  return (4294967296.0 * time.dwHighDateTime + time.dwLowDateTime) / 10'000;
}

double Now() {
  FILETIME now{};
  GetSystemTimePreciseAsFileTime(&now);
  return MillisecondsOf(now);
}

double ProcessBegun() {
  FILETIME begun{};
  FILETIME unused{};
  GetProcessTimes(GetCurrentProcess(), &begun, &unused, &unused, &unused);
  return MillisecondsOf(begun);
}

// The end of each part ends it once; the time goes to the part that ends.
class Marks {
 public:
  void End(std::size_t part) {
    const double now = Now();
    parts_[part] = now - last_;
    last_ = now;
  }
  void Write() const {
    DWORD written = 0;
    WriteFile(GetStdHandle(STD_OUTPUT_HANDLE), parts_.data(), sizeof parts_, &written, nullptr);
  }

 private:
  double last_ = ProcessBegun();
  std::array<double, kStartPartCount> parts_{};
};

// The system's own answers; the window asks for the screen once its class, its title strip and COM
// are there, then for the language's library and last for the pictures'.
struct MarkingMachine final : ResourceLibraries, System {
  explicit MarkingMachine(Marks& kept) : marks(kept) {}
  std::unique_ptr<ResourceLibrary> Load(const std::wstring& path) override {
    if (path.ends_with(L"Res.dll")) marks.End(2);
    return machine.libraries.Load(path);
  }
  ScreenFacts Screen() override {
    marks.End(1);
    return machine.system.Screen();
  }
  SystemVersion Version() override { return machine.system.Version(); }
  void RefreshTodayScreen() override { machine.system.RefreshTodayScreen(); }
  std::vector<std::wstring> FontFaces() override { return machine.system.FontFaces(); }

  Marks& marks;
  WindowsMachine machine;
};

class MarkingCategories final : public CategorySource {
 public:
  MarkingCategories(Files& files, std::wstring icons, Marks& marks)
      : source_(files, std::move(icons)), marks_(marks) {
    marks_.End(3);
  }
  ~MarkingCategories() override { marks_.End(4); }
  void ReadInto(CategoryCatalog& catalog) override { source_.ReadInto(catalog); }

 private:
  PimCategorySource source_;
  Marks& marks_;
};

}  // namespace

int Run(HINSTANCE instance, int showCommand) {
  Marks marks;
  marks.End(0);
  InstallDeviceShell();
  MarkingMachine machine(marks);
  WindowsMachine& real = machine.machine;
  MainWindow window(instance, {real.registry, real.files, real.locale, machine, machine},
                    {CreatePage, [&](const std::wstring& icons) {
                       return std::make_unique<MarkingCategories>(real.files, icons, marks);
                     }});
  if (!window.Create() || !window.IsComplete()) return 1;
  marks.End(5);
  ShowWindow(window.Window(), showCommand);
  UpdateWindow(window.Window());
  marks.End(6);
  marks.Write();
  return 0;
}

}  // namespace tidewell::bench

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, wchar_t*, int showCommand) {
  return tidewell::bench::Run(instance, showCommand);
}
