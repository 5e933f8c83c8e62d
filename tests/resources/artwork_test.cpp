#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "preview/icons.h"
#include "resources/art/bitmap_ids.h"
#include "tests/resources/library.h"
#include "win32/gdi.h"

namespace tidewell {
namespace {

struct Picture {
  int width = 0, height = 0, bits = 0;
  std::vector<RGBQUAD> pixels;  // from the bottom left
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

TEST_P(Artwork, EveryIconIsSquareWithPremultipliedAlphaAndShowsTheBackground) {
  constexpr int kEnd = IDB_FIRST_ITEM_ICON + int(kIconSymbolCount);
  for (int id = IDB_CALENDAR; id < kEnd; id = id == IDB_TOOLS ? IDB_FIRST_ITEM_ICON : id + 1) {
    const Picture icon = PictureOf(library_, id);
    const int side = (id < IDB_FIRST_ITEM_ICON ? 28 : 12) * factor_;
    ASSERT_EQ(std::tuple(icon.bits, icon.width, icon.height), std::tuple(32, side, side)) << id;
    const auto [clear, solid] = std::ranges::minmax_element(icon.pixels, {}, &RGBQUAD::rgbReserved);
    EXPECT_EQ(std::pair(clear->rgbReserved, solid->rgbReserved), std::pair(BYTE{0}, BYTE{255}))
        << id;
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
