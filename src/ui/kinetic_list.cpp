#include "ui/kinetic_list.h"

#include <algorithm>

namespace tidewell {

void KineticList::Initialise(HWND window, int clientId, ScrollerClient& client,
                             const ScreenScale& scale, const ScrollView& view) {
  window_ = window;
  scroller_.Initialise(clientId, *this, &client, scale, view);
}

bool KineticList::Resize(int width, int height) {
  return scroller_.Resize(width, height);
}

void KineticList::Redraw() {
  scroller_.Redraw(true);
}

void KineticList::BringIntoView(int contentTop, int contentBottom) {
  scroller_.BringIntoView(contentTop, contentBottom);
}

void KineticList::Paint(HDC dc) const {
  const ScrollView& view = scroller_.View();
  BitBlt(dc, view.left, view.top, view.width, view.height, surface_.Dc(), 0, 0, SRCCOPY);
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
  }
  return surface_.Dc();
}

void KineticList::Update() {
  const WindowDc screen(window_);
  Paint(screen.Dc());
}

void KineticList::Wait(unsigned milliseconds) {
  Sleep(milliseconds);
}

}  // namespace tidewell
