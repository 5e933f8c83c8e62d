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

// A window that shows a picture which is there already.
class BarePicture {
 public:
  static constexpr wchar_t kClass[] = L"BarePicture";

  static void Register() {
    WNDCLASSW plain{};
    plain.lpfnWndProc = WindowProc;
    plain.lpszClassName = kClass;
    RegisterClassW(&plain);
  }

 private:
  static constexpr int kSide = 640;

  static HDC Picture() {
    static const HDC picture = [] {
      const HDC screen = GetDC(nullptr);
      const HDC made = CreateCompatibleDC(screen);
      SelectObject(made, CreateCompatibleBitmap(screen, kSide, kSide));
      ReleaseDC(nullptr, screen);
      return made;
    }();
    return picture;
  }

  static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_ERASEBKGND) return 1;
    if (message != WM_PAINT) return DefWindowProcW(window, message, wParam, lParam);
    PAINTSTRUCT paint;
    const HDC dc = BeginPaint(window, &paint);
    RECT client;
    GetClientRect(window, &client);
    BitBlt(dc, 0, 0, client.right, client.bottom, Picture(), 0, 0, SRCCOPY);
    EndPaint(window, &paint);
    return 0;
  }
};

// A window with the controls of another, list views with their column and as many lines, as they
// are without rules or keys. Where texts are asked for, all have theirs, and drop-down lists have
// lines, of which they show one.
class BareWindow {
 public:
  struct Control {
    std::wstring kind;
    DWORD style;
    RECT place;
    std::vector<std::wstring> lines = {};
    std::wstring text = {};
    DWORD listStyle = 0;  // the extended style of a list view
  };

  // 0 for what is no list.
  static int CountLines(HWND control) {
    const auto choices = static_cast<int>(SendMessageW(control, CB_GETCOUNT, 0, 0));
    return std::max({choices, ListView_GetItemCount(control), TabCtrl_GetItemCount(control)});
  }
  static std::vector<Control> ControlsOf(HWND window, bool shownOnly = false,
                                         bool withTexts = false) {
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
      const bool hasLines = withTexts || control.kind == WC_LISTVIEWW;
      for (int line = 0; hasLines && line < CountLines(child); ++line) {
        control.lines.push_back(withTexts ? LineOf(child, control.kind, line)
                                          : L"A line of a list");
      }
      if (withTexts) control.text = TextOf(child);
      if (control.kind == WC_LISTVIEWW) {
        control.listStyle = ListView_GetExtendedListViewStyle(child);
      }
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
  std::vector<HWND> Make(const std::vector<Control>& controls) const {
    std::vector<HWND> all;
    for (const Control& control : controls) {
      const HWND made = CreateWindowExW(
          0, control.kind.c_str(), control.text.c_str(), control.style, control.place.left,
          control.place.top, control.place.right - control.place.left,
          control.place.bottom - control.place.top, window_, nullptr, nullptr, nullptr);
      SendMessageW(made, WM_SETFONT, reinterpret_cast<WPARAM>(face_), FALSE);
      if (!control.lines.empty()) AddLines(made, control);
      if (control.kind == WC_LISTVIEWW) {
        ListView_SetExtendedListViewStyle(made, control.listStyle);
        AddColumn(made);
      }
      all.push_back(made);
    }
    return all;
  }

 private:
  static std::wstring TextOf(HWND control) {
    wchar_t text[128];
    return {text, static_cast<std::size_t>(GetWindowTextW(control, text, 128))};
  }
  // Without a column a list view has no header and shows nothing.
  static void AddColumn(HWND list) {
    RECT client;
    GetClientRect(list, &client);
    LVCOLUMNW column{};
    column.mask = LVCF_WIDTH;
    column.cx = client.right;
    ListView_InsertColumn(list, 0, &column);
  }
  static std::wstring LineOf(HWND list, const std::wstring& kind, int line) {
    wchar_t text[128] = L"";
    if (kind == WC_LISTVIEWW) {
      ListView_GetItemText(list, line, 0, text, 128);
    } else if (kind == WC_TABCONTROLW) {
      TCITEMW tab = TabText(text);
      TabCtrl_GetItem(list, line, &tab);
    } else if (SendMessageW(list, CB_GETLBTEXTLEN, static_cast<WPARAM>(line), 0) < 128) {
      SendMessageW(list, CB_GETLBTEXT, static_cast<WPARAM>(line), reinterpret_cast<LPARAM>(text));
    }
    return text;
  }
  static TCITEMW TabText(wchar_t* text) {
    TCITEMW tab{};
    tab.mask = TCIF_TEXT;
    tab.pszText = text;
    tab.cchTextMax = 128;
    return tab;
  }
  static void AddLines(HWND list, const Control& control) {
    SendMessageW(list, WM_SETREDRAW, FALSE, 0);
    int line = 0;
    for (std::wstring text : control.lines) {
      if (control.kind == WC_LISTVIEWW) {
        LVITEMW item{};
        item.mask = LVIF_TEXT;
        item.iItem = line;
        item.pszText = text.data();
        ListView_InsertItem(list, &item);
      } else if (control.kind == WC_TABCONTROLW) {
        const TCITEMW tab = TabText(text.data());
        TabCtrl_InsertItem(list, line, &tab);
      } else {
        SendMessageW(list, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
      }
      ++line;
    }
    SendMessageW(list, WM_SETREDRAW, TRUE, 0);
  }

  HWND window_;
  HFONT face_;
};

}  // namespace tidewell::bench
