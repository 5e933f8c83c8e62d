// A rectangle in pixels; its right and bottom edges lie just outside of it.
#pragma once

namespace tidewell {

struct Rect {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;

  constexpr int Right() const { return left + width; }
  constexpr int Bottom() const { return top + height; }
  bool operator==(const Rect&) const = default;

  static constexpr Rect Between(int left, int top, int right, int bottom) {
    return {left, top, right - left, bottom - top};
  }
  // Smaller by `margin` on every side.
  constexpr Rect Inset(int margin) const {
    return {left + margin, top + margin, width - 2 * margin, height - 2 * margin};
  }
  constexpr Rect Moved(int right, int down) const {
    return {left + right, top + down, width, height};
  }
};

}  // namespace tidewell
