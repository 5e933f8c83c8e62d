// Design lengths, given at 96 dots per inch, in pixels of this device's screen.
#pragma once

namespace tidewell {

class ScreenScale {
 public:
  constexpr ScreenScale() = default;
  // Horizontal and vertical dots per inch; `vgaMode` doubles every length instead.
  constexpr ScreenScale(int dpiX, int dpiY, bool vgaMode)
      : dpiX_(dpiX), dpiY_(dpiY), vgaMode_(vgaMode) {}

  // `keepAtLowDpi` leaves a length as it is below 136 dots per inch.
  constexpr int ScaleX(int length, bool keepAtLowDpi = false) const {
    return Scale(length, dpiX_, keepAtLowDpi);
  }
  constexpr int ScaleY(int length, bool keepAtLowDpi = false) const {
    return Scale(length, dpiY_, keepAtLowDpi);
  }

 private:
  constexpr int Scale(int length, int dpi, bool keepAtLowDpi) const {
    if (vgaMode_) return 2 * length;
    if (keepAtLowDpi && dpi < kLowDpiLimit) return length;
    const int magnitude = ((length < 0 ? -length : length) * dpi + 48) / 96;
    return length < 0 ? -magnitude : magnitude;
  }

  static constexpr int kLowDpiLimit = 136;
  int dpiX_ = 96;
  int dpiY_ = 96;
  bool vgaMode_ = false;
};

}  // namespace tidewell
