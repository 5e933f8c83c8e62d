#include "pages/table_page.h"

#include <windowsx.h>

#include <utility>

#include "ui/look.h"

namespace tidewell {

namespace {

// Lengths at 96 dots per inch.
constexpr int kBottomMargin = 4;
constexpr int kRowStep = 24;
constexpr int kThumbWidth = 4;
constexpr int kThumbStrip = 10;  // the right margin, in which the thumb is taken
constexpr int kSmallestThumb = 20;

SIZE ClientSize(HWND window) {
  const RECT client = ClientArea(window);
  return {client.right, client.bottom};
}

}  // namespace

TablePage::TablePage(PageContext& context, PageTable table)
    : SettingsPage(context), table_(std::move(table)), places_(table_.size()) {}

void TablePage::OnCreate(HWND window) {
  laidOut_ = ClientSize(window);
  if (GetTabCount() > 0) BuildTab(0);
}

// Lists are slow to make, and the user sees those of one tab only.
void TablePage::OnShown(HWND) {
  for (int tab = 1; tab < GetTabCount(); ++tab) BuildTab(tab);
}

void TablePage::BuildTab(int tab) {
  TabPlace& place = places_[static_cast<std::size_t>(tab)];
  int y = Scale().ScaleY(kFirstRowTop);
  for (const Row& row : TabAt(tab).rows) {
    RowPlace& built = place.rows.emplace_back(BuildRow(row, y));
    built.height -= Scale().ScaleY(row.closer);
    y += built.height;
  }
  FitScroll(place);
  OnTabBuilt(tab);
}

void TablePage::OnTabBuilt(int) {}

RowPlace TablePage::BuildRow(const Row& row, int y) {
  const ControlState state = StateOf(row);
  switch (row.kind) {
    case RowKind::kCheck:
      return AddCheckBox(row.controlId, row.textId, state.checked, y);
    case RowKind::kList:
      return AddComboRow(row.labelId, row.controlId, row.textId, row.choices, state.selection, y,
                         false);
    case RowKind::kNumber: {
      RowPlace place =
          AddComboRow(row.labelId, row.controlId, row.textId, row.choices, kNoChoice, y, true);
      SetTextOfControl(row.controlId, state.text);
      return place;
    }
    case RowKind::kPath:
      return AddPathRow(row.labelId, row.controlId, row.clearId, row.browseId, row.textId,
                        state.text, y);
  }
  return {};
}

void TablePage::ShowTab(HWND window, int showCommand) {
  const PageTab& tab = TabAt(SelectedTab());
  ShowControlRange(window, tab.firstId, tab.lastId, showCommand);
  const ScrollRange& scroll = SelectedPlace().scroll;
  if (!scroll.Needed()) return;
  const RECT thumb = ThumbArea(scroll);
  InvalidateRect(window, &thumb, TRUE);
}

void TablePage::OnDestroy(HWND) {
  for (const PageTab& tab : table_) {
    for (const Row& row : tab.rows) {
      if (Control(row.controlId)) Store(row, ReadState(row));
    }
  }
}

ControlState TablePage::ReadState(const Row& row) const {
  ControlState state;
  switch (row.kind) {
    case RowKind::kCheck:
      state.checked = IsChecked(row.controlId);
      break;
    case RowKind::kList:
      state.selection = static_cast<int>(Send(row.controlId, CB_GETCURSEL));
      break;
    case RowKind::kNumber:
    case RowKind::kPath:
      state.text = TextOfControl(row.controlId);
      break;
  }
  return state;
}

void TablePage::OnLayout(HWND window) {
  const SIZE size = ClientSize(window);
  if (size.cx == laidOut_.cx && size.cy == laidOut_.cy) return;
  laidOut_ = size;
  for (std::size_t tab = 0; tab < table_.size(); ++tab) LayOutTab(tab);
  InvalidateRect(window, nullptr, TRUE);
}

// Everything stands anew for the client's size; what was typed, chosen and focused stays.
void TablePage::LayOutTab(std::size_t tab) {
  TabPlace& place = places_[tab];
  FontMeasure measure(Window(), TextFont());
  const PageMetrics metrics = Metrics(measure);
  int y = Scale().ScaleY(kFirstRowTop);
  for (std::size_t i = 0; i < place.rows.size(); ++i) {
    const Row& row = table_[tab].rows[i];
    place.rows[i] = PlaceRow(metrics, row, Text(row.textId), y);
    y += place.rows[i].height;
    ShowCaption(row, place.rows[i]);
  }
  FitScroll(place);
  MoveControls(place, 0);
  for (const Row& row : table_[tab].rows) {
    if (row.kind == RowKind::kPath) ShowEndOfPath(row.controlId);
  }
}

// A caption may be cut short at one width and whole at another.
void TablePage::ShowCaption(const Row& row, const RowPlace& place) const {
  const HWND caption = Control(place.controls[0].id);
  if (row.kind == RowKind::kCheck) {
    const LONG_PTR style = GetWindowLongPtrW(caption, GWL_STYLE) & ~LONG_PTR{BS_MULTILINE};
    SetWindowLongPtrW(caption, GWL_STYLE, style | (place.wraps ? BS_MULTILINE : 0));
  }
  SetWindowTextW(caption, place.caption.c_str());
}

void TablePage::FitScroll(TabPlace& place) const {
  int bottom = 0;
  if (!place.rows.empty()) bottom = place.rows.back().top + place.rows.back().height;
  place.scroll.Resize(bottom + Scale().ScaleY(kBottomMargin), ViewHeight());
}

void TablePage::MoveControls(const TabPlace& place, UINT flags) const {
  HDWP moves = BeginDeferWindowPos(16);
  for (const RowPlace& row : place.rows) {
    for (const ControlPlace& control : row.controls) {
      const HWND window = Control(control.id);
      if (!window) continue;  // one failure would undo all moves
      moves = DeferWindowPos(moves, window, nullptr, control.rect.left,
                             control.rect.top - place.scroll.Offset(), control.rect.width,
                             control.rect.height, SWP_NOZORDER | SWP_NOACTIVATE | flags);
    }
  }
  EndDeferWindowPos(moves);
}

void TablePage::Follow(bool changed) {
  if (!changed) return;
  MoveControls(SelectedPlace(), SWP_NOSIZE);
  InvalidateRect(Window(), nullptr, TRUE);
  UpdateWindow(Window());
}

void TablePage::OnFocusMoved(HWND control) {
  SettingsPage::OnFocusMoved(control);
  if (!control || control == Tabs()) return;
  const int id = GetDlgCtrlID(control);
  TabPlace& place = SelectedPlace();
  for (const RowPlace& row : place.rows) {
    for (const ControlPlace& each : row.controls) {
      if (each.id != id) continue;
      // With the room above the first row, so that the top is reached again.
      Follow(
          place.scroll.BringIntoView(row.top - Scale().ScaleY(kFirstRowTop), row.top + row.height));
      return;
    }
  }
}

bool TablePage::OnPageKey(int direction) {
  ScrollRange& scroll = SelectedPlace().scroll;
  if (!scroll.Needed()) return false;
  Follow(scroll.ScrollPage(direction, Scale().ScaleY(kRowStep)));
  return true;
}

void TablePage::OnWheel(int distance) {
  Follow(SelectedPlace().scroll.ScrollBy(-distance * 2 * Scale().ScaleY(kRowStep) / WHEEL_DELTA));
}

LRESULT TablePage::OnLButtonDown(HWND window, WPARAM, LPARAM lParam) {
  ScrollRange& scroll = SelectedPlace().scroll;
  if (!scroll.Needed()) return 0;
  const POINT point{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
  const RECT thumb = ThumbArea(scroll);
  const bool onStrip = point.x >= laidOut_.cx - Scale().ScaleX(kThumbStrip);
  if (onStrip && (point.y < thumb.top || point.y >= thumb.bottom)) {
    OnPageKey(point.y < thumb.top ? -1 : 1);
    return 0;
  }
  drag_ = onStrip ? Drag{true, point.y - static_cast<int>(thumb.top)}
                  : Drag{false, point.y + scroll.Offset()};
  SetCapture(window);
  return 0;
}

void TablePage::DragTo(int y) {
  ScrollRange& scroll = SelectedPlace().scroll;
  Follow(drag_->thumb ? scroll.DragThumb(y - drag_->grip, Scale().ScaleY(kSmallestThumb))
                      : scroll.ScrollTo(drag_->grip - y));
}

LRESULT TablePage::OnOther(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_MOUSEMOVE:
      if (drag_) DragTo(GET_Y_LPARAM(lParam));
      return 0;
    case WM_LBUTTONUP:
      if (drag_) ReleaseCapture();
      return 0;
    case WM_CAPTURECHANGED:
      drag_.reset();
      return 0;
    case WM_MOUSEWHEEL:
      OnWheel(GET_WHEEL_DELTA_WPARAM(wParam));
      return 0;
    default:
      return SettingsPage::OnOther(window, message, wParam, lParam);
  }
}

void TablePage::OnEraseBackground(HWND window, HDC dc) {
  SettingsPage::OnEraseBackground(window, dc);
  const ScrollRange& scroll = SelectedPlace().scroll;
  if (scroll.Needed()) FillPlain(dc, ThumbArea(scroll), kScrollThumb);
}

// Above the tab row.
int TablePage::ViewHeight() const {
  if (table_.empty()) return laidOut_.cy;
  return PlaceTabRow(Scale(), laidOut_.cx, laidOut_.cy).top;
}

RECT TablePage::ThumbArea(const ScrollRange& scroll) const {
  const ScrollRange::Thumb thumb = scroll.ThumbOf(Scale().ScaleY(kSmallestThumb));
  const int right = static_cast<int>(laidOut_.cx) - Scale().ScaleX(1);
  return {right - Scale().ScaleX(kThumbWidth), thumb.top, right, thumb.top + thumb.height};
}

}  // namespace tidewell
