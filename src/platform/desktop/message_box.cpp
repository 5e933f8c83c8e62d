#include "platform/desktop/message_box.h"

#include <commctrl.h>

#include <algorithm>
#include <string_view>
#include <vector>

#include "platform/desktop/shell_windows.h"
#include "platform/gdi.h"

namespace tidewell {

namespace {

constexpr UINT_PTR kSubclassId = 2;

struct Parts {
  HWND icon = nullptr;
  HWND text = nullptr;
  std::vector<HWND> buttons;
};

bool IsOfClass(HWND window, std::wstring_view wanted) {
  wchar_t name[16] = {};
  GetClassNameW(window, name, 16);
  return name == wanted;
}

// A box without an icon has the control for it all the same.
bool HasIcon(HWND control) {
  return SendMessageW(control, STM_GETICON, 0, 0) != 0;
}

Parts PartsOf(HWND box) {
  Parts parts;
  for (HWND child = GetWindow(box, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
    const LONG_PTR style = GetWindowLongPtrW(child, GWL_STYLE);
    if (!(style & WS_VISIBLE)) continue;
    if (!IsOfClass(child, L"Static")) {
      parts.buttons.push_back(child);
    } else if ((style & SS_TYPEMASK) != SS_ICON) {
      parts.text = child;
    } else if (HasIcon(child)) {
      parts.icon = child;
    }
  }
  return parts;
}

RECT PlaceOf(HWND control) {
  RECT place{};
  if (!control) return place;
  GetWindowRect(control, &place);
  MapWindowPoints(nullptr, GetParent(control), reinterpret_cast<POINT*>(&place), 2);
  return place;
}

int WrappedHeight(HWND control, int width) {
  wchar_t text[1024] = {};
  GetWindowTextW(control, text, 1024);
  const WindowDc dc(control);
  const Selected font(dc.Dc(), reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0)));
  RECT needed{0, 0, width, 0};
  DrawTextW(dc.Dc(), text, -1, &needed, DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX | DT_EXPANDTABS);
  return needed.bottom;
}

void MoveBy(HWND control, LONG x, LONG y) {
  const RECT place = PlaceOf(control);
  SetWindowPos(control, nullptr, place.left + x, place.top + y, 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

// A dialog of static controls and buttons alone.
bool IsMessageBox(HWND window) {
  HWND child = GetWindow(window, GW_CHILD);
  const bool hasChildren = child != nullptr;
  while (child && (IsOfClass(child, L"Static") || IsOfClass(child, L"Button"))) {
    child = GetWindow(child, GW_HWNDNEXT);
  }
  return hasChildren && !child;
}

void KeepWithin(HWND box, const RECT& room) {
  RECT place;
  GetWindowRect(box, &place);
  const RECT client = ClientArea(box);
  const LONG narrowing = (place.right - place.left) - (room.right - room.left);
  const Parts parts = PartsOf(box);
  if (narrowing <= 0 || !parts.text) return;

  RECT text = PlaceOf(parts.text);
  const RECT icon = PlaceOf(parts.icon);
  const LONG margin = parts.icon ? icon.left : text.left;
  const LONG width = client.right - narrowing - margin - text.left;
  const LONG contentBottom = std::max(icon.bottom, text.bottom);
  const int height = WrappedHeight(parts.text, width);
  if (parts.icon) text.top = icon.top + std::max(0L, (icon.bottom - icon.top - height) / 2);
  MoveWindow(parts.text, text.left, text.top, width, height, FALSE);

  const LONG growth = std::max(0L, text.top + height - contentBottom);
  for (const HWND button : parts.buttons) MoveBy(button, -narrowing / 2, growth);
  const LONG boxHeight = place.bottom - place.top + growth;
  SetWindowPos(box, nullptr, room.left, (room.top + room.bottom - boxHeight) / 2,
               room.right - room.left, boxHeight, SWP_NOZORDER | SWP_NOACTIVATE);
}

LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                            DWORD_PTR) {
  const LRESULT result = DefSubclassProc(window, message, wParam, lParam);
  if (message == WM_INITDIALOG && IsMessageBox(window)) {
    KeepWithin(window, ShellWindows::Instance().Client());
  }
  // Not earlier: the dialog may have become one of the shell's own windows in the meantime, and the
  // removal would take the shell's procedure away with this one.
  if (message == WM_NCDESTROY) RemoveWindowSubclass(window, WindowProc, id);
  return result;
}

}  // namespace

void WatchForMessageBox(HWND window, const CREATESTRUCTW& created) {
  if (created.lpszClass == WC_DIALOG) SetWindowSubclass(window, WindowProc, kSubclassId, 0);
}

}  // namespace tidewell
