// Opening each settings page, until its first tab is painted and all of its tabs are built, turning
// to each tab and selecting each option; beside making as many bare controls of the same kinds in a
// bare window.
#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "bench/bare_window.h"
#include "bench/figures.h"
#include "bench/stopwatch.h"
#include "pages/page_list.h"
#include "pages/windows/create_page.h"
#include "platform/desktop/device_shell.h"
#include "platform/windows/windows_machine.h"
#include "win32/tahoma.h"

namespace tidewell::bench {

namespace {

constexpr int kRounds = 30;
constexpr double kAim = 1.3;
constexpr double kFirstTabAim = 120;  // milliseconds
constexpr double kSelectingAim = 16;
constexpr wchar_t kHostClass[] = L"PageBenchHost";

// Tells when a page's first tab was painted: just before the first control of another tab is made.
class FirstTabWatch {
 public:
  explicit FirstTabWatch(std::vector<int> ids) {
    ids_ = std::move(ids);
    painted_ = 0;
    watch_.emplace();
    hook_ = SetWindowsHookExW(WH_CBT, OnCreation, nullptr, GetCurrentThreadId());
  }
  FirstTabWatch(const FirstTabWatch&) = delete;
  FirstTabWatch& operator=(const FirstTabWatch&) = delete;
  ~FirstTabWatch() { UnhookWindowsHookEx(hook_); }

  // In milliseconds; 0 for a page of one tab.
  static double Painted() { return painted_; }

 private:
  static constexpr int kFirstControl = 1200;

  static LRESULT CALLBACK OnCreation(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HCBT_CREATEWND && painted_ == 0) {
      const CREATESTRUCTW& created = *reinterpret_cast<CBT_CREATEWNDW*>(lParam)->lpcs;
      const auto id = static_cast<int>(reinterpret_cast<INT_PTR>(created.hMenu));
      const bool isChild = (created.style & WS_CHILD) != 0;
      if (isChild && id >= kFirstControl && std::ranges::count(ids_, id) == 0) {
        painted_ = watch_->Milliseconds();
      }
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
  }

  static inline std::vector<int> ids_;
  static inline std::optional<Stopwatch> watch_;
  static inline double painted_ = 0;
  HHOOK hook_ = nullptr;
};

class PageBench {
 public:
  PageBench() {
    const ScreenFacts screen = machine_.system.Screen();
    const ScreenScale scale(screen.dpiX, screen.dpiY, false);
    face_ = TahomaFont(scale.ScaleX(12), FW_NORMAL);
    RegisterPlainClass(kBareClass);
    RegisterPlainClass(kHostClass);
    host_ = CreateWindowExW(0, kHostClass, L"", WS_POPUP | WS_VISIBLE, 0, scale.ScaleY(26),
                            screen.width, screen.height - scale.ScaleY(26), nullptr, nullptr,
                            nullptr, nullptr);
    store_.Load(door_, scale, language_);
    context_.emplace(PageContext{door_, store_, categories_, language_, scale});
    screen_ = std::to_string(screen.width) + "x" + std::to_string(screen.height);
  }
  ~PageBench() { DestroyWindow(host_); }

  void Run() {
    for (int page = 0; page < kPageCount; ++page) {
      if (kPages[static_cast<std::size_t>(page)].make) Measure(page);
    }
  }

 private:
  void Measure(int page) {
    const std::string name =
        "page " + Narrow(kPages[static_cast<std::size_t>(page)].className) + ", " + screen_;
    Comparison opening;
    std::vector<Comparison> turning;
    for (int round = 0; round < kRounds; ++round) {
      HandleAll();
      const Stopwatch watch;
      const auto opened = CreatePage(page, host_, *context_);
      PaintAll();
      const double open = watch.Milliseconds();
      HandleAll();
      opening.Add(open, TimeBareWindow(BareWindow::ControlsOf(opened->Window())));
      TurnAll(opened->Window(), turning);
      SetActiveWindow(host_);
      DestroyWindow(opened->Window());
    }
    PrintRatio(("open " + name).c_str(), opening, kAim, "ms");
    MeasureFirstTab(page);
    for (std::size_t tab = 0; tab < turning.size(); ++tab) {
      PrintRatio(("  turn to tab " + std::to_string(tab + 1)).c_str(), turning[tab], kAim, "ms");
    }
  }

  void MeasureFirstTab(int page) {
    const PageTabs tabs = kPages[static_cast<std::size_t>(page)].make(*context_)->Tabs();
    Samples painting;
    Samples selecting;
    for (int round = 0; round < kRounds; ++round) {
      HandleAll();
      std::unique_ptr<PageWindow> opened;
      {
        const FirstTabWatch watch(tabs.front().ControlIds());
        opened = CreatePage(page, host_, *context_);
        painting.Add(FirstTabWatch::Painted());
      }
      HandleAll();
      SelectAll(opened->Window(), tabs, selecting);
      SetActiveWindow(host_);
      DestroyWindow(opened->Window());
    }
    PrintTimes("  first tab painted", painting, kFirstTabAim);
    if (selecting.Quantile(1) > 0) PrintTimes("  select an option", selecting, kSelectingAim);
  }

  static void PrintTimes(const char* name, const Samples& times, double aim) {
    PrintFigure(name, times.Median(), Spread(times.Quantile(0.25), times.Quantile(0.75)), aim,
                " ms", "");
  }

  // Each option of each list of options, one after another.
  static void SelectAll(HWND page, const PageTabs& tabs, Samples& selecting) {
    for (std::size_t tab = 0; tab < tabs.size(); ++tab) {
      const auto* options = std::get_if<OptionList>(&tabs[tab].body);
      if (!options) continue;
      TurnTo(page, tab);
      const HWND list = GetDlgItem(page, options->listId);
      for (int line = 0; line < std::ssize(options->options); ++line) {
        const Stopwatch watch;
        ListView_SetItemState(list, line, LVIS_SELECTED, LVIS_SELECTED);
        PaintAll();
        selecting.Add(watch.Milliseconds());
      }
    }
  }

  static void TurnTo(HWND page, std::size_t tab) {
    const HWND tabs = FindWindowExW(page, nullptr, WC_TABCONTROLW, nullptr);
    Tell(page, tabs, TCN_SELCHANGING);
    SendMessageW(tabs, TCM_SETCURSEL, tab, 0);
    Tell(page, tabs, TCN_SELCHANGE);
    PaintAll();
  }

  double TimeBareWindow(const std::vector<BareWindow::Control>& controls) const {
    HandleAll();
    const Stopwatch watch;
    const BareWindow bare(host_, face_.Get());
    bare.Make(controls);
    bare.Show();
    return watch.Milliseconds();
  }

  // Each tab once, the first one last.
  void TurnAll(HWND page, std::vector<Comparison>& turning) const {
    const HWND tabs = FindWindowExW(page, nullptr, WC_TABCONTROLW, nullptr);
    const auto count = static_cast<std::size_t>(SendMessageW(tabs, TCM_GETITEMCOUNT, 0, 0));
    turning.resize(count);
    for (std::size_t step = 1; step <= count; ++step) {
      const std::size_t tab = step % count;
      const Stopwatch watch;
      TurnTo(page, tab);
      const double turn = watch.Milliseconds();

      const auto controls = BareWindow::ControlsOf(page, true);
      const BareWindow bare(host_, face_.Get());
      bare.Show();
      const Stopwatch bareWatch;
      bare.Make(controls);
      PaintAll();
      turning[tab].Add(turn, bareWatch.Milliseconds());
    }
  }

  static void Tell(HWND page, HWND tabs, UINT code) {
    NMHDR header{tabs, 0, code};
    SendMessageW(page, WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&header));
  }

  static std::string Narrow(const wchar_t* text) {
    std::string narrow;
    for (; *text; ++text) narrow.push_back(static_cast<char>(*text));
    return narrow;
  }

  WindowsMachine machine_;
  Machine door_ = machine_.Door();
  SettingsStore store_;
  CategoryCatalog categories_{door_, store_};
  Language language_;
  std::optional<PageContext> context_;
  std::string screen_;
  Font face_;
  HWND host_ = nullptr;
};

}  // namespace

}  // namespace tidewell::bench

int main() {
  tidewell::InstallDeviceShell();
  tidewell::bench::PageBench().Run();
}
