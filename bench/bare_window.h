// What opening a page or a dialog is measured against: a bare window with as many bare controls of
// the same kinds.
#pragma once

#include <windows.h>

#include <aygshell.h>
#include <commctrl.h>

#include <algorithm>
#include <string>
#include <vector>

namespace tidewell::bench {

inline constexpr wchar_t kBareClass[] = L"BareWindow";

inline void Dispatch(UINT kinds) {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE | kinds)) DispatchMessageW(&message);
}

// Until everything is on the screen: to read from it is to wait for what was drawn before.
inline void PaintAll() {
  Dispatch(PM_QS_PAINT);
  GdiFlush();
  const HDC screen = GetDC(nullptr);
  GetPixel(screen, 0, 0);
  ReleaseDC(nullptr, screen);
}

inline void HandleAll() {
  Dispatch(0);
  PaintAll();
}

inline void RegisterPlainClass(const wchar_t* name) {
  WNDCLASSW plain{};
  plain.lpfnWndProc = DefWindowProcW;
  plain.hbrBackground = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
  plain.lpszClassName = name;
  RegisterClassW(&plain);
}

// A window with the controls of another, list views with their column and as many lines, as they
// are without texts, rules or keys. Drop-down lists have lines where these are asked for: they show
// one of them.
class BareWindow {
 public:
  struct Control {
    std::wstring kind;
    DWORD style;
    RECT place;
    int lines = 0;
  };

  // 0 for what is no list.
  static int CountLines(HWND control) {
    const auto lines = static_cast<int>(SendMessageW(control, CB_GETCOUNT, 0, 0));
    return std::max(lines, ListView_GetItemCount(control));
  }
  static std::vector<Control> ControlsOf(HWND window, bool shownOnly = false,
                                         bool withChoices = false) {
    std::vector<Control> controls;
    for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
      if (shownOnly && !IsWindowVisible(child)) continue;
      Control control;
      wchar_t kind[64];
      GetClassNameW(child, kind, 64);
      control.kind = kind;
      control.style = static_cast<DWORD>(GetWindowLongW(child, GWL_STYLE));
      GetWindowRect(child, &control.place);
      // A list is made with the height that it has when it is open.
      if (control.kind == L"ComboBox") {
        SendMessageW(child, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&control.place));
      }
      MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&control.place), 2);
      if (withChoices || control.kind == WC_LISTVIEWW) control.lines = CountLines(child);
      controls.push_back(control);
    }
    return controls;
  }

  // As every page must be: a pop-up with the shell's strips, the OK button's above, the menu bar's
  // below, and one type face for its controls.
  BareWindow(HWND host, HFONT face) : face_(face) {
    RECT place;
    GetWindowRect(host, &place);
    window_ =
        CreateWindowExW(static_cast<DWORD>(WS_EX_CAPTIONOKBTN), kBareClass, L"",
                        WS_POPUP | WS_CLIPCHILDREN, place.left, place.top, place.right - place.left,
                        place.bottom - place.top, host, nullptr, nullptr, nullptr);
    SHMENUBARINFO bar{};
    bar.cbSize = sizeof bar;
    bar.hwndParent = window_;
    bar.dwFlags = SHCMBF_EMPTYBAR;
    SHCreateMenuBar(&bar);
  }
  ~BareWindow() { DestroyWindow(window_); }

  void Show() const {
    ShowWindow(window_, SW_SHOW);
    UpdateWindow(window_);
    PaintAll();
  }
  void Make(const std::vector<Control>& controls) const {
    for (const Control& control : controls) {
      const HWND made = CreateWindowExW(
          0, control.kind.c_str(), L"", control.style, control.place.left, control.place.top,
          control.place.right - control.place.left, control.place.bottom - control.place.top,
          window_, nullptr, nullptr, nullptr);
      SendMessageW(made, WM_SETFONT, reinterpret_cast<WPARAM>(face_), FALSE);
      if (control.lines > 0) AddLines(made, control);
      if (control.kind == WC_LISTVIEWW) AddColumn(made);
    }
  }

 private:
  // Without a column a list view has no header and shows nothing.
  static void AddColumn(HWND list) {
    RECT client;
    GetClientRect(list, &client);
    LVCOLUMNW column{};
    column.mask = LVCF_WIDTH;
    column.cx = client.right;
    ListView_InsertColumn(list, 0, &column);
  }
  static void AddLines(HWND list, const Control& control) {
    wchar_t text[] = L"A line of a list";
    SendMessageW(list, WM_SETREDRAW, FALSE, 0);
    for (int line = 0; line < control.lines; ++line) {
      LVITEMW item{};
      item.mask = LVIF_TEXT;
      item.iItem = line;
      item.pszText = text;
      if (control.kind == WC_LISTVIEWW) {
        ListView_InsertItem(list, &item);
      } else {
        SendMessageW(list, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
      }
    }
    SendMessageW(list, WM_SETREDRAW, TRUE, 0);
  }

  HWND window_;
  HFONT face_;
};

}  // namespace tidewell::bench
