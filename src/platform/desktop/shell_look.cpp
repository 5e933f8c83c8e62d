#include "platform/desktop/shell_look.h"

#include <algorithm>
#include <cmath>

#include "win32/tahoma.h"

namespace tidewell {

namespace {

constexpr COLORREF kStripTop = RGB(62, 82, 108);
constexpr COLORREF kStripBottom = RGB(36, 50, 70);
constexpr COLORREF kPressedTop = RGB(86, 114, 150);
constexpr COLORREF kPressedBottom = RGB(62, 86, 118);

// One pixel of a 32-bit picture whose channels are already multiplied with their coverage.
DWORD PremultipliedPixel(COLORREF colour, double coverage) {
  const auto scaled = [&](double channel) {
    return static_cast<DWORD>(std::lround(channel * coverage));
  };
  return scaled(255) << 24 | scaled(GetRValue(colour)) << 16 | scaled(GetGValue(colour)) << 8 |
         scaled(GetBValue(colour));
}

}  // namespace

const ScreenScale& ShellScale() {
  static const ScreenScale scale = [] {
    const WindowDc screen(nullptr);
    return ScreenScale(GetDeviceCaps(screen.Dc(), LOGPIXELSX),
                       GetDeviceCaps(screen.Dc(), LOGPIXELSY), false);
  }();
  return scale;
}

Font ShellFont(int height, int weight) {
  return TahomaFont(ShellScale().ScaleY(height), weight);
}

void DrawStripBackground(HDC dc, const RECT& area, bool pressed) {
  FillVertically(dc, area, pressed ? kPressedTop : kStripTop,
                 pressed ? kPressedBottom : kStripBottom);
  const RECT edge{area.left, area.bottom - 1, area.right, area.bottom};
  FillPlain(dc, edge, kStripEdge);
}

void DrawCircle(HDC dc, const RECT& around, int thickness, COLORREF colour) {
  const int size = around.right - around.left;
  BITMAPINFO info{};
  info.bmiHeader = {sizeof info.bmiHeader, size, -size, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  void* bits = nullptr;
  const Bitmap bitmap(CreateDIBSection(dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
  if (!bitmap) return;

  const double middle = (size - 1) / 2.0;
  const double outer = size / 2.0;
  const double inner = outer - thickness;
  auto* pixel = static_cast<DWORD*>(bits);
  for (int y = 0; y < size; ++y) {
    for (int x = 0; x < size; ++x) {
      const double distance = std::hypot(x - middle, y - middle);
      const double covered = std::clamp(outer - distance, 0.0, 1.0);
      const double hole = inner > 0 ? std::clamp(inner - distance, 0.0, 1.0) : 0.0;
      *pixel++ = PremultipliedPixel(colour, covered - hole);
    }
  }
  DrawWithAlpha(dc, around.left, around.top, bitmap.Get(), size, size);
}

}  // namespace tidewell
