// A page as a real window with real controls, over a host of its own, on a QVGA device in memory
// with the real language library; worked by messages as a finger would.
#pragma once

#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include "pages/page_list.h"
#include "pages/windows/create_page.h"
#include "platform/desktop/device_shell.h"
#include "platform/windows/windows_files.h"
#include "platform/windows/windows_libraries.h"
#include "tests/support/test_device.h"
#include "tests/support/window_support.h"

namespace tidewell {

class PageHost : public testing::Test, protected TestDevice {
 protected:
  PageHost() {
    [[maybe_unused]] static const bool installed = (InstallDeviceShell(), true);
    for (const wchar_t* name : {L"Business", L"Family"}) catalog.Add({name, 1});
    UseScreen(240, 320, 96);
    UseLanguage(L"TWEngRc.dll");
  }
  ~PageHost() override {
    if (page_) Close();
  }
  void UseScreen(int width, int height, int dpi, bool vgaMode = false) {
    TestDevice::UseScreen(width, height, dpi, vgaMode);
    const int strip = 26 * dpi / 96;
    MoveWindow(host_.Get(), 0, strip, width, height - strip, FALSE);
  }
  void UseLanguage(const std::wstring& library) {
    WindowsFiles windowsFiles;
    WindowsLibraries libraries(windowsFiles);
    ASSERT_TRUE(language.Load(libraries, LANGUAGE_FOLDER + library, {})) << "not built";
  }

  void Open(PageIndex page) {
    page_ = CreatePage(static_cast<int>(page), host_.Get(), context);
    ASSERT_TRUE(page_);
  }
  // As the host does on OK. The settings have what the page's controls held.
  void Close() {
    SetActiveWindow(host_.Get());
    DestroyWindow(page_->Window());
    page_.reset();
  }

  HWND Control(int id) const { return GetDlgItem(page_->Window(), id); }
  LRESULT Send(int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
    return SendMessageW(Control(id), message, wParam, lParam);
  }
  HWND Tabs() const { return FindWindowExW(page_->Window(), nullptr, WC_TABCONTROLW, nullptr); }
  bool IsShown(int id) const { return Control(id) && IsWindowVisible(Control(id)); }
  // Those of the ids from `first` to `last` that take a finger when their tab is turned to.
  std::vector<int> Enabled(int first, int last) const {
    std::vector<int> ids;
    for (int id = first; id <= last; ++id) {
      if (IsWindowEnabled(Control(id))) ids.push_back(id);
    }
    return ids;
  }
  int Selection(int id) const { return static_cast<int>(Send(id, CB_GETCURSEL)); }
  std::wstring TextOfControl(int id) const { return CaptionOf(Control(id)); }
  bool IsChecked(int id) const { return Send(id, BM_GETCHECK) == BST_CHECKED; }
  // Within the page.
  RECT Place(HWND control) const {
    RECT place = WindowRect(control);
    MapWindowPoints(nullptr, page_->Window(), reinterpret_cast<POINT*>(&place), 2);
    return place;
  }

  static void TapMiddle(HWND window, const RECT& area) {
    const LPARAM middle = MAKELPARAM((area.left + area.right) / 2, (area.top + area.bottom) / 2);
    SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, middle);
    SendMessageW(window, WM_LBUTTONUP, 0, middle);
  }
  void TapControl(int id) const { TapMiddle(Control(id), ClientArea(Control(id))); }
  // By keys to a tab that is not in view between the arrows.
  void Turn(int tab) const {
    RECT area;
    TabCtrl_GetItemRect(Tabs(), tab, &area);
    const int arrows = context.scale.ScaleX(2 * 28);
    if (area.left >= 0 && area.right <= ClientArea(Tabs()).right - arrows) {
      return TapMiddle(Tabs(), area);
    }
    while (TabCtrl_GetCurSel(Tabs()) != tab) {
      const int before = TabCtrl_GetCurSel(Tabs());
      SendMessageW(Tabs(), WM_KEYDOWN, before < tab ? VK_RIGHT : VK_LEFT, 1);
      ASSERT_NE(TabCtrl_GetCurSel(Tabs()), before);
    }
  }
  // As the list does when a line is tapped.
  void Choose(int id, int line) const {
    SetFocus(Control(id));
    Send(id, CB_SHOWDROPDOWN, TRUE);
    while (Selection(id) != line) {
      const int before = Selection(id);
      Send(id, WM_KEYDOWN, before < line ? VK_DOWN : VK_UP);
      ASSERT_NE(Selection(id), before) << id << " has no line " << line;
    }
    Send(id, WM_KEYDOWN, VK_RETURN);
  }
  void Type(int id, const wchar_t* text) const {
    const HWND inner = GetWindow(Control(id), GW_CHILD);
    const HWND edit = inner ? inner : Control(id);
    SetFocus(edit);
    SendMessageW(edit, EM_SETSEL, 0, -1);
    for (; *text; ++text) SendMessageW(edit, WM_CHAR, *text, 1);
  }
  // Through the queue to the control that has the focus.
  static void Press(WPARAM key) {
    PostMessageW(GetFocus(), WM_KEYDOWN, key, 1);
    PumpMessages();
    PostMessageW(GetFocus(), WM_KEYUP, key, 1);
    PumpMessages();
  }
  // 0 for the row of tabs.
  int FocusedId() const {
    const HWND focus = GetFocus();
    return GetDlgCtrlID(GetParent(focus) == page_->Window() ? focus : GetParent(focus));
  }

  TestWindow host_{WS_POPUP | WS_VISIBLE, 0};
  std::unique_ptr<PageWindow> page_;
};

}  // namespace tidewell
