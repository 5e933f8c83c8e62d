// The drop-down lists of a device are as high as they were made; those of a desktop show thirty
// lines, over the whole of a small screen.
#pragma once

#include <windows.h>

namespace tidewell {

// For a window that is being created: if it is a list that drops down, it drops no lower than it
// was asked to when it was made or moved.
void WatchForDropList(HWND window, const CREATESTRUCTW& created);

}  // namespace tidewell
