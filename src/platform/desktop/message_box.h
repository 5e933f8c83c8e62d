// A device's message boxes keep to its screen; those of a desktop may be wider than that.
#pragma once

#include <windows.h>

namespace tidewell {

// For a window that is being created: if it becomes a message box that sticks out of the screen,
// its text is wrapped and the box centred.
void WatchForMessageBox(HWND window, const CREATESTRUCTW& created);

}  // namespace tidewell
