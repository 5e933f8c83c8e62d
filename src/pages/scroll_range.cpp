#include "pages/scroll_range.h"

#include <algorithm>

namespace tidewell {

bool ScrollRange::Resize(int contentHeight, int viewHeight) {
  contentHeight_ = contentHeight;
  viewHeight_ = std::max(viewHeight, 0);
  return ScrollTo(offset_);
}

bool ScrollRange::ScrollTo(int offset) {
  const int clamped = std::clamp(offset, 0, Last());
  if (clamped == offset_) return false;
  offset_ = clamped;
  return true;
}

bool ScrollRange::ScrollPage(int direction, int rowHeight) {
  return ScrollBy(direction * std::max(viewHeight_ - rowHeight, rowHeight));
}

bool ScrollRange::BringIntoView(int top, int bottom) {
  if (top < offset_ || bottom - top > viewHeight_) return ScrollTo(top);
  if (bottom > offset_ + viewHeight_) return ScrollTo(bottom - viewHeight_);
  return false;
}

bool ScrollRange::DragThumb(int top, int shortest) {
  const int room = viewHeight_ - ThumbOf(shortest).height;
  if (!Needed() || room <= 0) return false;
  return ScrollTo((top * Last() + room / 2) / room);
}

}  // namespace tidewell
