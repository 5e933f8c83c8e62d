// A font that is made when it is first drawn with.
#pragma once

#include <memory>

#include "preview/canvas.h"

namespace tidewell {

class FontHolder {
 public:
  // The font of `description`; kept until it is released or another one is asked for.
  const CanvasFont& Get(Canvas& canvas, const LogFont& description);
  void Release() { font_.reset(); }

 private:
  LogFont description_;
  std::unique_ptr<CanvasFont> font_;
};

}  // namespace tidewell
