// The library of common controls, which is loaded when its controls are first needed, and what its
// list views do for pages and dialogs alike.
#pragma once

#include <windows.h>

#include <commctrl.h>

namespace tidewell {

// Before the first list view, tab row, trackbar or up-down control; again does no harm.
inline void LoadCommonControls() {
  // Not const: a device's header takes a plain pointer.
  INITCOMMONCONTROLSEX wanted{
      sizeof wanted, ICC_LISTVIEW_CLASSES | ICC_TAB_CLASSES | ICC_BAR_CLASSES | ICC_UPDOWN_CLASS};
  InitCommonControlsEx(&wanted);
}

// Turns the box of the line that has the focus: a device has no key for boxes, so its action key
// does. False for a list without boxes or lines.
inline bool TurnTick(HWND list) {
  const int line = ListView_GetNextItem(list, -1, LVNI_FOCUSED);
  if (!(ListView_GetExtendedListViewStyle(list) & LVS_EX_CHECKBOXES) || line < 0) return false;
  ListView_SetCheckState(list, line, ListView_GetCheckState(list, line) == 0);
  return true;
}

}  // namespace tidewell
