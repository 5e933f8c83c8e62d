// The window half of a finger-scrolled view: holds the off-screen bitmap, forwards the host
// window's messages to the scroller, and copies the bitmap in one block, with a thumb on it where
// there is more than the view shows.
#pragma once

#include <windows.h>

#include "ui/kinetic_scroller.h"
#include "win32/gdi.h"

namespace tidewell {

class KineticList final : private ScrollerHost {
 public:
  // The scroller's own Initialise; `window` gets its timers and the pointer capture.
  void Initialise(HWND window, int clientId, ScrollerClient& client, const ScreenScale& scale,
                  const ScrollView& view);
  bool Resize(int width, int height);
  void Redraw();
  bool BringIntoView(int contentTop, int contentBottom);
  void Paint(HDC dc) const;

  // Each tells whether the message was the list's.
  bool PointerDown(POINT point);
  bool PointerMove(POINT point);
  bool PointerUp(POINT point);
  bool PointerLost();
  bool Timer(WPARAM id);

  const KineticScroller& Scroller() const { return scroller_; }

 private:
  void StartTimer(unsigned id, unsigned milliseconds) override;
  void StopTimer(unsigned id) override;
  void CapturePointer() override;
  void ReleasePointer() override;
  void* CreateSurface(int width, int height) override;
  void BeginStrip(int distance) override;
  void EndStrip() override;
  void Update() override;
  void Wait(unsigned milliseconds) override;

  RECT ThumbArea() const;

  HWND window_ = nullptr;
  ScreenScale scale_;
  KineticScroller scroller_;
  MemoryBitmap surface_;     // the content alone: the thumb is on it only while it is copied
  MemoryBitmap underThumb_;  // what the thumb covers meanwhile
  SIZE surfaceSize_{};
};

}  // namespace tidewell
