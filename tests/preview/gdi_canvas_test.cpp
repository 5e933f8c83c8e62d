// The canvas on real bitmaps, pixel by pixel.
#include "preview/windows/gdi_canvas.h"

#include <gtest/gtest.h>

#include <functional>

#include "preview/text_drawing.h"

namespace tidewell {
namespace {

constexpr Color kGreen = Rgb(0, 255, 0);

class Gdi : public testing::Test {
 protected:
  static constexpr int kWidth = 60;
  static constexpr int kHeight = 24;

  // A new bitmap, white all over, as something is drawn on it.
  MemoryBitmap Drawn(const std::function<void(Canvas&)>& draw) {
    MemoryBitmap bitmap(screen_.Dc(), kWidth, kHeight);
    GdiCanvas canvas(bitmap.Dc());
    canvas.Fill({0, 0, kWidth, kHeight}, kWhite);
    draw(canvas);
    return bitmap;
  }
  // From colours, from the top left; 24 bits have none for their transparency.
  std::unique_ptr<Image> Picture(int width, WORD bits, const std::vector<DWORD>& pixels) {
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, width, -1, 1, bits, BI_RGB, 0, 0, 0, 0, 0};
    BYTE* bytes = nullptr;
    const HBITMAP bitmap = CreateDIBSection(screen_.Dc(), &info, DIB_RGB_COLORS,
                                            reinterpret_cast<void**>(&bytes), nullptr, 0);
    for (const DWORD pixel : pixels) {
      for (int shift = 0; shift < bits; shift += 8) *bytes++ = static_cast<BYTE>(pixel >> shift);
    }
    return GdiImage::Of(Bitmap(bitmap));
  }

  const WindowDc screen_{nullptr};
  GdiCanvas measure_{screen_.Dc()};
  // Without smoothed edges, so that every pixel is one of the colours asked for.
  const LogFont description_{12, 400, 0, 0, 0, NONANTIALIASED_QUALITY, L"Tahoma"};
  const std::unique_ptr<CanvasFont> font_ = measure_.MakeFont(description_);
};

// Where shadows fall, the listing of rows tells.
TEST_F(Gdi, ATextAndItsShadowStandInTheirColors) {
  const auto count = [](const MemoryBitmap& bitmap, Color color) {
    int pixels = 0;
    for (int x = 0; x < kWidth; ++x) {
      for (int y = 4; y < 20; ++y) pixels += GetPixel(bitmap.Dc(), x, y) == color;
    }
    return pixels;
  };
  const auto draw = [&](std::uint32_t style) {
    return Drawn([&](Canvas& canvas) {
      WriteShadowed(canvas, {4, 4, 50, 16}, L"W&g", {*font_, kBlack, style, kRed});
    });
  };
  const int text = count(draw(0), kBlack);
  EXPECT_GT(text, 20);
  EXPECT_EQ(count(draw(0), kWhite), kWidth * 16 - text);
  EXPECT_EQ(count(draw(2), kBlack), text);
  EXPECT_GT(count(draw(2), kRed), 20);
}

TEST_F(Gdi, OverlaysBlend) {
  for (const std::uint32_t weight : {0u, 1u, 128u, 200u, 255u}) {
    for (const Color below : {kBlack, Rgb(80, 90, 170), Rgb(243, 243, 243)}) {
      const MemoryBitmap drawn = Drawn([&](Canvas& canvas) {
        canvas.Fill({0, 0, 20, 20}, below);
        canvas.Overlay({2, 2, 10, 10}, Rgb(190, 190, 190), weight);
      });
      EXPECT_EQ(GetPixel(drawn.Dc(), 2, 2), Blend(Rgb(190, 190, 190), below, weight));
      EXPECT_EQ(GetPixel(drawn.Dc(), 11, 11), Blend(Rgb(190, 190, 190), below, weight));
      EXPECT_EQ(GetPixel(drawn.Dc(), 12, 12), below);
    }
  }
}

TEST_F(Gdi, ImagesKeepTheirTransparency) {
  // Bitmaps have blue in the low byte. The third pixel is all but the transparent colour.
  const std::unique_ptr<Image> opaque = Picture(3, 24, {0x0000FF, 0xFF0000, 0xFE0000});
  const std::unique_ptr<Image> decoded = Picture(3, 32, {0xFF0000FF, 0xFFFF0000, 0xFFFE0000});
  const std::unique_ptr<Image> clear = Picture(3, 32, {0xFF0000FF, 0x00000000, 0x80800000});
  ASSERT_TRUE(opaque && decoded && clear);
  EXPECT_EQ(GdiImage::Of(Bitmap()), nullptr);
  const MemoryBitmap drawn = Drawn([&](Canvas& canvas) {
    canvas.Fill({0, 0, kWidth, kHeight}, kGreen);
    canvas.Draw(*opaque, 0, 0);
    canvas.Draw(*clear, 0, 1);
    canvas.DrawPart(*opaque, {1, 0, 2, 1}, 0, 2, kRed);
    const auto offscreen = canvas.MakeOffscreen(9, 9);
    offscreen->Fill({0, 0, 9, 9}, kGreen);
    offscreen->DrawPart(*decoded, {0, 0, 3, 1}, 0, 0, kRed);
    canvas.Copy(*offscreen, {0, 3, 9, 1});
  });
  const Color expected[4][3] = {{Rgb(0, 0, 255), kRed, Rgb(254, 0, 0)},
                                {Rgb(0, 0, 255), kGreen, Rgb(128, 127, 0)},
                                {kGreen, Rgb(254, 0, 0), kGreen},
                                {Rgb(0, 0, 255), kGreen, Rgb(254, 0, 0)}};
  for (int y = 0; y < 4; ++y) {
    for (int x = 0; x < 3; ++x) EXPECT_EQ(GetPixel(drawn.Dc(), x, y), expected[y][x]) << x << y;
  }
}

}  // namespace
}  // namespace tidewell
