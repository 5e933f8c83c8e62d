// Where the controls of a page stand: a column of rows in a page's client area.
#pragma once

#include <string>
#include <vector>

#include "pages/page_rows.h"
#include "platform/rect.h"
#include "platform/scale.h"

namespace tidewell {

// How large a text is in the page's font, in pixels.
class TextMeasure {
 public:
  virtual ~TextMeasure() = default;
  virtual int Width(const std::wstring& text) = 0;
  // Of the lines that it takes when it is wrapped at `width`.
  virtual int Height(const std::wstring& text, int width) = 0;
};

struct PageMetrics {
  ScreenScale scale;
  int clientWidth;
  int clientHeight;
  TextMeasure& text;
};

// A place in the client area at 96 dots per inch. A negative `left` or `top` counts from the right
// or the bottom edge. A `width` that is not positive is the client's width less it; a `height` that
// is not positive reaches to that far above the bottom.
struct DesignPlace {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
};
// In pixels; never smaller than nothing.
Rect PlaceOf(const ScreenScale& scale, int width, int height, const DesignPlace& place);
inline Rect PlaceOf(const PageMetrics& metrics, const DesignPlace& place) {
  return PlaceOf(metrics.scale, metrics.clientWidth, metrics.clientHeight, place);
}

struct ControlPlace {
  int id;
  Rect rect;

  bool operator==(const ControlPlace&) const = default;
};

// A button, or a label, beside a list.
struct ItemButton {
  int id;
  int textId;
  DesignPlace place;
};
// Buttons on one line share the width of a page that is too narrow for them.
std::vector<ControlPlace> PlaceButtons(const PageMetrics& metrics,
                                       const std::vector<ItemButton>& buttons);

struct RowPlace {
  std::wstring caption;  // shortened where a word is wider than its column
  bool wraps = false;
  int top = 0;
  int height = 0;  // to the next row
  std::vector<ControlPlace> controls;
};

// Too narrow for two columns.
bool IsNarrow(const ScreenScale& scale, int clientWidth);
inline bool IsNarrow(const PageMetrics& metrics) {
  return IsNarrow(metrics.scale, metrics.clientWidth);
}

// Rows by themselves, at `y`, in pixels. A caption that is too long for its column wraps and makes
// its row higher. Where a page is too narrow for two columns, a label stands above its control.
RowPlace PlaceCheckRow(const PageMetrics& metrics, int id, const std::wstring& caption, int y);
RowPlace PlaceComboRow(const PageMetrics& metrics, int labelId, int comboId,
                       const std::wstring& caption, int y);
RowPlace PlacePathRow(const PageMetrics& metrics, int labelId, int editId, int clearId,
                      int browseId, const std::wstring& caption, int y);
RowPlace PlaceTextRow(const PageMetrics& metrics, int labelId, int editId,
                      const std::wstring& caption, int y);
RowPlace PlaceNotice(const PageMetrics& metrics, int labelId, const std::wstring& text, int y);
// An edit and two buttons on one line, on a narrow page on two, without a caption.
RowPlace PlacePathEdit(const PageMetrics& metrics, int editId, int clearId, int browseId, int y);
// A list that fills the page below `yOffset`, a length at 96 dots per inch. On a page that is too
// low for it, it keeps the height of two rows.
Rect PlaceList(const ScreenScale& scale, int clientWidth, int clientHeight, int yOffset);
Rect PlaceTabRow(const ScreenScale& scale, int clientWidth, int clientHeight);

// A row of a table, its spacing included.
RowPlace PlaceRow(const PageMetrics& metrics, const Row& row, const std::wstring& caption, int y);

inline constexpr int kFirstRowTop = 8;  // at 96 dots per inch

// The words of a text that are wider than `width`, each divided at a soft hyphen, or cut short with
// an ellipsis where it has none. No other soft hyphen is left.
std::wstring FitWords(TextMeasure& measure, const std::wstring& text, int width);

}  // namespace tidewell
