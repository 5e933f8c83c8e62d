#include "pages/icon_layout.h"

#include <algorithm>

namespace tidewell {

namespace {

// Lengths at 96 dots per inch.
constexpr int kPickerHeight = 42;
constexpr int kUpperLine = 2;
constexpr int kLowerLine = 23;
constexpr int kLabelWidth = 98;
constexpr int kLabelHeight = 18;
constexpr int kStripLeft = 100;
constexpr int kFieldStep = 120;  // from one field of a line to the next
constexpr int kMargin = 4;

Rect PlaceStrip(const ScreenScale& scale, const Row& row, int x, int y) {
  const MarkerMode mode = row.kind == RowKind::kIcon ? MarkerMode::kOne : MarkerMode::kMany;
  return {x, y, IconMarkerModel::Width(mode, row.icons.size(), scale),
          IconMarkerModel::Height(scale)};
}

void PlaceLine(const PageMetrics& metrics, const std::vector<Row>& fields, int y,
               std::vector<ControlPlace>& places) {
  const ScreenScale& scale = metrics.scale;
  int x = 0;
  for (const Row& field : fields) {
    const int width = scale.ScaleX(kLabelWidth);
    places.push_back({field.labelId, {x, y, width, scale.ScaleY(kLabelHeight)}});
    places.push_back({field.controlId, PlaceStrip(scale, field, x + scale.ScaleX(kStripLeft), y)});
    x += scale.ScaleX(kFieldStep);
  }
}

// Each field on lines of its own, the strip at the right below its label.
int PlaceNarrowLine(const PageMetrics& metrics, const std::vector<Row>& fields, int y,
                    std::vector<ControlPlace>& places) {
  const ScreenScale& scale = metrics.scale;
  const int margin = scale.ScaleX(kMargin);
  for (const Row& field : fields) {
    const int top = y + scale.ScaleY(kUpperLine);
    places.push_back({field.labelId,
                      {margin, top, metrics.clientWidth - 2 * margin, scale.ScaleY(kLabelHeight)}});
    Rect strip = PlaceStrip(scale, field, 0, y + scale.ScaleY(kLowerLine));
    strip.left = std::max(metrics.clientWidth - margin - strip.width, 0);
    places.push_back({field.controlId, strip});
    y += scale.ScaleY(kPickerHeight);
  }
  return y;
}

}  // namespace

RowPlace PlaceTwoRowPicker(const PageMetrics& metrics, const TwoRowPicker& picker, int y) {
  const ScreenScale& scale = metrics.scale;
  RowPlace place;
  place.top = y;
  int bottom = y + scale.ScaleY(kPickerHeight);
  if (IsNarrow(metrics)) {
    bottom = PlaceNarrowLine(metrics, picker.upper, y, place.controls);
    bottom = PlaceNarrowLine(metrics, picker.lower, bottom, place.controls);
  } else {
    PlaceLine(metrics, picker.upper, y + scale.ScaleY(kUpperLine), place.controls);
    PlaceLine(metrics, picker.lower, y + scale.ScaleY(kLowerLine), place.controls);
  }
  place.height = bottom - y;
  return place;
}

}  // namespace tidewell
