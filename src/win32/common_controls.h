// The library of common controls, which is loaded when its controls are first needed.
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

}  // namespace tidewell
