#include "platform/text.h"

#include <gtest/gtest.h>

#include "platform/scale.h"

namespace tidewell {
namespace {

TEST(Text, NumbersReadAsA32BitSystemReadsThem) {
  struct Case {
    const wchar_t* text;
    int base;
    std::int32_t number;
  };
  const Case cases[] = {
      {L"", 10, 0},
      {L"abc", 10, 0},
      {L" \t42\n", 10, 42},
      {L"-1\r", 10, -1},
      {L"+7x", 10, 7},
      {L"2147483647", 10, 2147483647},
      {L"2147483648", 10, 2147483647},
      {L"-2147483648", 10, INT32_MIN},
      {L"-99999999999999999999", 10, INT32_MIN},
      {L"0x50", 0, 80},
      {L"0x", 0, 0},
      {L"010", 0, 8},
      {L"09", 0, 0},
      {L"0x50", 10, 0},
      {L"12-3", 10, 12},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(ParseNumber(c.text, c.base), c.number) << std::string(c.text, c.text + 3) << c.base;
  }
}

TEST(Text, NumbersPrintSigned) {
  EXPECT_EQ(FormatDecimal(0), L"0");
  EXPECT_EQ(FormatDecimal(-1), L"-1");
  EXPECT_EQ(FormatDecimal(INT32_MIN), L"-2147483648");
}

TEST(Text, CaseIsFoldedInTheAlphabetsOfTheShippedLanguagesAndTheirNeighbours) {
  EXPECT_TRUE(EqualIgnoringCase(L"\u00C4\u00D6\u00DC", L"\u00E4\u00F6\u00FC"));
  EXPECT_TRUE(EqualIgnoringCase(L"\u0416\u0401", L"\u0436\u0451"));
  EXPECT_TRUE(EqualIgnoringCase(L"\u03A9\u0141\u017D", L"\u03C9\u0142\u017E"));
  EXPECT_FALSE(EqualIgnoringCase(L"\u00D7", L"\u00F7"));  // the multiplication and division signs
  EXPECT_FALSE(EqualIgnoringCase(L"a", L"ab"));
  EXPECT_LT(CompareFolded(L"abc", L"ABD"), 0);
}

TEST(Text, BytesAreLittleEndianAndAnOddLastOneIsDropped) {
  const auto bytes = BytesOf(L"A\u20AC\xD83D");
  ASSERT_EQ(bytes.size(), 6u);
  EXPECT_EQ(bytes[2], std::byte{0xAC});
  EXPECT_EQ(bytes[3], std::byte{0x20});
  EXPECT_EQ(TextOfBytes(bytes), L"A\u20AC\xD83D");
  EXPECT_EQ(TextOfBytes(std::span(bytes).first(5)), L"A\u20AC");
}

TEST(ScreenScale, RoundsTheMagnitudeHalfUp) {
  struct Case {
    int dpi;
    bool vgaMode;
    int length;
    bool keep;
    int pixels;
  };
  const Case cases[] = {
      {96, false, 1, false, 1},    {131, false, 1, false, 1},  {192, false, 1, false, 2},
      {131, false, 40, false, 55}, {131, false, 40, true, 40}, {135, false, 40, true, 40},
      {136, false, 40, true, 57},  {144, false, 1, false, 2},  {144, false, -1, false, -2},
      {143, false, -1, false, -1}, {96, true, 40, true, 80},   {192, true, 40, false, 80},
  };
  for (const Case& c : cases) {
    const ScreenScale scale(c.dpi, 96, c.vgaMode);
    EXPECT_EQ(scale.ScaleX(c.length, c.keep), c.pixels) << c.dpi << " " << c.length;
    const ScreenScale turned(96, c.dpi, c.vgaMode);
    EXPECT_EQ(turned.ScaleY(c.length, c.keep), c.pixels) << c.dpi << " " << c.length;
  }
}

}  // namespace
}  // namespace tidewell
