#include "pages/windows/row_column_body.h"

#include <span>
#include <utility>

namespace tidewell {

namespace {

// Those of a list that the rules fill come from them.
std::span<const Choice> LinesAtFirst(const Row& row) {
  if (row.stored == Stored::kByRules) return {};
  return row.choices;
}

}  // namespace

RowColumnBody::RowColumnBody(SettingsPage& page, Raise raise, const PaintedRoom& room,
                             const RowColumn& column)
    : ColumnBody(page, std::move(raise), room), column_(column) {}

std::vector<RowPlace> RowColumnBody::BuildRows(int y) {
  std::vector<RowPlace> places;
  for (const Row& row : column_.rows) {
    RowPlace& built = places.emplace_back(BuildRow(row, y));
    built.height -= Scale().ScaleY(row.reducedSpacing);
    y += built.height;
  }
  return places;
}

RowPlace RowColumnBody::BuildRow(const Row& row, int y) const {
  const ControlState state = StateOf(row);
  switch (row.kind) {
    case RowKind::kCheck:
      return Page().AddCheckBox(row.controlId, row.textId, state.checked, y);
    case RowKind::kList:
      return Page().AddComboRow(row.labelId, row.controlId, row.textId, LinesAtFirst(row),
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
      return Page().AddTextRow(row.labelId, row.controlId, row.textId, state.text, y);
    case RowKind::kNotice:
      return Page().AddNotice(row.labelId, row.textId, y);
    case RowKind::kOrder:
    case RowKind::kIcon:
    case RowKind::kIcons:
      break;  // stand in no column of rows
  }
  return {};
}

std::vector<RowPlace> RowColumnBody::PlaceRows(const PageMetrics& metrics, int y) const {
  std::vector<RowPlace> places;
  for (const Row& row : column_.rows) {
    const RowPlace& place = places.emplace_back(PlaceRow(metrics, row, Page().Text(row.textId), y));
    y += place.height;
    ShowCaption(row, place);
  }
  return places;
}

void RowColumnBody::LayOut() {
  ColumnBody::LayOut();
  for (const Row& row : column_.rows) {
    if (row.kind == RowKind::kPath) Page().ShowEndOfPath(row.controlId);
  }
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

// A caption may be cut short at one width and whole at another.
void RowColumnBody::ShowCaption(const Row& row, const RowPlace& place) const {
  const HWND caption = Page().Control(place.controls[0].id);
  if (row.kind == RowKind::kCheck) {
    const LONG_PTR style = GetWindowLongPtrW(caption, GWL_STYLE) & ~LONG_PTR{BS_MULTILINE};
    SetWindowLongPtrW(caption, GWL_STYLE, style | (place.wraps ? BS_MULTILINE : 0));
  }
  SetWindowTextW(caption, place.caption.c_str());
}

}  // namespace tidewell
