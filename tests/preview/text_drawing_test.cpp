#include "preview/text_drawing.h"

#include <gtest/gtest.h>

#include "tests/preview/recorder.h"

namespace tidewell {
namespace {

TEST(Blend, RoundsExactly) {
  EXPECT_EQ(Blend(kWhite, kBlack, 128), Rgb(128, 128, 128));
  EXPECT_EQ(Blend(0x123456, 0xFEDCBA, 255), 0x123456u);
  EXPECT_EQ(Blend(0x123456, 0xFEDCBA, 0), 0xFEDCBAu);
  for (std::uint32_t weight = 0; weight <= 255; ++weight) {
    const std::uint32_t sum = 201 * weight + 77 * (255 - weight);
    EXPECT_EQ(Blend(Rgb(201, 0, 0), Rgb(77, 0, 0), weight), (2 * sum + 255) / 510) << weight;
  }
}

TEST(Shadow, LiesWhereItsStyleSays) {
  const RecordedFont font(12);
  const char* const expected[] = {
      "a @5,5-15",
      "a @6,5-16 #ff; a @5,5-15",
      "a @6,6-16 #ff; a @5,5-15",
      "a @5,6-15 #ff; a @5,5-15",
      "a @5,4-15 #ff; a @4,5-14 #ff; a @5,6-15 #ff; a @6,5-16 #ff; a @5,5-15",
      "a @5,5-15",
  };
  for (std::uint32_t style = 0; style < std::size(expected); ++style) {
    Recorder canvas;
    WriteShadowed(canvas, {5, 5, 10, 20}, L"a", {font, kBlack, style, kRed});
    EXPECT_EQ(canvas.Take(), expected[style]);
  }
}

// Ten letters of 6 pixels fit.
TEST(WrappedText, BreaksAfterTheBlanksThatPassTheEdge) {
  const RecordedFont font(12);
  const struct {
    const wchar_t* text;
    const char* notes;
    Rect lastLine;
  } cases[] = {
      {L"", "", {3, 7, 0, 12}},
      {L"one two", "one two @3,7-63", {3, 7, 42, 12}},
      {L"seven eigh", "seven eigh @3,7-63", {3, 7, 60, 12}},
      {L"seven eight", "seven  @3,7-63; eight @3,19-63", {3, 19, 30, 12}},
      {L"one two f five", "one two f  @3,7-63; five @3,19-63", {3, 19, 24, 12}},
      {L"one two fo x", "one two  @3,7-63; fo x @3,19-63", {3, 19, 24, 12}},
      {L"unbreakable x", "unbreakable  @3,7-63; x @3,19-63", {3, 19, 6, 12}},
      {L"a unbreakable", "a  @3,7-63; unbreakable @3,19-63", {3, 19, 66, 12}},
      {L"aaaaaaaaa bbbbbbbbb ccccccccc d",
       "aaaaaaaaa  @3,7-63; bbbbbbbbb  @3,19-63",
       {3, 43, 6, 12}},
  };
  for (const auto& c : cases) {
    Recorder canvas;
    const Rect area{3, 7, 60, 24};
    const WrappedEnd end = WriteWrapped(canvas, area, c.text, {font}, DrawPass::kDraw);
    EXPECT_EQ(canvas.Take(), c.notes);
    EXPECT_EQ(end.lastLine, c.lastLine) << c.notes;
    EXPECT_EQ(end.height, c.lastLine.Bottom() - 7) << c.notes;
    EXPECT_EQ(WriteWrapped(canvas, area, c.text, {font}, DrawPass::kMeasure).height, end.height);
    EXPECT_EQ(canvas.Take(), "");
  }
}

TEST(Title, IsCutAtAWordWhereItIsTooWide) {
  const RecordedFont font(12);
  const struct {
    const wchar_t* text;
    const char* notes;
    int width;
  } cases[] = {
      {L"", "", 0},
      {L"ten letter", "ten letter @3,7-63", 60},
      {L"nine seven x", "nine\u2026 @3,7-63", 30},
      {L"one two x y z", "one two x\u2026 @3,7-63", 60},
      {L"unbreakable x", "unbreakab\u2026 @3,7-63", 60},
      {L"eightlet\xD83D\xDE00 x", "eightlet\u2026 @3,7-63", 54},
  };
  for (const auto& c : cases) {
    Recorder canvas;
    EXPECT_EQ(WriteTitle(canvas, {3, 7, 60, 24}, c.text, {font}), (Rect{3, 7, c.width, 12}));
    EXPECT_EQ(canvas.Take(), c.notes);
  }
}

}  // namespace
}  // namespace tidewell
