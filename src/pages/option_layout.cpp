#include "pages/option_layout.h"

#include <algorithm>
#include <iterator>

namespace tidewell {

namespace {

constexpr int kTop = kFirstRowTop;
constexpr int kEditorTop = kTop + 42;  // below a tip of three lines

}  // namespace

std::vector<ControlPlace> PlaceOptionEditor(const PageMetrics& metrics,
                                            const OptionEditor& editor) {
  const std::pair<int, DesignPlace> wanted[] = {
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
  std::vector<ControlPlace> places;
  for (const auto& [id, place] : wanted) {
    if (id) places.push_back({id, PlaceOf(metrics, place)});
  }
  return places;
}

Rect PlaceOptionList(const PageMetrics& metrics) {
  return PlaceList(metrics.scale, metrics.clientWidth, metrics.clientHeight, kOptionListOffset);
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
      break;  // no option
  }
  return ids;
}

}  // namespace tidewell
