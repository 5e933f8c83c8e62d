#include "ui/windows/key_navigation.h"

#include <commctrl.h>

#include <algorithm>

namespace tidewell {

namespace {

bool IsDropped(HWND list) {
  return SendMessageW(list, CB_GETDROPPEDSTATE, 0, 0) != 0;
}

bool IsShown(HWND control) {
  return (GetWindowLongW(control, GWL_STYLE) & WS_VISIBLE) != 0;
}

void TellPage(HWND control, int notification) {
  const auto id = static_cast<WORD>(GetDlgCtrlID(control));
  SendMessageW(GetParent(control), WM_COMMAND, MAKEWPARAM(id, static_cast<WORD>(notification)),
               reinterpret_cast<LPARAM>(control));
}

// Chooses the neighbouring line of a closed list, as a tap on it would.
void StepChoice(HWND list, int direction) {
  const LRESULT count = SendMessageW(list, CB_GETCOUNT, 0, 0);
  const LRESULT present = SendMessageW(list, CB_GETCURSEL, 0, 0);
  const LRESULT next = present == CB_ERR ? 0 : present + direction;
  if (next < 0 || next >= count || next == present) return;
  SendMessageW(list, CB_SETCURSEL, static_cast<WPARAM>(next), 0);
  TellPage(list, CBN_SELENDOK);
  TellPage(list, CBN_SELCHANGE);
}

// Some row has the mark of the focus as long as the list of rows has the focus. It is one in view:
// the mark scrolls the list to its row.
void FocusARow(HWND rows) {
  if (ListView_GetNextItem(rows, -1, LVNI_FOCUSED) >= 0) return;
  ListView_SetItemState(rows, ListView_GetTopIndex(rows), LVIS_FOCUSED, LVIS_FOCUSED);
}

// Keys that come to a list of rows select one, as keys that move on in it do.
void SelectARow(HWND rows) {
  if (ListView_GetNextItem(rows, -1, LVNI_SELECTED) >= 0) return;
  const int focused = ListView_GetNextItem(rows, -1, LVNI_FOCUSED);
  ListView_SetItemState(rows, focused, LVIS_SELECTED, LVIS_SELECTED);
}

// Whether the list of rows cannot go further that way, so that the key leaves it.
bool IsAtEnd(HWND rows, int direction) {
  const int count = ListView_GetItemCount(rows);
  const int focused = ListView_GetNextItem(rows, -1, LVNI_FOCUSED);
  return direction < 0 ? focused <= 0 : focused == count - 1;
}

}  // namespace

void KeyNavigation::Add(HWND control, ControlKind kind) {
  Hook(control, control, kind);
  if (kind != ControlKind::kNumber) return;
  if (const HWND edit = GetWindow(control, GW_CHILD)) Hook(edit, control, kind);
}

void KeyNavigation::Hook(HWND window, HWND control, ControlKind kind) {
  if (!window) return;
  Entry& entry = entries_.emplace_back();
  entry.control = control;
  entry.kind = kind;
  entry.hook.Attach(window, [this, &entry](UINT message, WPARAM wParam, LPARAM lParam) {
    return OnMessage(entry, message, wParam, lParam);
  });
}

std::optional<LRESULT> KeyNavigation::OnMessage(const Entry& entry, UINT message, WPARAM wParam,
                                                LPARAM lParam) {
  switch (message) {
    case WM_GETDLGCODE:
      // A dialog's loop asks before it takes a key for itself.
      if (lParam) return DLGC_WANTMESSAGE;
      break;
    case WM_KEYDOWN:
      if (OnKey(entry, wParam)) return 0;
      break;
    case WM_CHAR:
      if (Swallows(entry, wParam)) return 0;
      break;
    case WM_MOUSEWHEEL:
      if (entry.kind == ControlKind::kRows || IsDropped(entry.control)) break;
      owner_.OnWheel(GET_WHEEL_DELTA_WPARAM(wParam));
      return 0;
    case WM_SETFOCUS:
      if (entry.kind == ControlKind::kRows) FocusARow(entry.control);
      owner_.OnFocusMoved(entry.control);
      break;
    case WM_KILLFOCUS:
      owner_.OnFocusMoved(nullptr);
      break;
  }
  return std::nullopt;
}

bool KeyNavigation::OnKey(const Entry& entry, WPARAM key) {
  switch (key) {
    case VK_UP:
      return OnArrow(entry, -1, true);
    case VK_DOWN:
      return OnArrow(entry, 1, true);
    case VK_LEFT:
      return OnArrow(entry, -1, false);
    case VK_RIGHT:
      return OnArrow(entry, 1, false);
    case VK_TAB:
      Walk(entry.control, GetKeyState(VK_SHIFT) < 0 ? -1 : 1);
      return true;
    case VK_RETURN:
      return OnAction(entry, false);
    case VK_SPACE:
      return OnAction(entry, true);
    case VK_ESCAPE:
      return !IsDropped(entry.control) && owner_.OnEscape();
    case VK_PRIOR:
    case VK_NEXT:
      if (entry.kind == ControlKind::kRows || IsDropped(entry.control)) return false;
      return owner_.OnPageKey(key == VK_PRIOR ? -1 : 1);
    default:
      return false;
  }
}

bool KeyNavigation::OnArrow(const Entry& entry, int direction, bool vertical) {
  if (vertical && owner_.OnVerticalKey(entry.control, direction)) return true;
  switch (entry.kind) {
    case ControlKind::kList:
    case ControlKind::kNumber:
      if (IsDropped(entry.control)) return false;
      if (vertical) break;
      if (entry.kind == ControlKind::kNumber) return false;
      StepChoice(entry.control, direction);
      return true;
    case ControlKind::kRows:
      if (!vertical || !IsAtEnd(entry.control, direction)) return false;
      break;
    case ControlKind::kEdit:
    case ControlKind::kSlider:
    case ControlKind::kTabs:
    case ControlKind::kStrip:
      if (!vertical) return false;
      break;
    case ControlKind::kButton:
    case ControlKind::kCheck:
      break;
  }
  Walk(entry.control, direction);
  return true;
}

bool KeyNavigation::OnAction(const Entry& entry, bool isSpace) {
  switch (entry.kind) {
    case ControlKind::kButton:
    case ControlKind::kCheck:
      if (isSpace) return false;
      SendMessageW(entry.control, BM_CLICK, 0, 0);
      return true;
    case ControlKind::kList:
    case ControlKind::kNumber:
      if (isSpace && entry.kind == ControlKind::kNumber) return false;
      if (IsDropped(entry.control)) {
        if (!isSpace) return false;
        SendMessageW(entry.control, WM_KEYDOWN, VK_RETURN, 0);
      } else {
        SendMessageW(entry.control, CB_SHOWDROPDOWN, TRUE, 0);
      }
      return true;
    case ControlKind::kEdit:
    case ControlKind::kSlider:
    case ControlKind::kTabs:
      if (isSpace) return false;
      Walk(entry.control, 1);
      return true;
    case ControlKind::kRows:
    case ControlKind::kStrip:
      return false;
  }
  return false;
}

// The characters of keys that did something else already; a control would sound an alarm, or
// search for a line that begins with a blank.
bool KeyNavigation::Swallows(const Entry& entry, WPARAM character) const {
  return character == VK_RETURN || character == VK_TAB ||
         (character == VK_SPACE && entry.kind == ControlKind::kList);
}

bool KeyNavigation::CanFocus(HWND control) const {
  const bool known = std::any_of(entries_.begin(), entries_.end(),
                                 [&](const Entry& entry) { return entry.control == control; });
  return known && IsShown(control) && IsWindowEnabled(control);
}

bool KeyNavigation::MarksItself(HWND control) const {
  return std::any_of(entries_.begin(), entries_.end(), [&](const Entry& entry) {
    return entry.control == control &&
           (entry.kind == ControlKind::kList || entry.kind == ControlKind::kRows ||
            entry.kind == ControlKind::kTabs || entry.kind == ControlKind::kStrip);
  });
}

void KeyNavigation::FocusFirst(HWND preferred) {
  if (preferred && CanFocus(preferred)) {
    SetFocus(preferred);
    return;
  }
  for (const Entry& entry : entries_) {
    if (entry.kind == ControlKind::kTabs || !CanFocus(entry.control)) continue;
    SetFocus(entry.control);
    return;
  }
}

void KeyNavigation::Walk(HWND from, int direction) {
  const auto count = static_cast<int>(entries_.size());
  const auto at = [&](int i) -> const Entry& { return entries_[static_cast<std::size_t>(i)]; };
  int start = 0;
  while (start < count && at(start).control != from) ++start;
  for (int step = 1; step <= count; ++step) {
    const Entry& entry = at((start + direction * step + count * 2) % count);
    const HWND next = entry.control;
    if (next == from || !CanFocus(next)) continue;
    SetFocus(next);
    if (entry.kind == ControlKind::kRows) SelectARow(next);
    // As in a dialog: what is there can be typed over at once.
    if (SendMessageW(next, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) {
      SendMessageW(next, EM_SETSEL, 0, -1);
    }
    return;
  }
}

}  // namespace tidewell
