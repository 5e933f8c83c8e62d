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

TEST(ColorPickerModelTest, SlidersMoveInHundredsAndLoseNothingAtTheirEnds) {
  ColorPickerModel model(kNoColor, false);
  for (const auto& [position, value] : {std::pair(0, 0u), {50, 127u}, {99, 252u}, {100, 255u}}) {
    model.MoveSlider(2, position);
    EXPECT_EQ(model.Chosen(), Rgb(255, 255, value));
  }
  for (const auto& [value, position] : {std::pair(0, 0), {127, 49}, {254, 99}, {255, 100}}) {
    EXPECT_EQ(ColorPickerModel(Rgb(0, static_cast<Color>(value), 0), true).SliderPosition(1),
              position);
  }
}

TEST(ColorPickerModelTest, TheDefaultIsThereWhereItIsAllowedUntilAColorIsChosen) {
  for (const bool isAllowed : {false, true}) {
    ColorPickerModel model(kNoColor, isAllowed);
    EXPECT_EQ(model.Chosen(), isAllowed ? kNoColor : kWhite);
    EXPECT_EQ(model.HtmlText(), L"FFFFFF");
    model.ChooseSwatch(16);
    EXPECT_EQ(model.Chosen(), 0x33FFFFu);
    model.ChooseDefault();
    EXPECT_EQ(model.Chosen(), isAllowed ? kNoColor : 0x33FFFFu);
  }
}

TEST(PickerLayoutTest, AllViewsFitTheSmallestScreensAndTheirTextsAreRead) {
  for (const auto& [width, height, dpi] : {std::tuple(240, 188, 96),
                                           {320, 188, 96},
                                           {240, 268, 96},
                                           {480, 536, 192},
                                           {640, 376, 192}}) {
    const PickerLayout layout(width, height, ScreenScale(dpi, dpi, false));
    const int side = 16 * dpi / 96;
    const int pitch = side + (width - 10 * side - 20 * dpi / 96) / 10;
    const int left = (width - 9 * pitch - side) / 2;
    EXPECT_EQ(layout.swatches[0].left, left);
    EXPECT_EQ(layout.swatches[49], (Rect{left + 9 * pitch, (10 + 4 * 26) * dpi / 96, side, side}));
    EXPECT_LE(layout.card.Bottom(), layout.tabs.top);
    EXPECT_EQ(layout.tabs.Bottom(), layout.band.top);
    EXPECT_LT(layout.sample.Right(), layout.defaultButton.left);
  }
  for (const Color highlight : {kBlack, kWhite, Rgb(10, 36, 106), Rgb(255, 200, 0), 0x808080u}) {
    const PickerShades shades(highlight);
    const auto distance = [](Color one, Color other) {
      return std::abs(static_cast<int>(Brightness(one)) - static_cast<int>(Brightness(other)));
    };
    EXPECT_GE(distance(shades.cardInk, shades.card), 127);
    EXPECT_GE(distance(shades.bandInk, shades.bandTop), 127);
    EXPECT_GE(distance(shades.bandInk, shades.bandBottom), 127);
  }
}

TEST(FontDialogModelTest, MakesThinWhatIsNotBoldAndNineOfASizeThatIsNotOffered) {
  const std::array<int, 4> cases[] = {{12, 400, 12, 100},
                                      {30, 700, 30, 700},
                                      {10, 900, 10, 100},
                                      {9, 0, 9, 100},
                                      {31, 700, 9, 700}};
  for (const auto& [height, weight, newHeight, newWeight] : cases) {
    LogFont font{.height = height, .weight = weight, .italic = 255, .faceName = L"Tahoma"};
    FontDialogModel model(font);
    font.height = newHeight;
    font.weight = newWeight;
    font.italic = 1;
    EXPECT_EQ(model.Edited(), font);
    model.ChooseSize(5);
    for (const FontStyle style : {kBold, kItalic, kUnderline, kStrikeOut}) {
      model.Set(style, style == kUnderline);
    }
    EXPECT_EQ(model.Edited(), (LogFont{15, 100, 0, 1, 0, 0, L"Tahoma"}));
  }
  EXPECT_NE(GroundOfSample(kWhite), kWhite);
  EXPECT_EQ(GroundOfSample(kRed), kWhite);
}

}  // namespace
}  // namespace tidewell
