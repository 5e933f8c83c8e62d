#include "ui/color_picker_model.h"

#include <gtest/gtest.h>

#include "ui/font_dialog_model.h"

namespace tidewell {
namespace {

constexpr Color kBegin = 0x332211;

TEST(ColorPickerModelTest, TakesFromTypedTextWhatIsAColor) {
  const std::pair<std::wstring, std::wstring> html[] = {{L"FF8000", L"FF8000"},
                                                        {L"ff80", L"FF8033"},
                                                        {L"F", L"0F2233"},
                                                        {L"", L"112233"},
                                                        {L" 1 2\t3", L"010203"},
                                                        {L"-1+2ff", L"1102FF"},
                                                        {L"#FF8000", L"112233"},
                                                        {L"FFzz00", L"FF2233"},
                                                        {L"+", L"112233"},
                                                        {L"FF800077", L"FF8000"},
                                                        {std::wstring(10'000, L'a'), L"AAAAAA"}};
  for (const auto& [text, shown] : html) {
    ColorPickerModel model(kBegin, true);
    model.EnterHtml(text);
    EXPECT_EQ(model.HtmlText(), shown) << text.size();
  }
  const std::pair<std::wstring, int> numbers[] = {
      {L"255", 255}, {L"256", -1}, {L"-1", -1},     {L" +7", 7},
      {L"", 0},      {L"x", 0},    {L"12 Uhr", 12}, {std::wstring(10'000, L'9'), -1}};
  for (const auto& [text, value] : numbers) {
    ColorPickerModel model(kBegin, true);
    EXPECT_EQ(model.EnterNumber(0, text), value >= 0);
    EXPECT_EQ(model.Chosen(), value < 0 ? kBegin : 0x332200u + static_cast<Color>(value));
  }
}

TEST(ColorPickerModelTest, TheDefaultStaysWhereItIsAllowedUntilAChannelMoves) {
  for (const bool isAllowed : {false, true}) {
    ColorPickerModel model(kNoColor, isAllowed);
    EXPECT_EQ(model.Chosen(), isAllowed ? kNoColor : kWhite);
    for (const auto& [position, value, back] :
         {std::tuple(0, 0u, 0), {50, 127u, 49}, {99, 252u, 98}, {100, 255u, 100}}) {
      model.MoveSlider(2, position);
      EXPECT_EQ(model.Chosen(), Rgb(255, 255, value));
      EXPECT_EQ(model.SliderPosition(2), back);
    }
    model.ChooseDefault();
    EXPECT_EQ(model.Chosen(), isAllowed ? kNoColor : kWhite);
  }
}

TEST(PickerLayoutTest, EveryViewFitsTheSmallestScreens) {
  for (const auto& [width, height, dpi] :
       {std::tuple(240, 188, 96), {320, 188, 96}, {480, 536, 192}, {640, 376, 192}}) {
    const PickerLayout layout(width, height, ScreenScale(dpi, dpi, false));
    const int side = 16 * dpi / 96;
    const int pitch = side + (width - 10 * side - 20 * dpi / 96) / 10;
    const int left = (width - 9 * pitch - side) / 2;
    EXPECT_EQ(layout.swatches[49], (Rect{left + 9 * pitch, 114 * dpi / 96, side, side}));
    EXPECT_LE(layout.card.Bottom(), layout.tabs.top);
    EXPECT_EQ(layout.tabs.Bottom(), layout.band.top);
    EXPECT_LT(layout.sample.Right(), layout.defaultButton.left);
  }
}

TEST(FontDialogModelTest, MakesThinWhatIsNotBoldAndNineOfASizeThatIsNotOffered) {
  for (const auto& [height, weight, newHeight, newWeight] :
       {std::tuple(12, 400, 12, 100), {30, 700, 30, 700}, {9, 900, 9, 100}, {31, 0, 9, 100}}) {
    LogFont font{.height = height, .weight = weight, .italic = 255, .faceName = L"Tahoma"};
    FontDialogModel model(font);
    EXPECT_EQ(model.Edited(), (LogFont{newHeight, newWeight, 1, 0, 0, 0, L"Tahoma"}));
    model.ChooseSize(5);
    for (int style = kBold; style <= kStrikeOut; ++style) {
      model.Set(static_cast<FontStyle>(style), style == kUnderline);
    }
    EXPECT_EQ(model.Edited(), (LogFont{15, 100, 0, 1, 0, 0, L"Tahoma"}));
  }
}

}  // namespace
}  // namespace tidewell
