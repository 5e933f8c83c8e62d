#include "pages/page_layout.h"

#include <algorithm>

namespace tidewell {

namespace {

// Lengths at 96 dots per inch.
constexpr int kMargin = 10;
constexpr int kControlHeight = 20;
constexpr int kRowHeight = 24;
constexpr int kLabelDrop = 3;      // a label's text stands level with the text of its control
constexpr int kLabelRight = 140;   // the caption column ends this far from the right
constexpr int kControlLeft = 135;  // and the controls begin here
constexpr int kControlWidth = 125;
constexpr int kDropHeight = 100;  // of an open drop-down list with its box
constexpr int kClearLeft = 105;
constexpr int kBrowseLeft = 55;
constexpr int kButtonWidth = 45;
constexpr int kBoxWidth = 20;   // a check box with the gap to its text
constexpr int kWrappedGap = 3;  // below a label of several lines
constexpr int kTabRowHeight = 22;

constexpr wchar_t kEllipsis = 0x2026;

std::wstring ShortenWord(TextMeasure& measure, const std::wstring& word, int width) {
  std::size_t length = word.size();
  while (length > 1 && measure.Width(word.substr(0, length) + kEllipsis) > width) --length;
  return word.substr(0, length) + kEllipsis;
}

// Fits a caption into a column; returns the height of its lines, at least `oneLine`.
int FitCaption(const PageMetrics& metrics, const std::wstring& text, int width, int oneLine,
               RowPlace& row) {
  row.caption = text;
  if (metrics.text.Width(text) <= width) return oneLine;
  row.caption = ShortenWords(metrics.text, text, width);
  const int height = metrics.text.Height(row.caption, width);
  row.wraps = height > metrics.text.Height(L"X", width);
  return std::max(oneLine, height);
}

// The label of a row whose control stands in the right column. The row grows with it.
void PlaceLabel(const PageMetrics& metrics, int id, const std::wstring& text, RowPlace& row) {
  const ScreenScale& scale = metrics.scale;
  const int width = metrics.clientWidth - scale.ScaleX(kLabelRight);
  const int height = FitCaption(metrics, text, width, scale.ScaleY(kControlHeight), row);
  const int drop = scale.ScaleY(kLabelDrop);
  row.controls.push_back({id, {0, row.top + drop, width, height}});
  if (row.wraps) row.height = std::max(row.height, drop + height + scale.ScaleY(kWrappedGap));
}

}  // namespace

std::wstring ShortenWords(TextMeasure& measure, const std::wstring& text, int width) {
  std::wstring shortened;
  for (std::size_t start = 0; start <= text.size();) {
    const std::size_t end = std::min(text.find(L' ', start), text.size());
    const std::wstring word = text.substr(start, end - start);
    if (start > 0) shortened += L' ';
    shortened += measure.Width(word) <= width ? word : ShortenWord(measure, word, width);
    start = end + 1;
  }
  return shortened;
}

RowPlace PlaceCheckRow(const PageMetrics& metrics, int id, const std::wstring& caption, int y) {
  const ScreenScale& scale = metrics.scale;
  RowPlace row;
  row.top = y;
  const int width = metrics.clientWidth - scale.ScaleX(2 * kMargin);
  const int textWidth = width - scale.ScaleX(kBoxWidth);
  const int height = FitCaption(metrics, caption, textWidth, scale.ScaleY(kControlHeight), row);
  row.controls = {{id, {scale.ScaleX(kMargin), y, width, height}}};
  row.height = height - scale.ScaleY(kControlHeight) + scale.ScaleY(kRowHeight);
  return row;
}

RowPlace PlaceComboRow(const PageMetrics& metrics, int labelId, int comboId,
                       const std::wstring& caption, int y) {
  const ScreenScale& scale = metrics.scale;
  RowPlace row;
  row.top = y;
  row.height = scale.ScaleY(kRowHeight);
  PlaceLabel(metrics, labelId, caption, row);
  row.controls.push_back({comboId,
                          {metrics.clientWidth - scale.ScaleX(kControlLeft), y,
                           scale.ScaleX(kControlWidth), scale.ScaleY(kDropHeight)}});
  return row;
}

RowPlace PlacePathRow(const PageMetrics& metrics, int labelId, int editId, int clearId,
                      int browseId, const std::wstring& caption, int y) {
  const ScreenScale& scale = metrics.scale;
  RowPlace row;
  row.top = y;
  row.height = scale.ScaleY(2 * kRowHeight);
  PlaceLabel(metrics, labelId, caption, row);
  const int right = metrics.clientWidth;
  const int height = scale.ScaleY(kControlHeight);
  const int below = y + scale.ScaleY(kRowHeight);
  const int button = scale.ScaleX(kButtonWidth);
  row.controls.push_back(
      {editId, {right - scale.ScaleX(kControlLeft), y, scale.ScaleX(kControlWidth), height}});
  row.controls.push_back({clearId, {right - scale.ScaleX(kClearLeft), below, button, height}});
  row.controls.push_back({browseId, {right - scale.ScaleX(kBrowseLeft), below, button, height}});
  return row;
}

std::vector<ControlPlace> PlacePathEdit(const PageMetrics& metrics, int editId, int clearId,
                                        int browseId, int y) {
  const ScreenScale& scale = metrics.scale;
  const int right = metrics.clientWidth;
  const int height = scale.ScaleY(kControlHeight);
  const int button = scale.ScaleX(kButtonWidth);
  return {{editId, {scale.ScaleX(kMargin), y, right - scale.ScaleX(120), height}},
          {clearId, {right - scale.ScaleX(kClearLeft), y, button, height}},
          {browseId, {right - scale.ScaleX(kBrowseLeft), y, button, height}}};
}

Rect PlaceList(const ScreenScale& scale, int clientWidth, int clientHeight, int yOffset) {
  const int offset = scale.ScaleY(yOffset);
  return {scale.ScaleX(kMargin), scale.ScaleY(68) + offset, clientWidth - scale.ScaleX(2 * kMargin),
          clientHeight - scale.ScaleY(96) - offset};
}

Rect PlaceTabRow(const ScreenScale& scale, int clientWidth, int clientHeight) {
  const int height = scale.ScaleX(kTabRowHeight);
  return {scale.ScaleX(-2), clientHeight - height + 1, clientWidth + scale.ScaleX(2), height - 1};
}

RowPlace PlaceRow(const PageMetrics& metrics, const Row& row, const std::wstring& caption, int y) {
  RowPlace place;
  switch (row.kind) {
    case RowKind::kCheck:
      place = PlaceCheckRow(metrics, row.controlId, caption, y);
      break;
    case RowKind::kList:
    case RowKind::kNumber:
      place = PlaceComboRow(metrics, row.labelId, row.controlId, caption, y);
      break;
    case RowKind::kPath:
      place =
          PlacePathRow(metrics, row.labelId, row.controlId, row.clearId, row.browseId, caption, y);
      break;
  }
  place.height -= metrics.scale.ScaleY(row.closer);
  return place;
}

}  // namespace tidewell
