// A finger-scrolled view: drag, fling, bounce, tap and press-and-hold. It knows no windows; time is
// passed in, and the host supplies timers, the pointer capture and the off-screen bitmap.
#pragma once

#include <cstdint>

#include "platform/scale.h"

namespace tidewell {

inline constexpr unsigned kFlingTimer = 1030;
inline constexpr unsigned kHoldTimer = 1031;
inline constexpr unsigned kBounceTimer = 1032;

// The window that a scroller lives in.
class ScrollerHost {
 public:
  virtual ~ScrollerHost() = default;
  // Starts a timer, or starts it again; it fires every `milliseconds` until it is stopped.
  virtual void StartTimer(unsigned id, unsigned milliseconds) = 0;
  virtual void StopTimer(unsigned id) = 0;
  virtual void CapturePointer() = 0;
  virtual void ReleasePointer() = 0;
  // Makes the off-screen bitmap, in place of an earlier one, and returns what the client draws on
  // (a memory DC).
  virtual void* CreateSurface(int width, int height) = 0;
  // Moves what the bitmap holds by `distance`, down when positive and less than its height, and
  // lets the client draw only on the strip that this leaves out of date, until EndStrip.
  virtual void BeginStrip(int distance) = 0;
  virtual void EndStrip() = 0;
  // Copies the bitmap to the screen before it returns.
  virtual void Update() = 0;
  virtual void Wait(unsigned milliseconds) = 0;
};

// Who paints the content and reacts to taps. Content y counts from the top of the content.
class ScrollerClient {
 public:
  virtual ~ScrollerClient() = default;
  // Paints all of the surface, the content moved down by `offset`. Returns the content's height.
  // The host may bound the drawing to a strip; so nothing but the offset and the content decides
  // what stands where.
  virtual int Paint(int clientId, void* surface, void* context, int offset, int width,
                    int height) = 0;
  // The pointer rests here. True when something changed and a repaint is needed.
  virtual bool Highlight(int clientId, int x, int contentY) = 0;
  // The press has become a drag: any highlight goes.
  virtual void DragStarted(int clientId) = 0;
  // A tap. May initialise or destroy the scroller.
  virtual void Activate(int clientId, int x, int contentY) = 0;
};

struct ScrollView {  // in the host's client coordinates, pixels
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
};

class KineticScroller {
 public:
  // Begins at the top of the content, at rest, without a paint context, and paints once. `host`
  // and `client` outlive the scroller; `client` may be null. May be called again at any time.
  void Initialise(int clientId, ScrollerHost& host, ScrollerClient* client,
                  const ScreenScale& scale, const ScrollView& view);

  // False when nothing changed. A list at rest stays within its ends.
  bool Resize(int width, int height);
  // `context` is handed to the client with every paint. False when it is the same as before.
  bool SetPaintContext(void* context, bool repaintNow);
  // Has the client paint all of the bitmap and, when asked, shows the result. Whoever changes the
  // content calls it: mere scrolling paints only what comes into view.
  void Redraw(bool updateNow);
  // Scrolls no further than needed to show content from `contentTop` to `contentBottom`; ends any
  // motion of the list. False when that was in view already; otherwise all is painted anew.
  bool BringIntoView(int contentTop, int contentBottom);

  // Pointer and timer messages, in the host's client coordinates; `now` in milliseconds of a
  // 32-bit tick counter. Each tells whether the scroller has consumed the message.
  bool PointerDown(int x, int y, std::uint32_t now);
  bool PointerMove(int y, std::uint32_t now);
  bool PointerUp(int y);
  // The capture went elsewhere: the press ends without a tap or a fling.
  bool PointerLost();
  bool Timer(unsigned id);

  const ScrollView& View() const { return view_; }
  int Offset() const { return offset_; }
  int ContentHeight() const { return contentHeight_; }
  bool Moving() const { return moving_; }

 private:
  struct Sample {
    int y = 0;  // relative to the view's top
    std::uint32_t time = 0;
  };

  bool BeyondBottom() const;
  bool OutOfRange() const;
  int Target() const;
  void Paint();
  void ShowOffset();
  void SnapIntoRange();
  void StopMotion();
  void Fling(int distance);
  void FlingStep();
  void EndFling();
  void Settle();
  void StartBounce();
  void BounceStep();
  int BounceOffset(int step) const;
  void EndBounce();
  void Hold();
  void Tap();

  ScrollerHost* host_ = nullptr;
  ScrollerClient* client_ = nullptr;
  int clientId_ = 0;
  ScrollView view_;
  void* surface_ = nullptr;
  void* context_ = nullptr;
  int deadZone_ = 0;
  int offset_ = 0;         // negative values scroll down
  int paintedOffset_ = 0;  // the offset that the bitmap shows
  bool stale_ = false;     // the bitmap shows what only a whole paint puts right
  int contentHeight_ = 0;
  double velocity_ = 0;   // pixels per fling step
  bool moving_ = false;   // a drag, a fling or a bounce
  bool pressed_ = false;  // down inside the view, and captured
  bool held_ = false;     // the press-and-hold highlight has fired
  bool caught_ = false;   // the press stopped a moving list: no tap follows
  bool flinging_ = false;
  bool bouncing_ = false;
  int bounceSteps_ = 0;
  int pressX_ = 0;
  Sample last_;
  Sample previous_;
  Sample earlier_;
};

}  // namespace tidewell
