// The frame that shows which control has the focus, in the room between it and its neighbours.
// Windows only.
#pragma once

#include <windows.h>

#include "platform/scale.h"

namespace tidewell {

// In the client area of the control's parent.
RECT FocusFrame(HWND control, const ScreenScale& scale);
// Leaves what is inside of the frame as it is.
void DrawFocusFrame(HDC dc, HWND control, const ScreenScale& scale, COLORREF ink);

}  // namespace tidewell
