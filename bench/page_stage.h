// What pages are opened on in a measurement: the machine, its settings and categories as they are
// stored, and a window to stand over.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "bench/bare_window.h"
#include "bench/stopwatch.h"
#include "categories/windows/pim_categories.h"
#include "pages/page_list.h"
#include "pages/windows/create_page.h"
#include "platform/desktop/device_shell.h"
#include "platform/windows/windows_machine.h"
#include "win32/tahoma.h"

namespace tidewell::bench {

// What of a page can be seen, its strip of tabs apart.
struct ShownTab {
  int number = 0;
  BareWindow::Control strip;
  std::vector<BareWindow::Control> controls;
};

class PageStage {
 public:
  PageStage() {
    const ScreenFacts screen = machine_.system.Screen();
    const ScreenScale scale(screen.dpiX, screen.dpiY, false);
    face_ = TahomaFont(scale.ScaleX(12), FW_NORMAL);
    RegisterPlainClass(kBareClass);
    RegisterPlainClass(kHostClass);
    BarePicture::Register();
    host_ = CreateWindowExW(0, kHostClass, L"", WS_POPUP | WS_VISIBLE, 0, scale.ScaleY(26),
                            screen.width, screen.height - scale.ScaleY(26), nullptr, nullptr,
                            nullptr, nullptr);
    store_.Load(door_, scale, language_);
    PimCategorySource categories(door_.files, store_.root.TWIconsFolder.Value());
    categories_.Rebuild(categories, L"All");
    context_.emplace(PageContext{door_, store_, categories_, language_, scale});
    screen_ = std::to_string(screen.width) + "x" + std::to_string(screen.height);
  }
  PageStage(const PageStage&) = delete;
  PageStage& operator=(const PageStage&) = delete;
  ~PageStage() { DestroyWindow(host_); }

  HWND Host() const { return host_; }
  PageContext& Context() { return *context_; }
  CategoryCatalog& Categories() { return categories_; }
  // "240x320"
  const std::string& Screen() const { return screen_; }

  std::unique_ptr<PageWindow> Open(int page) { return CreatePage(page, host_, *context_); }
  // Until it is painted.
  std::pair<std::unique_ptr<PageWindow>, double> TimeOpening(int page) {
    HandleAll();
    const Stopwatch watch;
    auto opened = Open(page);
    PaintAll();
    const double took = watch.Milliseconds();
    HandleAll();
    return {std::move(opened), took};
  }
  void Close(const PageWindow& page) const {
    SetActiveWindow(host_);
    DestroyWindow(page.Window());
  }

  double TimeBareWindow(const std::vector<BareWindow::Control>& controls) const {
    HandleAll();
    const Stopwatch watch;
    const BareWindow bare(host_, face_.Get());
    bare.Make(controls);
    bare.Show();
    return watch.Milliseconds();
  }
  // From one tab to another, with each control hidden and shown by itself.
  double TimeBareTurn(const ShownTab& from, const ShownTab& to) const {
    const BareWindow bare(host_, face_.Get());
    const std::vector<HWND> before = bare.Make(from.controls);
    const std::vector<HWND> after = bare.Make(to.controls);
    const HWND strip = bare.Make({from.strip}).front();
    TabCtrl_SetCurSel(strip, from.number);
    for (const HWND control : after) ShowWindow(control, SW_HIDE);
    bare.Show();
    const Stopwatch watch;
    TabCtrl_SetCurSel(strip, to.number);
    for (const HWND control : before) ShowWindow(control, SW_HIDE);
    for (const HWND control : after) ShowWindow(control, SW_SHOW);
    PaintAll();
    return watch.Milliseconds();
  }

 private:
  static constexpr wchar_t kHostClass[] = L"PageBenchHost";

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

inline std::string NameOfPage(int page) {
  const std::wstring_view name = kPages[static_cast<std::size_t>(page)].className;
  return {name.begin(), name.end()};
}

inline int CountTabs(HWND page) {
  const HWND tabs = FindWindowExW(page, nullptr, WC_TABCONTROLW, nullptr);
  return static_cast<int>(SendMessageW(tabs, TCM_GETITEMCOUNT, 0, 0));
}

inline void TurnTo(HWND page, int tab) {
  const HWND tabs = FindWindowExW(page, nullptr, WC_TABCONTROLW, nullptr);
  const auto tell = [&](UINT code) {
    NMHDR header{tabs, 0, code};
    SendMessageW(page, WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&header));
  };
  tell(TCN_SELCHANGING);
  SendMessageW(tabs, TCM_SETCURSEL, static_cast<WPARAM>(tab), 0);
  tell(TCN_SELCHANGE);
  PaintAll();
}

}  // namespace tidewell::bench
