// How far a page whose rows do not fit is scrolled, and where its thumb stands. Pixels throughout.
#pragma once

#include "ui/scroll_thumb.h"

namespace tidewell {

class ScrollRange {
 public:
  // Each of these tells whether the offset changed.
  bool Resize(int contentHeight, int viewHeight);
  bool ScrollTo(int offset);
  bool ScrollBy(int distance) { return ScrollTo(offset_ + distance); }
  // Up (-1) or down (1) by a view less one row.
  bool ScrollPage(int direction, int rowHeight);
  // Scrolls no further than needed; what is higher than the view shows its top.
  bool BringIntoView(int top, int bottom);
  // The thumb's top, in the view, as the finger has it.
  bool DragThumb(int top, int shortest);

  int Offset() const { return offset_; }
  bool Needed() const { return contentHeight_ > viewHeight_; }
  int ViewHeight() const { return viewHeight_; }
  // In the view, over its whole height; nothing when all of the content is seen.
  ScrollThumb ThumbOf(int shortest) const {
    return PlaceThumb(viewHeight_, viewHeight_, contentHeight_, offset_, shortest);
  }

 private:
  int Last() const { return Needed() ? contentHeight_ - viewHeight_ : 0; }

  int contentHeight_ = 0;
  int viewHeight_ = 0;
  int offset_ = 0;
};

}  // namespace tidewell
