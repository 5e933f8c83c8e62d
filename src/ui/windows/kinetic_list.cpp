#include "ui/windows/kinetic_list.h"

#include <algorithm>

#include "ui/scroll_thumb.h"
#include "ui/windows/look.h"
#include "win32/gdi.h"

namespace tidewell {

namespace {

constexpr int kThumbWidth = 3;
constexpr int kThumbMargin = 2;
constexpr int kShortestThumb = 16;

// Copies all of `to`, a place in `target`, from a point in `source`.
void CopyArea(HDC target, const RECT& to, HDC source, int x, int y) {
  BitBlt(target, to.left, to.top, to.right - to.left, to.bottom - to.top, source, x, y, SRCCOPY);
}

}  // namespace

void KineticList::Initialise(HWND window, int clientId, ScrollerClient& client,
                             const ScreenScale& scale, const ScrollView& view) {
  window_ = window;
  scale_ = scale;
  scroller_.Initialise(clientId, *this, &client, scale, view);
}

bool KineticList::Resize(int width, int height) {
  return scroller_.Resize(width, height);
}

void KineticList::Redraw() {
  scroller_.Redraw(true);
}

bool KineticList::BringIntoView(int contentTop, int contentBottom) {
  return scroller_.BringIntoView(contentTop, contentBottom);
}

void KineticList::Paint(HDC dc) const {
  const ScrollView& view = scroller_.View();
  const RECT thumb = ThumbArea();
  const RECT stored{0, 0, thumb.right - thumb.left, thumb.bottom - thumb.top};
  CopyArea(underThumb_.Dc(), stored, surface_.Dc(), thumb.left, thumb.top);
  FillPlain(surface_.Dc(), thumb, kScrollThumb);
  BitBlt(dc, view.left, view.top, view.width, view.height, surface_.Dc(), 0, 0, SRCCOPY);
  CopyArea(surface_.Dc(), thumb, underThumb_.Dc(), 0, 0);
}

// A thin mark at the right edge tells that there is more than the view shows, and where it is.
RECT KineticList::ThumbArea() const {
  const ScrollView& view = scroller_.View();
  const int content = scroller_.ContentHeight();
  if (content <= view.height) return {};
  const int margin = scale_.ScaleX(kThumbMargin);
  const int track = view.height - 2 * margin;
  const int scrolled = std::clamp(-scroller_.Offset(), 0, content - view.height);
  const ScrollThumb thumb =
      PlaceThumb(track, view.height, content, scrolled, scale_.ScaleY(kShortestThumb));
  const int top = margin + thumb.top;
  const int right = view.width - margin;
  return {right - scale_.ScaleX(kThumbWidth), top, right, top + thumb.height};
}

bool KineticList::PointerDown(POINT point) {
  return scroller_.PointerDown(point.x, point.y, GetTickCount());
}

bool KineticList::PointerMove(POINT point) {
  return scroller_.PointerMove(point.y, GetTickCount());
}

bool KineticList::PointerUp(POINT point) {
  return scroller_.PointerUp(point.y);
}

bool KineticList::PointerLost() {
  return scroller_.PointerLost();
}

bool KineticList::Timer(WPARAM id) {
  return scroller_.Timer(static_cast<unsigned>(id));
}

void KineticList::StartTimer(unsigned id, unsigned milliseconds) {
  SetTimer(window_, id, milliseconds, nullptr);
}

void KineticList::StopTimer(unsigned id) {
  KillTimer(window_, id);
}

void KineticList::CapturePointer() {
  SetCapture(window_);
}

void KineticList::ReleasePointer() {
  ReleaseCapture();
}

void* KineticList::CreateSurface(int width, int height) {
  if (!surface_.Dc() || width != surfaceSize_.cx || height != surfaceSize_.cy) {
    surfaceSize_ = {width, height};
    const WindowDc screen(window_);
    surface_ = MemoryBitmap(screen.Dc(), std::max(width, 1), std::max(height, 1));
    underThumb_ = MemoryBitmap(screen.Dc(), scale_.ScaleX(kThumbWidth), std::max(height, 1));
  }
  return surface_.Dc();
}

void KineticList::BeginStrip(int distance) {
  const int width = surfaceSize_.cx;
  const int height = surfaceSize_.cy;
  const HDC dc = surface_.Dc();
  if (distance > 0) {
    CopyArea(dc, {0, distance, width, height}, dc, 0, 0);
    IntersectClipRect(dc, 0, 0, width, distance);
  } else {
    CopyArea(dc, {0, 0, width, height + distance}, dc, 0, -distance);
    IntersectClipRect(dc, 0, height + distance, width, height);
  }
}

void KineticList::EndStrip() {
  SelectClipRgn(surface_.Dc(), nullptr);
}

void KineticList::Update() {
  const WindowDc screen(window_);
  Paint(screen.Dc());
}

void KineticList::Wait(unsigned milliseconds) {
  Sleep(milliseconds);
}

}  // namespace tidewell
