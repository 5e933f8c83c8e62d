#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cstdint>
#include <vector>

#include "platform/windows/imaging.h"
#include "preview/icons.h"
#include "preview/windows/decode_image.h"
#include "resources/art/bitmap_ids.h"
#include "tests/resources/library.h"
#include "win32/bitmaps.h"
#include "win32/gdi.h"

namespace tidewell {
namespace {

struct Picture {
  int width = 0, height = 0, bits = 0;
  std::vector<RGBQUAD> pixels;  // from the bottom left
};

// Empty of no bitmap.
Picture PictureIn(HBITMAP bitmap) {
  BITMAP facts{};
  GetObjectW(bitmap, sizeof facts, &facts);
  Picture picture{facts.bmWidth, facts.bmHeight, facts.bmBitsPixel, {}};
  picture.pixels.resize(std::size_t(picture.width * picture.height));
  BITMAPINFO info{};
  info.bmiHeader = {sizeof info.bmiHeader, picture.width, picture.height, 1, 32, 0, 0, 0, 0, 0, 0};
  GetDIBits(BitmapReader::Dc(), bitmap, 0, UINT(picture.height), picture.pixels.data(), &info,
            DIB_RGB_COLORS);
  return picture;
}

Picture PictureOf(const Library& library, int id) {
  return PictureIn(LoadBitmapResource(static_cast<HMODULE>(library->Handle()), WORD(id)).Get());
}

void ExpectTransparentIcon(const Picture& icon, int side) {
  ASSERT_EQ(std::tuple(icon.bits, icon.width, icon.height), std::tuple(32, side, side));
  const auto [clear, solid] = std::ranges::minmax_element(icon.pixels, {}, &RGBQUAD::rgbReserved);
  EXPECT_EQ(std::pair(clear->rgbReserved, solid->rgbReserved), std::pair(BYTE{0}, BYTE{255}));
  for (const RGBQUAD& pixel : icon.pixels) {
    ASSERT_LE(std::max({pixel.rgbRed, pixel.rgbGreen, pixel.rgbBlue}), pixel.rgbReserved);
  }
}

// The library and how many of its pixels one pixel at 96 dots per inch is.
class Artwork : public testing::TestWithParam<std::pair<const char*, int>> {
 protected:
  Picture OfSet(const std::string& set, int side, IconSymbol symbol) {
    const std::wstring file = std::to_wstring(side) + L"/" + SymbolName(symbol) + L".png";
    const auto image = DecodeImage(files_, imaging_.Factory(),
                                   Widen(INSTALL_FOLDER "/IconSets/" + set + "/") + file);
    return PictureIn(image ? image->Handle() : nullptr);
  }

  const Library library_ = OpenLibrary(GetParam().first);
  const int factor_ = GetParam().second;

 private:
  WindowsFiles files_;
  Imaging imaging_;
};
INSTANTIATE_TEST_SUITE_P(Both, Artwork,
                         testing::Values(std::pair("LowDpiRes.dll", 1),
                                         std::pair("HighDpiRes.dll", 2)));

TEST_P(Artwork, EveryIconIsSquareWithPremultipliedAlphaAndShowsTheBackground) {
  for (int id = IDB_CALENDAR; id <= IDB_TOOLS; ++id) {
    SCOPED_TRACE(id);
    ExpectTransparentIcon(PictureOf(library_, id), 28 * factor_);
  }
}

// The colours of half transparent pixels are rounded one way or the other.
std::uint32_t Unrounded(const RGBQUAD& pixel) {
  return std::bit_cast<std::uint32_t>(pixel) & (pixel.rgbReserved == 255 ? ~0u : 0xFF000000);
}

TEST_P(Artwork, EachSetHasEverySymbolAndTheLibraryThoseOfTheFirst) {
  const int side = 12 * factor_;
  for (int i = 0; i < int(kIconSymbolCount); ++i) {
    const auto symbol = IconSymbol(i);
    SCOPED_TRACE(Utf8(SymbolName(symbol)));
    const Picture icon = PictureOf(library_, IDB_FIRST_ITEM_ICON + i);
    ExpectTransparentIcon(icon, side);
    EXPECT_TRUE(std::ranges::equal(icon.pixels, OfSet("Tidewell", side, symbol).pixels, {},
                                   Unrounded, Unrounded));
    ExpectTransparentIcon(OfSet("Tidewell", 18, symbol), 18);
    ExpectTransparentIcon(OfSet("Mono", side, symbol), side);
    ExpectTransparentIcon(OfSet("Mono", 18, symbol), 18);
  }
}

TEST_P(Artwork, TheLogoHasItsSize) {
  const Picture logo = PictureOf(library_, IDB_LOGO);
  EXPECT_EQ(std::tuple(logo.bits, logo.width, logo.height),
            std::tuple(24, 144 * factor_, 84 * factor_));
}

}  // namespace
}  // namespace tidewell
