#include "ui/kinetic_scroller.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace tidewell {

namespace {

constexpr unsigned kFlingPeriod = 70;
constexpr unsigned kHoldDelay = 100;
constexpr unsigned kBouncePeriod = 50;
constexpr unsigned kTapHighlightTime = 50;
constexpr int kDeadZone = 12;     // at 96 dots per inch
constexpr int kSlowRelease = 6;   // pixels over the last two moves
constexpr int kRestingSpeed = 2;  // a fling slower than this has ended
constexpr int kFirstBounceStep = 3;

int Truncate(double number) {
  return static_cast<int>(number);
}

double Decayed(double velocity) {
  const int speed = std::abs(Truncate(velocity));
  if (speed > 200) return velocity * 0.7;
  if (speed > 100) return velocity * 0.8;
  if (speed < 41) return velocity * 0.94;
  return velocity * 0.9;
}

}  // namespace

void KineticScroller::Initialise(int clientId, ScrollerHost& host, ScrollerClient* client,
                                 const ScreenScale& scale, const ScrollView& view) {
  if (host_) {
    StopMotion();
    if (pressed_) {
      host_->StopTimer(kHoldTimer);
      host_->ReleasePointer();
    }
  }
  *this = KineticScroller();
  clientId_ = clientId;
  host_ = &host;
  client_ = client;
  view_ = view;
  deadZone_ = scale.ScaleY(kDeadZone);
  surface_ = host_->CreateSurface(view_.width, view_.height);
  Redraw(false);
}

bool KineticScroller::Resize(int width, int height) {
  if (width == view_.width && height == view_.height) return false;
  view_.width = width;
  view_.height = height;
  surface_ = host_->CreateSurface(width, height);
  Redraw(false);
  if (!moving_ && !bouncing_) SnapIntoRange();
  return true;
}

bool KineticScroller::SetPaintContext(void* context, bool repaintNow) {
  if (context == context_) return false;
  context_ = context;
  stale_ = true;
  if (repaintNow) Redraw(true);
  return true;
}

void KineticScroller::Redraw(bool updateNow) {
  Paint();
  stale_ = false;
  if (updateNow) host_->Update();
}

void KineticScroller::Paint() {
  if (client_) {
    contentHeight_ =
        client_->Paint(clientId_, surface_, context_, offset_, view_.width, view_.height);
  }
  paintedOffset_ = offset_;
}

// What the bitmap holds already is moved, not painted again.
void KineticScroller::ShowOffset() {
  const int distance = offset_ - paintedOffset_;
  if (stale_ || std::abs(distance) >= view_.height) {
    Redraw(true);
    return;
  }
  if (distance != 0) {
    host_->BeginStrip(distance);
    Paint();
    host_->EndStrip();
  }
  host_->Update();
}

bool KineticScroller::BringIntoView(int contentTop, int contentBottom) {
  StopMotion();
  const int before = offset_;
  offset_ = std::max(std::min(offset_, view_.height - contentBottom), -contentTop);
  if (OutOfRange()) offset_ = Target();
  if (offset_ == before) return false;
  Redraw(true);
  return true;
}

bool KineticScroller::PointerDown(int x, int y, std::uint32_t now) {
  if (x < view_.left || x > view_.left + view_.width) return false;
  if (y < view_.top || y > view_.top + view_.height) return false;
  pressed_ = true;
  held_ = false;
  host_->CapturePointer();
  pressX_ = x;
  last_ = previous_ = earlier_ = {y - view_.top, now};

  caught_ = moving_ || bouncing_;
  if (!caught_) {
    host_->StartTimer(kHoldTimer, kHoldDelay);
    return true;
  }
  StopMotion();
  SnapIntoRange();
  return true;
}

bool KineticScroller::PointerMove(int y, std::uint32_t now) {
  if (!pressed_) return false;
  const int viewY = y - view_.top;
  if (!moving_) {
    if (std::abs(last_.y - viewY) < deadZone_) return true;
    moving_ = true;
    held_ = false;
    host_->StopTimer(kHoldTimer);
    if (client_) client_->DragStarted(clientId_);
    stale_ = true;  // the highlight
  }
  offset_ += viewY - last_.y;
  earlier_ = previous_;
  previous_ = last_;
  last_ = {viewY, now};
  ShowOffset();
  return true;
}

bool KineticScroller::PointerUp(int y) {
  if (!pressed_) return false;
  pressed_ = false;
  host_->ReleasePointer();
  if (moving_) {
    const int distance = y - view_.top - earlier_.y;
    if (std::abs(distance) > kSlowRelease) {
      Fling(distance);
    } else {
      Settle();
    }
  } else if (!caught_) {
    Tap();
  }
  return true;
}

bool KineticScroller::PointerLost() {
  if (!pressed_) return false;
  pressed_ = false;
  host_->ReleasePointer();
  if (moving_) {
    Settle();
    return true;
  }
  host_->StopTimer(kHoldTimer);
  if (held_ && client_) {
    client_->DragStarted(clientId_);
    Redraw(true);
  }
  held_ = false;
  return true;
}

// A message of a timer that has been stopped since may still arrive: it is consumed and ignored.
bool KineticScroller::Timer(unsigned id) {
  switch (id) {
    case kFlingTimer:
      if (flinging_) FlingStep();
      return true;
    case kHoldTimer:
      if (pressed_ && !moving_ && !caught_ && !held_) Hold();
      return true;
    case kBounceTimer:
      if (bouncing_) BounceStep();
      return true;
    default:
      return false;
  }
}

bool KineticScroller::BeyondBottom() const {
  return contentHeight_ > view_.height && offset_ + contentHeight_ < view_.height;
}

bool KineticScroller::OutOfRange() const {
  return offset_ >= 1 || offset_ + contentHeight_ < view_.height;
}

int KineticScroller::Target() const {
  return BeyondBottom() ? view_.height - contentHeight_ : 0;
}

void KineticScroller::SnapIntoRange() {
  if (!OutOfRange() || offset_ == Target()) return;
  offset_ = Target();
  ShowOffset();
}

void KineticScroller::StopMotion() {
  if (flinging_) host_->StopTimer(kFlingTimer);
  if (bouncing_) EndBounce();
  flinging_ = false;
  velocity_ = 0;
  moving_ = false;
}

// Two moves may share one tick count: they count as a millisecond apart.
void KineticScroller::Fling(int distance) {
  const std::uint32_t span = std::max<std::uint32_t>(last_.time - earlier_.time, 1);
  velocity_ = std::trunc(45.0 / span * distance);
  flinging_ = true;
  host_->StartTimer(kFlingTimer, kFlingPeriod);
}

// The ceiling, not the nearest pixel, in both directions is deliberate: a fling upwards runs out a
// little sooner than one downwards.
void KineticScroller::FlingStep() {
  velocity_ = Decayed(velocity_);
  offset_ += static_cast<int>(std::ceil(velocity_));
  ShowOffset();
  if (OutOfRange()) {
    StartBounce();
    EndFling();
  } else if (std::abs(Truncate(velocity_)) < kRestingSpeed) {
    EndFling();
  }
}

void KineticScroller::EndFling() {
  host_->StopTimer(kFlingTimer);
  flinging_ = false;
  if (std::abs(Truncate(velocity_)) < kRestingSpeed) moving_ = false;
  velocity_ = 0;
}

void KineticScroller::Settle() {
  if (OutOfRange()) {
    StartBounce();
  } else {
    moving_ = false;
  }
}

void KineticScroller::StartBounce() {
  bouncing_ = true;
  bounceSteps_ = kFirstBounceStep;
  host_->StartTimer(kBounceTimer, kBouncePeriod);
}

void KineticScroller::BounceStep() {
  const int step = bounceSteps_;
  if (step == 0) {
    EndBounce();
    moving_ = false;
  } else {
    --bounceSteps_;
  }
  if (OutOfRange()) offset_ = BounceOffset(step);
  ShowOffset();
}

int KineticScroller::BounceOffset(int step) const {
  constexpr double kTowardsBottom[] = {1, 0.02, 0.2, 0.5};
  constexpr double kLeftOverTop[] = {0, 0.2, 0.4, 0.5};
  if (BeyondBottom()) return offset_ + Truncate(kTowardsBottom[step] * (Target() - offset_));
  return Truncate(offset_ * kLeftOverTop[step]);
}

void KineticScroller::EndBounce() {
  host_->StopTimer(kBounceTimer);
  bouncing_ = false;
}

void KineticScroller::Hold() {
  host_->StopTimer(kHoldTimer);
  held_ = true;
  if (client_ && client_->Highlight(clientId_, pressX_, last_.y - offset_)) Redraw(true);
}

void KineticScroller::Tap() {
  host_->StopTimer(kHoldTimer);
  if (!client_) return;
  const int contentY = last_.y - offset_;
  if (!held_) {
    client_->Highlight(clientId_, pressX_, contentY);
    Redraw(true);
    host_->Wait(kTapHighlightTime);
  }
  held_ = false;
  client_->Activate(clientId_, pressX_, contentY);  // the last word: the scroller may be gone
}

}  // namespace tidewell
