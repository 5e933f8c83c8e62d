#include "pages/windows/column_body.h"

#include <algorithm>

#include "ui/windows/look.h"

namespace tidewell {

namespace {

// Lengths at 96 dots per inch.
constexpr int kBottomMargin = 4;
constexpr int kRowStep = 24;
constexpr int kThumbWidth = 4;
constexpr int kThumbStrip = 10;  // the right margin, in which the thumb is taken
constexpr int kSmallestThumb = 20;

}  // namespace

void ColumnBody::Build() {
  places_ = BuildRows(FirstRowTop());
  FitScroll();
}

void ColumnBody::Show(int showCommand) {
  std::vector<int> ids;
  for (const RowPlace& row : places_) {
    for (const ControlPlace& control : row.controls) ids.push_back(control.id);
  }
  ShowControls(ids, showCommand);
  if (!scroll_.Needed()) return;
  const RECT thumb = ThumbArea();
  InvalidateRect(Page().Window(), &thumb, TRUE);
}

// Everything stands anew for the client's size; what was typed, chosen and focused stays.
void ColumnBody::LayOut() {
  places_ = PlaceRows(Page().Metrics(), FirstRowTop());
  FitScroll();
  MoveControls(0);
}

int ColumnBody::FirstRowTop() const {
  const PaintedRoom& room = Room();
  const bool begins = room.place == PaintedRoom::Place::kAbove;
  return Scale().ScaleY(kFirstRowTop + (begins ? room.height : 0));
}

int ColumnBody::RowsBottom() const {
  return places_.empty() ? 0 : places_.back().top + places_.back().height;
}

Rect ColumnBody::PlaceOfRoom() const {
  const bool follows = Room().place == PaintedRoom::Place::kBelow;
  return TabBody::PlaceOfRoom().Moved(0, (follows ? RowsBottom() : 0) - scroll_.Offset());
}

void ColumnBody::FitScroll() {
  const int bottom = std::max(RowsBottom() + Scale().ScaleY(kBottomMargin),
                              PlaceOfRoom().Bottom() + scroll_.Offset());
  scroll_.Resize(bottom, Page().ViewHeight());
}

void ColumnBody::MoveControls(UINT flags) const {
  HDWP moves = BeginDeferWindowPos(16);
  for (const RowPlace& row : places_) {
    for (const ControlPlace& control : row.controls) {
      const HWND window = Page().Control(control.id);
      if (!window) continue;  // one failure would undo all moves
      moves = DeferWindowPos(moves, window, nullptr, control.rect.left,
                             control.rect.top - scroll_.Offset(), control.rect.width,
                             control.rect.height, SWP_NOZORDER | SWP_NOACTIVATE | flags);
    }
  }
  EndDeferWindowPos(moves);
}

void ColumnBody::Follow(bool changed) {
  if (!changed) return;
  MoveControls(SWP_NOSIZE);
  InvalidateRect(Page().Window(), nullptr, TRUE);
  UpdateWindow(Page().Window());
}

void ColumnBody::OnFocus(HWND control) {
  const int id = GetDlgCtrlID(control);
  for (const RowPlace& row : places_) {
    for (const ControlPlace& each : row.controls) {
      if (each.id != id) continue;
      // The first row with all that is above it, so that the top is reached again.
      const int top = &row == &places_.front() ? 0 : row.top - Scale().ScaleY(kFirstRowTop);
      Follow(scroll_.BringIntoView(top, row.top + row.height));
      return;
    }
  }
}

bool ColumnBody::OnPageKey(int direction) {
  if (!scroll_.Needed()) return false;
  Follow(scroll_.ScrollPage(direction, Scale().ScaleY(kRowStep)));
  return true;
}

void ColumnBody::OnWheel(int distance) {
  Follow(scroll_.ScrollBy(-distance * 2 * Scale().ScaleY(kRowStep) / WHEEL_DELTA));
}

void ColumnBody::OnPointer(UINT message, POINT point) {
  switch (message) {
    case WM_LBUTTONDOWN:
      if (scroll_.Needed()) BeginDrag(point);
      break;
    case WM_MOUSEMOVE:
      if (drag_) DragTo(point.y);
      break;
    case WM_LBUTTONUP:
      if (drag_) ReleaseCapture();
      break;
    case WM_CAPTURECHANGED:
      drag_.reset();
      break;
  }
}

void ColumnBody::BeginDrag(POINT point) {
  const RECT thumb = ThumbArea();
  const bool onStrip = point.x >= ClientArea(Page().Window()).right - Scale().ScaleX(kThumbStrip);
  if (onStrip && (point.y < thumb.top || point.y >= thumb.bottom)) {
    OnPageKey(point.y < thumb.top ? -1 : 1);
    return;
  }
  drag_ = onStrip ? Drag{true, point.y - static_cast<int>(thumb.top)}
                  : Drag{false, point.y + scroll_.Offset()};
  SetCapture(Page().Window());
}

void ColumnBody::DragTo(int y) {
  Follow(drag_->thumb ? scroll_.DragThumb(y - drag_->grip, Scale().ScaleY(kSmallestThumb))
                      : scroll_.ScrollTo(drag_->grip - y));
}

void ColumnBody::PaintBackground(HDC dc) {
  if (scroll_.Needed()) FillPlain(dc, ThumbArea(), kScrollThumb);
}

RECT ColumnBody::ThumbArea() const {
  const ScrollThumb thumb = scroll_.ThumbOf(Scale().ScaleY(kSmallestThumb));
  const int right = static_cast<int>(ClientArea(Page().Window()).right) - Scale().ScaleX(1);
  return {right - Scale().ScaleX(kThumbWidth), thumb.top, right, thumb.top + thumb.height};
}

}  // namespace tidewell
