#include "pages/option_layout.h"

#include <algorithm>
#include <iterator>

namespace tidewell {

namespace {

constexpr int kTop = kFirstRowTop;
constexpr int kEditorTop = kTop + 42;  // below a tip of three lines
constexpr int kOffset = 8;
constexpr int kNarrowOffset = 34;  // below two lines of the editor
constexpr int kArrow = 23;         // of a drop-down list, with the gap before it
constexpr int kLabelMargin = 4;    // on either side of a label's letters

using WantedPlaces = std::vector<std::pair<int, DesignPlace>>;

WantedPlaces WidePlaces(const OptionEditor& editor) {
  return {
      {editor.tipId, {10, kTop, -20, 38}},
      {editor.labelId, {0, kEditorTop + 3, 105, 20}},
      {editor.listId, {108, kEditorTop, -118, 100}},
      {editor.checkId, {10, kEditorTop, -20, 20}},
      {editor.pathId, {10, kEditorTop, -115, 20}},
      {editor.clearPathId, {-95, kEditorTop, 40, 20}},
      {editor.browseId, {-50, kEditorTop, 40, 20}},
      {editor.textId, {10, kEditorTop, -70, 20}},
      {editor.clearTextId, {-50, kEditorTop, 40, 20}},
      {editor.orderId, {10, kTop, 160, 62}},
      {editor.upId, {175, kTop, 55, 20}},
      {editor.downId, {175, kTop + 25, 55, 20}},
  };
}

// What stands side by side on other pages stands on two lines.
WantedPlaces NarrowPlaces(const OptionEditor& editor) {
  constexpr int kSecondLine = kEditorTop + 22;
  return {
      {editor.tipId, {4, kTop, -8, 38}},
      {editor.labelId, {4, kEditorTop, -8, 20}},
      {editor.listId, {4, kSecondLine, -8, 100}},
      {editor.checkId, {4, kEditorTop, -8, 42}},
      {editor.pathId, {4, kEditorTop, -8, 20}},
      {editor.clearPathId, {-102, kSecondLine, 48, 20}},
      {editor.browseId, {-52, kSecondLine, 48, 20}},
      {editor.textId, {4, kEditorTop, -8, 20}},
      {editor.clearTextId, {-52, kSecondLine, 48, 20}},
      {editor.orderId, {4, kTop, -8, 62}},
      {editor.upId, {-102, kSecondLine, 48, 20}},
      {editor.downId, {-52, kSecondLine, 48, 20}},
  };
}

}  // namespace

std::vector<ControlPlace> PlaceOptionEditor(const PageMetrics& metrics,
                                            const OptionEditor& editor) {
  std::vector<ControlPlace> places;
  for (const auto& [id, place] : IsNarrow(metrics) ? NarrowPlaces(editor) : WidePlaces(editor)) {
    if (id) places.push_back({id, PlaceOf(metrics, place)});
  }
  return places;
}

int OptionListOffset(const PageMetrics& metrics) {
  return IsNarrow(metrics) ? kNarrowOffset : kOffset;
}

Rect PlaceOptionList(const PageMetrics& metrics) {
  return PlaceList(metrics.scale, metrics.clientWidth, metrics.clientHeight,
                   OptionListOffset(metrics));
}

std::vector<ControlPlace> PlaceChoices(const PageMetrics& metrics, const OptionEditor& editor,
                                       const std::wstring& label,
                                       const std::vector<std::wstring>& choices) {
  std::vector<ControlPlace> places;
  for (const ControlPlace& part : PlaceOptionEditor(metrics, editor)) {
    if (part.id == editor.labelId || part.id == editor.listId) places.push_back(part);
  }
  if (IsNarrow(metrics)) return places;
  const int margins = metrics.scale.ScaleX(2 * kLabelMargin);
  int needed = 0;
  for (const std::wstring& choice : choices) {
    needed = std::max(needed, metrics.text.Width(choice) + metrics.scale.ScaleX(kArrow));
  }
  Rect& list = places[1].rect;
  const int most = std::max(list.left - metrics.text.Width(label) - margins, 0);
  const int more = std::clamp(needed - list.width, 0, most);
  places[0].rect.width -= more;
  list.left -= more;
  list.width += more;
  return places;
}

int StateControlOf(const Option& option, const OptionEditor& editor) {
  switch (option.editor.kind) {
    case RowKind::kCheck:
      return editor.checkId;
    case RowKind::kList:
    case RowKind::kNumber:
      return editor.listId;
    case RowKind::kPath:
      return editor.pathId;
    case RowKind::kText:
      return editor.textId;
    case RowKind::kOrder:
      return editor.orderId;
    case RowKind::kIcon:
    case RowKind::kIcons:
    case RowKind::kNotice:
      break;  // no option
  }
  return 0;
}

std::vector<int> ControlsOf(const Option& option, const OptionEditor& editor) {
  std::vector<int> ids;
  if (option.tipTextId) ids.push_back(editor.tipId);
  switch (option.editor.kind) {
    case RowKind::kCheck:
      ids.push_back(editor.checkId);
      break;
    case RowKind::kList:
    case RowKind::kNumber:
      ids.insert(ids.end(), {editor.labelId, editor.listId});
      break;
    case RowKind::kPath:
      ids.insert(ids.end(), {editor.pathId, editor.clearPathId, editor.browseId});
      break;
    case RowKind::kText:
      ids.insert(ids.end(), {editor.textId, editor.clearTextId});
      break;
    case RowKind::kOrder:
      ids.insert(ids.end(), {editor.orderId, editor.upId, editor.downId});
      break;
    case RowKind::kIcon:
    case RowKind::kIcons:
    case RowKind::kNotice:
      break;  // no option
  }
  return ids;
}

}  // namespace tidewell
