// A bitmap of a resource library.
#pragma once

#include <windows.h>

#include "win32/gdi.h"

namespace tidewell {

class Picture {
 public:
  // No picture: draws nothing, has no size.
  Picture() = default;
  // No picture either when `module` is null or holds no such bitmap, or a damaged one.
  Picture(HMODULE module, int id);

  explicit operator bool() const { return static_cast<bool>(bitmap_); }
  HBITMAP Handle() const { return bitmap_.Get(); }
  int Width() const { return width_; }
  int Height() const { return height_; }

  // Draws with the picture's own transparency, if it has any.
  void Draw(HDC dc, int x, int y) const;
  void DrawCentred(HDC dc, const RECT& area) const;

 private:
  Bitmap bitmap_;
  int width_ = 0;
  int height_ = 0;
  bool hasAlpha_ = false;
};

}  // namespace tidewell
