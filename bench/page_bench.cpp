// Opening each settings page, until its first tab is painted and all of its tabs are built, turning
// to each tab and selecting each option; beside making as many bare controls of the same kinds in a
// bare window, and hiding and showing them there. Arguments choose pages by a part of their class's
// name: page_bench Color Font
#include <windows.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "bench/figures.h"
#include "bench/page_stage.h"
#include "ui/windows/icon_marker.h"

namespace tidewell::bench {

namespace {

constexpr int kRounds = 30;
constexpr double kAim = 1.3;
constexpr double kFirstTabAim = 120;  // milliseconds
constexpr double kSelectingAim = 16;

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
  // No words choose every page.
  void Run(std::span<char*> words) {
    for (int page = 0; page < kPageCount; ++page) {
      const std::string name = NameOfPage(page);
      const auto isPartOfIt = [&](const char* word) { return name.find(word) != name.npos; };
      if (words.empty() || std::ranges::any_of(words, isPartOfIt)) Measure(page);
    }
  }

 private:
  void Measure(int page) {
    Comparison opening;
    std::vector<Comparison> turning;
    for (int round = 0; round < kRounds; ++round) {
      const auto [opened, open] = stage_.TimeOpening(page);
      opening.Add(open, stage_.TimeBareWindow(BareWindow::ControlsOf(opened->Window())));
      TurnAll(opened->Window(), turning);
      stage_.Close(*opened);
    }
    const std::string name = "open page " + NameOfPage(page) + ", " + stage_.Screen();
    PrintRatio(name.c_str(), opening, kAim, "ms");
    MeasureFirstTab(page);
    for (std::size_t tab = 0; tab < turning.size(); ++tab) {
      PrintRatio(("  turn to tab " + std::to_string(tab + 1)).c_str(), turning[tab], kAim, "ms");
    }
  }

  void MeasureFirstTab(int page) {
    const PageTabs tabs = kPages[static_cast<std::size_t>(page)].make(stage_.Context())->Tabs();
    Samples painting;
    Samples selecting;
    for (int round = 0; round < kRounds; ++round) {
      HandleAll();
      std::unique_ptr<PageWindow> opened;
      {
        const FirstTabWatch watch(tabs.front().ControlIds());
        opened = stage_.Open(page);
        painting.Add(FirstTabWatch::Painted());
      }
      HandleAll();
      SelectAll(opened->Window(), tabs, selecting);
      stage_.Close(*opened);
    }
    PrintSamples("  first tab painted", painting, kFirstTabAim, " ms");
    if (selecting.Quantile(1) > 0)
      PrintSamples("  select an option", selecting, kSelectingAim, " ms");
  }

  // Each option of each list of options, one after another.
  static void SelectAll(HWND page, const PageTabs& tabs, Samples& selecting) {
    for (int tab = 0; tab < std::ssize(tabs); ++tab) {
      const auto* options = std::get_if<OptionList>(&tabs[static_cast<std::size_t>(tab)].body);
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

  static ShownTab TabInView(HWND page, int number) {
    ShownTab tab{number, {}, BareWindow::ControlsOf(page, true, true)};
    for (BareWindow::Control& each : tab.controls) {
      if (each.kind == kIconMarkerClass) each.kind = BarePicture::kClass;
      if (each.kind == WC_TABCONTROLW) tab.strip = each;
    }
    std::erase_if(tab.controls, [](const auto& each) { return each.kind == WC_TABCONTROLW; });
    return tab;
  }

  // Each tab once, the first one last.
  void TurnAll(HWND page, std::vector<Comparison>& turning) const {
    const int count = CountTabs(page);
    turning.resize(static_cast<std::size_t>(count));
    ShownTab before = TabInView(page, 0);
    for (int step = 1; step <= count; ++step) {
      const int tab = step % count;
      const Stopwatch watch;
      TurnTo(page, tab);
      const double turn = watch.Milliseconds();
      ShownTab after = TabInView(page, tab);
      turning[static_cast<std::size_t>(tab)].Add(turn, stage_.TimeBareTurn(before, after));
      before = std::move(after);
    }
  }

  PageStage stage_;
};

}  // namespace

}  // namespace tidewell::bench

int main(int count, char** words) {
  tidewell::InstallDeviceShell();
  tidewell::bench::PageBench().Run(std::span(words, static_cast<std::size_t>(count)).subspan(1));
}
