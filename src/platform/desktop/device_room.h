// Where a device's screen lies on this desktop, and where windows lie in it.
#pragma once

#include <windows.h>

namespace tidewell {

// True when a desktop of this work area is no larger than a device's screen.
bool IsDeviceScreen(const RECT& workArea);

// The device's screen within a desktop's work area: a device screen is all of it, a larger desktop
// has a room of 480x640 in its middle. When `turned`, the room is 640x480, and on a device screen,
// which has no space for that, the largest one of the turned proportions.
RECT DeviceRoom(const RECT& workArea, bool turned);

// A window of the old room as it lies in the new one: one that spans most of the room keeps its
// distance from both edges, any other keeps its size and stays inside.
RECT PlaceInNewRoom(const RECT& window, const RECT& oldRoom, const RECT& newRoom);

}  // namespace tidewell
