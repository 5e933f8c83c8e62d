#include "platform/desktop/device_room.h"

#include <algorithm>

namespace tidewell {

namespace {

constexpr LONG kShortSide = 480;  // of the largest device's screen
constexpr LONG kLongSide = 640;

struct Span {
  LONG from;
  LONG to;
  LONG Length() const { return to - from; }
};

Span Centred(Span space, LONG length) {
  length = std::min(length, space.Length());
  const LONG from = space.from + (space.Length() - length) / 2;
  return {from, from + length};
}

Span Placed(Span window, Span oldRoom, Span newRoom) {
  if (2 * window.Length() > oldRoom.Length()) {
    return {newRoom.from + window.from - oldRoom.from, newRoom.to + window.to - oldRoom.to};
  }
  const LONG latest = std::max(newRoom.from, newRoom.to - window.Length());
  const LONG from = std::clamp(newRoom.from + window.from - oldRoom.from, newRoom.from, latest);
  return {from, from + window.Length()};
}

Span Across(const RECT& rect) {
  return {rect.left, rect.right};
}
Span Down(const RECT& rect) {
  return {rect.top, rect.bottom};
}
RECT Joined(Span across, Span down) {
  return {across.from, down.from, across.to, down.to};
}

}  // namespace

bool IsDeviceScreen(const RECT& workArea) {
  return Across(workArea).Length() <= kLongSide && Down(workArea).Length() <= kLongSide;
}

RECT DeviceRoom(const RECT& workArea, bool turned) {
  const LONG width = Across(workArea).Length();
  const LONG height = Down(workArea).Length();
  SIZE size{turned ? kLongSide : kShortSide, turned ? kShortSide : kLongSide};
  if (IsDeviceScreen(workArea)) {
    size = {width, height};
    if (turned && width < height) size.cy = width * width / height;
    if (turned && width > height) size.cx = height * height / width;
  }
  return Joined(Centred(Across(workArea), size.cx), Centred(Down(workArea), size.cy));
}

RECT PlaceInNewRoom(const RECT& window, const RECT& oldRoom, const RECT& newRoom) {
  return Joined(Placed(Across(window), Across(oldRoom), Across(newRoom)),
                Placed(Down(window), Down(oldRoom), Down(newRoom)));
}

}  // namespace tidewell
