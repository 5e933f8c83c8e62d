#include "preview/font_holder.h"

namespace tidewell {

const CanvasFont& FontHolder::Get(Canvas& canvas, const LogFont& description) {
  if (!font_ || description_ != description) {
    font_ = canvas.MakeFont(description);
    description_ = description;
  }
  return *font_;
}

}  // namespace tidewell
