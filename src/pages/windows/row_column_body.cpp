#include "pages/windows/row_column_body.h"

#include <utility>

#include "ui/windows/look.h"
#include "win32/gdi.h"

namespace tidewell {

namespace {

// Lengths at 96 dots per inch.
constexpr int kBottomMargin = 4;
constexpr int kRowStep = 24;
constexpr int kThumbWidth = 4;
constexpr int kThumbStrip = 10;  // the right margin, in which the thumb is taken
constexpr int kSmallestThumb = 20;

}  // namespace

RowColumnBody::RowColumnBody(SettingsPage& page, Raise raise, const RowColumn& column)
    : TabBody(page, std::move(raise)), column_(column) {}

void RowColumnBody::Build() {
  int y = Scale().ScaleY(kFirstRowTop);
  for (const Row& row : column_.rows) {
    RowPlace& built = places_.emplace_back(BuildRow(row, y));
    built.height -= Scale().ScaleY(row.reducedSpacing);
    y += built.height;
  }
  FitScroll();
}

RowPlace RowColumnBody::BuildRow(const Row& row, int y) const {
  const ControlState state = StateOf(row);
  switch (row.kind) {
    case RowKind::kCheck:
      return Page().AddCheckBox(row.controlId, row.textId, state.checked, y);
    case RowKind::kList:
      return Page().AddComboRow(row.labelId, row.controlId, row.textId, row.choices,
                                state.selection, y, false);
    case RowKind::kNumber: {
      RowPlace place = Page().AddComboRow(row.labelId, row.controlId, row.textId, row.choices,
                                          kNoChoice, y, true);
      Page().SetState(row.controlId, state);
      return place;
    }
    case RowKind::kPath:
      return Page().AddPathRow(row.labelId, row.controlId, row.clearId, row.browseId, row.textId,
                               state.text, y);
    case RowKind::kText:
    case RowKind::kOrder:
      break;  // of an option's editor alone
  }
  return {};
}

void RowColumnBody::Show(int showCommand) {
  for (const RowPlace& row : places_) {
    for (const ControlPlace& control : row.controls) {
      Page().ShowControlRange(Page().Window(), control.id, control.id, showCommand);
    }
  }
  if (!scroll_.Needed()) return;
  const RECT thumb = ThumbArea();
  InvalidateRect(Page().Window(), &thumb, TRUE);
}

void RowColumnBody::Store() {
  for (const Row& row : column_.rows) {
    if (Page().Control(row.controlId)) tidewell::Store(row, Page().State(row.controlId));
  }
}

bool RowColumnBody::OnCommand(int id, int notification) {
  if (notification != BN_CLICKED) return false;
  for (const Row& row : column_.rows) {
    if (row.kind == RowKind::kPath &&
        RunPathCommand(id, row.controlId, row.clearId, row.browseId, row.browse)) {
      return true;
    }
  }
  return false;
}

// Everything stands anew for the client's size; what was typed, chosen and focused stays.
void RowColumnBody::LayOut() {
  FontMeasure measure(Page().Window(), Page().TextFont());
  const PageMetrics metrics = Page().Metrics(measure);
  int y = Scale().ScaleY(kFirstRowTop);
  for (std::size_t i = 0; i < places_.size(); ++i) {
    const Row& row = column_.rows[i];
    places_[i] = PlaceRow(metrics, row, Page().Text(row.textId), y);
    y += places_[i].height;
    ShowCaption(row, places_[i]);
  }
  FitScroll();
  MoveControls(0);
  for (const Row& row : column_.rows) {
    if (row.kind == RowKind::kPath) Page().ShowEndOfPath(row.controlId);
  }
}

// A caption may be cut short at one width and whole at another.
void RowColumnBody::ShowCaption(const Row& row, const RowPlace& place) const {
  const HWND caption = Page().Control(place.controls[0].id);
  if (row.kind == RowKind::kCheck) {
    const LONG_PTR style = GetWindowLongPtrW(caption, GWL_STYLE) & ~LONG_PTR{BS_MULTILINE};
    SetWindowLongPtrW(caption, GWL_STYLE, style | (place.wraps ? BS_MULTILINE : 0));
  }
  SetWindowTextW(caption, place.caption.c_str());
}

void RowColumnBody::FitScroll() {
  int bottom = 0;
  if (!places_.empty()) bottom = places_.back().top + places_.back().height;
  scroll_.Resize(bottom + Scale().ScaleY(kBottomMargin), Page().ViewHeight());
}

void RowColumnBody::MoveControls(UINT flags) const {
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

void RowColumnBody::Follow(bool changed) {
  if (!changed) return;
  MoveControls(SWP_NOSIZE);
  InvalidateRect(Page().Window(), nullptr, TRUE);
  UpdateWindow(Page().Window());
}

void RowColumnBody::OnFocus(HWND control) {
  const int id = GetDlgCtrlID(control);
  for (const RowPlace& row : places_) {
    for (const ControlPlace& each : row.controls) {
      if (each.id != id) continue;
      // With the room above the first row, so that the top is reached again.
      Follow(scroll_.BringIntoView(row.top - Scale().ScaleY(kFirstRowTop), row.top + row.height));
      return;
    }
  }
}

bool RowColumnBody::OnPageKey(int direction) {
  if (!scroll_.Needed()) return false;
  Follow(scroll_.ScrollPage(direction, Scale().ScaleY(kRowStep)));
  return true;
}

void RowColumnBody::OnWheel(int distance) {
  Follow(scroll_.ScrollBy(-distance * 2 * Scale().ScaleY(kRowStep) / WHEEL_DELTA));
}

void RowColumnBody::OnPointer(UINT message, POINT point) {
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

void RowColumnBody::BeginDrag(POINT point) {
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

void RowColumnBody::DragTo(int y) {
  Follow(drag_->thumb ? scroll_.DragThumb(y - drag_->grip, Scale().ScaleY(kSmallestThumb))
                      : scroll_.ScrollTo(drag_->grip - y));
}

void RowColumnBody::PaintBackground(HDC dc) {
  if (scroll_.Needed()) FillPlain(dc, ThumbArea(), kScrollThumb);
}

RECT RowColumnBody::ThumbArea() const {
  const ScrollRange::Thumb thumb = scroll_.ThumbOf(Scale().ScaleY(kSmallestThumb));
  const int right = static_cast<int>(ClientArea(Page().Window()).right) - Scale().ScaleX(1);
  return {right - Scale().ScaleX(kThumbWidth), thumb.top, right, thumb.top + thumb.height};
}

}  // namespace tidewell
