// Where a device's screen lies on this desktop, and where windows lie in it.
#pragma once

#include <windows.h>

namespace tidewell {

// The device's screen within a desktop's work area: all of it where the desktop is no larger than
// a device's screen, else a 480x640 room in its middle, 640x480 when `turned`.
RECT DeviceRoom(const RECT& workArea, bool turned);

// True when a desktop of this work area is a device's screen, so that turning is the screen's own.
bool IsDeviceScreen(const RECT& workArea);

// A window of the old room as it lies in the new one: one that spans most of the room keeps its
// distance from both edges, any other keeps its size and stays inside.
RECT PlaceInNewRoom(const RECT& window, const RECT& oldRoom, const RECT& newRoom);

}  // namespace tidewell
