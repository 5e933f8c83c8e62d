#include "ui/windows/focus_frame.h"

#include "win32/gdi.h"

namespace tidewell {

namespace {

constexpr int kRoom = 2;  // design width

}  // namespace

RECT FocusFrame(HWND control, const ScreenScale& scale) {
  RECT frame;
  GetWindowRect(control, &frame);
  MapWindowPoints(nullptr, GetParent(control), reinterpret_cast<POINT*>(&frame), 2);
  const int room = scale.ScaleX(kRoom);
  InflateRect(&frame, room, room);
  return frame;
}

void DrawFocusFrame(HDC dc, HWND control, const ScreenScale& scale, COLORREF ink) {
  const RECT frame = FocusFrame(control, scale);
  const int width = scale.ScaleX(1);
  FillPlain(dc, {frame.left, frame.top, frame.right, frame.top + width}, ink);
  FillPlain(dc, {frame.left, frame.bottom - width, frame.right, frame.bottom}, ink);
  FillPlain(dc, {frame.left, frame.top, frame.left + width, frame.bottom}, ink);
  FillPlain(dc, {frame.right - width, frame.top, frame.right, frame.bottom}, ink);
}

}  // namespace tidewell
