#include "platform/text.h"

#include <gtest/gtest.h>

#include "platform/scale.h"

namespace tidewell {
namespace {

TEST(Text, NumbersReadAsA32BitSystemReadsThem) {
  const struct {
    const wchar_t* text;
    int base;
    std::int32_t number;
  } cases[] = {
      {L"", 10, 0},
      {L"abc", 10, 0},
      {L" \t42\n", 10, 42},
      {L"-1\r", 10, -1},
      {L"+7x", 10, 7},
      {L"12-3", 10, 12},
      {L"2147483648", 10, INT32_MAX},
      {L"-99999999999999999999", 10, INT32_MIN},
      {L"0x50", 0, 80},
      {L"0x", 0, 0},
      {L"010", 0, 8},
      {L"09", 0, 0},
      {L"0x50", 10, 0},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(ParseNumber(c.text, c.base), c.number) << c.number << " in base " << c.base;
  }
  for (const std::int32_t number : {0, -1, INT32_MIN, INT32_MAX}) {
    EXPECT_EQ(ParseNumber(FormatDecimal(number), 10), number);
  }
}

TEST(Text, CaseIsFoldedInTheAlphabetsOfTheShippedLanguagesAndTheirNeighbours) {
  EXPECT_TRUE(
      EqualIgnoringCase(L"\u00C4\u00D6\u00DC\u0416\u0401", L"\u00E4\u00F6\u00FC\u0436\u0451"));
  EXPECT_TRUE(EqualIgnoringCase(L"\u03A9\u0141\u017D", L"\u03C9\u0142\u017E"));
  EXPECT_FALSE(EqualIgnoringCase(L"\u00D7", L"\u00F7"));  // the multiplication and division signs
  EXPECT_FALSE(EqualIgnoringCase(L"a", L"ab"));
  EXPECT_LT(CompareFolded(L"abc", L"ABD"), 0);
}

TEST(Text, BytesAreLittleEndianAndAnOddLastOneIsDropped) {
  const auto bytes = BytesOf(L"\u20AC\xD83D");
  ASSERT_EQ(bytes.size(), 4u);
  EXPECT_EQ(bytes[0], std::byte{0xAC});
  EXPECT_EQ(TextOfBytes(bytes), L"\u20AC\xD83D");
  EXPECT_EQ(TextOfBytes(std::span(bytes).first(3)), L"\u20AC");
}

TEST(ScreenScale, RoundsTheMagnitudeHalfUp) {
  const struct {
    int dpi;
    bool vgaMode;
    int length;
    bool keep;
    int pixels;
  } cases[] = {
      {131, false, 40, false, 55}, {131, false, 40, true, 40}, {135, false, 40, true, 40},
      {136, false, 40, true, 57},  {144, false, 1, false, 2},  {144, false, -1, false, -2},
      {143, false, -1, false, -1}, {96, true, 40, true, 80},   {192, true, 40, false, 80},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(ScreenScale(c.dpi, 96, c.vgaMode).ScaleX(c.length, c.keep), c.pixels) << c.dpi;
    EXPECT_EQ(ScreenScale(96, c.dpi, c.vgaMode).ScaleY(c.length, c.keep), c.pixels) << c.dpi;
  }
}

}  // namespace
}  // namespace tidewell
