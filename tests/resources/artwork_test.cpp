#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "resources/art/bitmap_ids.h"
#include "tests/resources/library.h"
#include "win32/gdi.h"

namespace tidewell {
namespace {

struct Picture {
  int width = 0, height = 0, bits = 0;
  std::vector<RGBQUAD> pixels;  // from the bottom left

  RGBQUAD At(int x, int y) const { return pixels[std::size_t(y * width + x)]; }
};

// Reads a bitmap of a library as the program does. Empty when there is none.
Picture PictureOf(const Library& library, int id) {
  const Bitmap bitmap(
      static_cast<HBITMAP>(LoadImageW(static_cast<HMODULE>(library->Handle()), MAKEINTRESOURCEW(id),
                                      IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION)));
  DIBSECTION section{};
  if (GetObjectW(bitmap.Get(), sizeof section, &section) != sizeof section) return {};
  Picture picture{section.dsBm.bmWidth, section.dsBm.bmHeight, section.dsBm.bmBitsPixel, {}};
  const auto* bytes = static_cast<const BYTE*>(section.dsBm.bmBits);
  for (int y = 0; y < picture.height; ++y) {
    for (int x = 0; x < picture.width; ++x) {
      const BYTE* at = bytes + y * section.dsBm.bmWidthBytes + x * picture.bits / 8;
      picture.pixels.push_back({at[0], at[1], at[2], picture.bits == 32 ? at[3] : BYTE{255}});
    }
  }
  return picture;
}

// The library and how many of its pixels one pixel at 96 dots per inch is.
class Artwork : public testing::TestWithParam<std::pair<const char*, int>> {
 protected:
  const Library library_ = OpenLibrary(GetParam().first);
  const int factor_ = GetParam().second;
};
INSTANTIATE_TEST_SUITE_P(Both, Artwork,
                         testing::Values(std::pair("LowDpiRes.dll", 1),
                                         std::pair("HighDpiRes.dll", 2)));

TEST_P(Artwork, EveryIconIsSquareWithPremultipliedAlpha) {
  for (int id = IDB_CALENDAR; id <= IDB_TOOLS; ++id) {
    const Picture icon = PictureOf(library_, id);
    ASSERT_EQ(icon.bits, 32) << id;
    EXPECT_EQ(icon.width, 28 * factor_) << id;
    ASSERT_EQ(icon.height, 28 * factor_) << id;
    EXPECT_EQ(icon.At(0, 0).rgbReserved, 0) << id << ": the corner shows the background";
    EXPECT_EQ(icon.At(icon.width / 2, icon.height / 2).rgbReserved, 255) << id;
    for (const RGBQUAD& pixel : icon.pixels) {
      ASSERT_LE(std::max({pixel.rgbRed, pixel.rgbGreen, pixel.rgbBlue}), pixel.rgbReserved) << id;
    }
  }
}

TEST_P(Artwork, TheLogoIsKeyedWithPureRedAndHasNoRedFringe) {
  const Picture logo = PictureOf(library_, IDB_LOGO);
  ASSERT_EQ(logo.bits, 24);
  EXPECT_EQ(logo.width, 144 * factor_);
  EXPECT_EQ(logo.height, 84 * factor_);
  for (const RGBQUAD& pixel : logo.pixels) {
    const bool key = pixel.rgbRed == 255 && pixel.rgbGreen == 0 && pixel.rgbBlue == 0;
    EXPECT_TRUE(key || pixel.rgbRed - std::max(pixel.rgbGreen, pixel.rgbBlue) < 40);
  }
}

}  // namespace
}  // namespace tidewell
