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
constexpr int kLabelMargin = 4;    // from the screen's edge to the letters of a label
constexpr int kLeastLabel = 60;    // a narrower caption column is none
constexpr int kControlLeft = 135;  // and the controls begin here
constexpr int kControlWidth = 125;
constexpr int kDropHeight = 100;  // of an open drop-down list with its box
constexpr int kClearLeft = 105;
constexpr int kBrowseLeft = 55;
constexpr int kButtonWidth = 45;
constexpr int kBesideButtons =
    120;                        // a field on the buttons' line is this much narrower than its page
constexpr int kBoxWidth = 20;   // a check box with the gap to its text
constexpr int kWrappedGap = 3;  // below a label of several lines
constexpr int kTabRowHeight = 22;

constexpr wchar_t kEllipsis = 0x2026;
constexpr wchar_t kSoftHyphen = 0x00AD;

std::wstring ShortenWord(TextMeasure& measure, const std::wstring& word, int width) {
  std::size_t length = word.size();
  while (length > 1 && measure.Width(word.substr(0, length) + kEllipsis) > width) --length;
  return word.substr(0, length) + kEllipsis;
}

std::wstring WithoutSoftHyphens(std::wstring text) {
  std::erase(text, kSoftHyphen);
  return text;
}

std::wstring FitWord(TextMeasure& measure, const std::wstring& word, int width) {
  std::wstring whole = WithoutSoftHyphens(word);
  if (measure.Width(whole) <= width) return whole;
  for (std::size_t end = word.size(); end > 0;) {
    end = word.rfind(kSoftHyphen, end - 1);
    if (end == std::wstring::npos) break;
    const std::wstring head = WithoutSoftHyphens(word.substr(0, end)) + L'-';
    if (measure.Width(head) > width) continue;
    return head + L' ' + FitWord(measure, word.substr(end + 1), width);
  }
  return ShortenWord(measure, whole, width);
}

// Fits a caption into a column; returns the height of its lines, at least `oneLine`.
int FitCaption(const PageMetrics& metrics, const std::wstring& text, int width, int oneLine,
               RowPlace& row) {
  row.caption = WithoutSoftHyphens(text);
  if (metrics.text.Width(row.caption) <= width) return oneLine;
  row.caption = FitWords(metrics.text, text, width);
  const int height = metrics.text.Height(row.caption, width);
  row.wraps = height > metrics.text.Height(L"X", width);
  return std::max(oneLine, height);
}

// The label of a row whose control stands in the right column, at the row's top, or below the label
// on a narrow page. The row, which has its control's height, grows with it. Returns the control's
// place, `controlHeight` high.
Rect PlaceLabel(const PageMetrics& metrics, int id, const std::wstring& text, int controlHeight,
                RowPlace& row) {
  const ScreenScale& scale = metrics.scale;
  const int margin = scale.ScaleX(kLabelMargin);
  const int drop = scale.ScaleY(kLabelDrop);
  const int oneLine = scale.ScaleY(kControlHeight);
  if (IsNarrow(metrics)) {
    const int side = scale.ScaleX(kMargin);
    const int labelWidth = metrics.clientWidth - margin - side;
    const int height = drop + FitCaption(metrics, text, labelWidth, oneLine, row);
    row.controls.push_back({id, {margin, row.top + drop, labelWidth, height - drop}});
    row.height += height;
    const int width = std::min(scale.ScaleX(kControlWidth), metrics.clientWidth - 2 * side);
    return {metrics.clientWidth - side - width, row.top + height, width, controlHeight};
  }
  // A label that needs all of its column is narrowed to keep its distance.
  const int column = metrics.clientWidth - scale.ScaleX(kLabelRight);
  const int height = FitCaption(metrics, text, column - margin, oneLine, row);
  const int left = row.wraps ? margin : 0;
  row.controls.push_back({id, {left, row.top + drop, column - left, height}});
  if (row.wraps) row.height = std::max(row.height, drop + height + scale.ScaleY(kWrappedGap));
  return {metrics.clientWidth - scale.ScaleX(kControlLeft), row.top, scale.ScaleX(kControlWidth),
          controlHeight};
}

// A label and one control, `controlHeight` high at 96 dots per inch.
RowPlace PlaceLabelledRow(const PageMetrics& metrics, int labelId, int controlId,
                          const std::wstring& caption, int y, int controlHeight) {
  RowPlace row;
  row.top = y;
  row.height = metrics.scale.ScaleY(kRowHeight);
  const Rect place =
      PlaceLabel(metrics, labelId, caption, metrics.scale.ScaleY(controlHeight), row);
  row.controls.push_back({controlId, place});
  return row;
}

// The buttons that clear a path and browse for one.
void PlacePathButtons(const PageMetrics& metrics, int clearId, int browseId, int y, RowPlace& row) {
  const ScreenScale& scale = metrics.scale;
  const int right = metrics.clientWidth;
  const int width = scale.ScaleX(kButtonWidth);
  const int height = scale.ScaleY(kControlHeight);
  row.controls.push_back({clearId, {right - scale.ScaleX(kClearLeft), y, width, height}});
  row.controls.push_back({browseId, {right - scale.ScaleX(kBrowseLeft), y, width, height}});
}

}  // namespace

bool IsNarrow(const ScreenScale& scale, int clientWidth) {
  return clientWidth < scale.ScaleX(kLabelRight + kLeastLabel);
}

std::wstring FitWords(TextMeasure& measure, const std::wstring& text, int width) {
  std::wstring fitted;
  for (std::size_t start = 0; start <= text.size();) {
    const std::size_t end = std::min(text.find(L' ', start), text.size());
    const std::wstring word = text.substr(start, end - start);
    if (start > 0) fitted += L' ';
    fitted += FitWord(measure, word, width);
    start = end + 1;
  }
  return fitted;
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
  return PlaceLabelledRow(metrics, labelId, comboId, caption, y, kDropHeight);
}

RowPlace PlacePathRow(const PageMetrics& metrics, int labelId, int editId, int clearId,
                      int browseId, const std::wstring& caption, int y) {
  const ScreenScale& scale = metrics.scale;
  RowPlace row;
  row.top = y;
  row.height = scale.ScaleY(2 * kRowHeight);
  const Rect place = PlaceLabel(metrics, labelId, caption, scale.ScaleY(kControlHeight), row);
  row.controls.push_back({editId, place});
  PlacePathButtons(metrics, clearId, browseId, place.top + scale.ScaleY(kRowHeight), row);
  return row;
}

RowPlace PlaceTextRow(const PageMetrics& metrics, int labelId, int editId,
                      const std::wstring& caption, int y) {
  return PlaceLabelledRow(metrics, labelId, editId, caption, y, kControlHeight);
}

RowPlace PlaceNotice(const PageMetrics& metrics, int labelId, const std::wstring& text, int y) {
  const ScreenScale& scale = metrics.scale;
  RowPlace row;
  row.top = y;
  const int width = metrics.clientWidth - scale.ScaleX(2 * kMargin);
  row.height = FitCaption(metrics, text, width, scale.ScaleY(kControlHeight), row);
  row.controls = {{labelId, {scale.ScaleX(kMargin), y, width, row.height}}};
  return row;
}

RowPlace PlacePathEdit(const PageMetrics& metrics, int editId, int clearId, int browseId, int y) {
  const ScreenScale& scale = metrics.scale;
  const bool narrow = IsNarrow(metrics);
  const int width = metrics.clientWidth - scale.ScaleX(narrow ? 2 * kMargin : kBesideButtons);
  const int rowHeight = scale.ScaleY(kRowHeight);
  RowPlace row;
  row.top = y;
  row.height = narrow ? 2 * rowHeight : rowHeight;
  row.controls = {{editId, {scale.ScaleX(kMargin), y, width, scale.ScaleY(kControlHeight)}}};
  PlacePathButtons(metrics, clearId, browseId, narrow ? y + rowHeight : y, row);
  return row;
}

Rect PlaceOf(const ScreenScale& scale, int width, int height, const DesignPlace& place) {
  Rect rect;
  rect.left = scale.ScaleX(place.left) + (place.left < 0 ? width : 0);
  rect.top = scale.ScaleY(place.top) + (place.top < 0 ? height : 0);
  rect.width = scale.ScaleX(place.width) + (place.width > 0 ? 0 : width);
  rect.height = scale.ScaleY(place.height) + (place.height > 0 ? 0 : height - rect.top);
  rect.width = std::max(rect.width, 0);
  rect.height = std::max(rect.height, 0);
  return rect;
}

std::vector<ControlPlace> PlaceButtons(const PageMetrics& metrics,
                                       const std::vector<ItemButton>& buttons) {
  std::vector<ControlPlace> places;
  bool fit = true;
  for (const ItemButton& button : buttons) {
    places.push_back({button.id, PlaceOf(metrics, button.place)});
    fit = fit && places.back().rect.left >= 0;
  }
  if (fit) return places;
  const int width = metrics.clientWidth / static_cast<int>(places.size());
  int left = 0;
  for (ControlPlace& place : places) {
    place.rect.left = left;
    place.rect.width = width;
    left += width;
  }
  return places;
}

Rect PlaceList(const ScreenScale& scale, int clientWidth, int clientHeight, int yOffset) {
  const int offset = scale.ScaleY(yOffset);
  return {scale.ScaleX(kMargin), scale.ScaleY(68) + offset, clientWidth - scale.ScaleX(2 * kMargin),
          std::max(clientHeight - scale.ScaleY(96) - offset, scale.ScaleY(2 * kControlHeight))};
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
    case RowKind::kText:
      place = PlaceTextRow(metrics, row.labelId, row.controlId, caption, y);
      break;
    case RowKind::kNotice:
      place = PlaceNotice(metrics, row.labelId, caption, y);
      break;
    case RowKind::kOrder:
    case RowKind::kIcon:
    case RowKind::kIcons:
      break;  // stand in no column
  }
  place.height -= metrics.scale.ScaleY(row.reducedSpacing);
  return place;
}

}  // namespace tidewell
