// What stands in a column, one row below another, with the room that the page's rules paint. A
// column that does not fit is scrolled by finger, thumb, wheel and focus. Windows only.
#pragma once

#include <optional>
#include <vector>

#include "pages/page_layout.h"
#include "pages/scroll_range.h"
#include "pages/windows/tab_body.h"

namespace tidewell {

class ColumnBody : public TabBody {
 public:
  using TabBody::TabBody;

  void Build() final;
  void Show(int showCommand) override;
  void LayOut() override;
  Rect PlaceOfRoom() const override;
  void OnFocus(HWND control) override;
  bool OnPageKey(int direction) override;
  void OnWheel(int distance) override;
  void OnPointer(UINT message, POINT point) override;
  void PaintBackground(HDC dc) override;

  // Where the row behind the last one would stand.
  int RowsBottom() const;

 protected:
  // Makes the rows from `y` on; each place reaches to the next row.
  virtual std::vector<RowPlace> BuildRows(int y) = 0;
  // Where the same rows stand now.
  virtual std::vector<RowPlace> PlaceRows(const PageMetrics& metrics, int y) const = 0;

 private:
  // What moves under the finger, and by what it is held.
  struct Drag {
    bool thumb;
    int grip;  // from its top to the finger
  };

  int FirstRowTop() const;
  void FitScroll();
  void MoveControls(UINT flags) const;
  // After the scroll offset changed.
  void Follow(bool changed);
  void BeginDrag(POINT point);
  void DragTo(int y);
  RECT ThumbArea() const;

  std::vector<RowPlace> places_;
  ScrollRange scroll_;
  std::optional<Drag> drag_;
};

}  // namespace tidewell
