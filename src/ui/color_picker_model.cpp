#include "ui/color_picker_model.h"

#include "platform/text.h"
#include "resources/text/text_ids.h"
#include "settings/setting.h"

namespace tidewell {

namespace {

constexpr std::uint32_t kGreatest = 255;
constexpr std::size_t kDigitsOfChannel = 2;

bool IsBlank(wchar_t unit) {
  return unit == L' ' || (unit >= L'\t' && unit <= L'\r');
}

std::optional<std::uint32_t> HexDigit(wchar_t unit) {
  if (unit >= L'0' && unit <= L'9') return unit - L'0';
  const wchar_t folded = FoldCase(unit);
  if (folded >= L'a' && folded <= L'f') return folded - L'a' + 10;
  return std::nullopt;
}

// Takes one channel off the front, as the format "%02lX" reads it: blanks, then a sign and digits,
// two units at most. Nothing where there is no digit.
std::optional<std::int32_t> TakeChannel(std::wstring_view& text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  std::wstring_view part = text.substr(0, kDigitsOfChannel);
  const bool isNegative = part.starts_with(L'-');
  if (isNegative || part.starts_with(L'+')) part.remove_prefix(1);
  std::optional<std::int32_t> value;
  while (!part.empty()) {
    const auto digit = HexDigit(part.front());
    if (!digit) break;
    value = value.value_or(0) * 16 + static_cast<std::int32_t>(*digit);
    part.remove_prefix(1);
  }
  if (!value) return std::nullopt;
  text.remove_prefix(static_cast<std::size_t>(part.data() - text.data()));
  return isNegative ? -*value : *value;
}

}  // namespace

constexpr std::array<Color, kSwatchCount> kSwatchColors = {
    0xFFFFFF, 0xFFCCCC, 0xFFCC99, 0xFFFF99, 0xFFFFCC,  //
    0x99FF99, 0x99FFFF, 0xCCFFFF, 0xCCCCFF, 0xFFCCFF,  //
    0xCCCCCC, 0xFF6666, 0xFF9966, 0xFFFF66, 0xFFFF33,  //
    0x66FF99, 0x33FFFF, 0x66FFFF, 0x9999FF, 0xFF99FF,  //
    0x999999, 0xCC0000, 0xFF6600, 0xFFCC33, 0xFFCC00,  //
    0x33CC00, 0x00CCCC, 0x3366FF, 0x6633FF, 0xCC33CC,  //
    0x555555, 0x660000, 0x993300, 0x996633, 0x666600,  //
    0x006600, 0x336666, 0x000099, 0x333399, 0x663366,  //
    0x000000, 0x330000, 0x663300, 0x663333, 0x333300,  //
    0x003300, 0x003333, 0x000066, 0x330099, 0x330033,
};

ColorPickerTexts::ColorPickerTexts(const Language& language)
    : title(language.Text(IDS_PICKER_TITLE, L"Choose Color")),
      select(language.Text(IDS_SELECT, L"Select")),
      cancel(language.Text(IDS_CANCEL, L"Cancel")),
      channels{language.Text(IDS_PICKER_RED, L"Red"), language.Text(IDS_PICKER_GREEN, L"Green"),
               language.Text(IDS_PICKER_BLUE, L"Blue")},
      views{language.Text(IDS_PICKER_CHANNELS, L"RGB Values"), L"HTML#",
            language.Text(IDS_PICKER_SWATCHES, L"Picker")},
      byDefault(language.Text(IDS_PICKER_DEFAULT, L"Default")),
      outOfRange(language.Text(IDS_PICKER_OUT_OF_RANGE, L"Valid values are between 0-255")),
      outOfRangeCaption(language.Text(IDS_PICKER_INVALID, L"Invalid value")),
      selected(language.Text(IDS_PICKER_SELECTED, L"Selected color")) {}

ColorPickerModel::ColorPickerModel(Color present, bool allowsDefault)
    : allowsDefault_(allowsDefault) {
  Split(present);
  if (present == kNoColor) ChooseDefault();
}

std::wstring ColorPickerModel::ChannelText(std::size_t channel) const {
  return FormatDecimal(static_cast<std::int32_t>(channels_[channel]));
}

int ColorPickerModel::SliderPosition(std::size_t channel) const {
  return static_cast<int>(channels_[channel] * kSliderEnd / kGreatest);
}

std::wstring ColorPickerModel::HtmlText() const {
  constexpr wchar_t kDigits[] = L"0123456789ABCDEF";
  std::wstring text;
  for (const std::uint32_t value : channels_) {
    text.push_back(kDigits[value / 16]);
    text.push_back(kDigits[value % 16]);
  }
  return text;
}

void ColorPickerModel::MoveSlider(std::size_t channel, int position) {
  SetChannel(channel, static_cast<std::uint32_t>(position) * kGreatest / kSliderEnd);
}

bool ColorPickerModel::EnterNumber(std::size_t channel, std::wstring_view text) {
  const auto value = static_cast<std::uint32_t>(ParseNumber(text.substr(0, kLongestColorText), 10));
  if (value > kGreatest) return false;
  SetChannel(channel, value);
  return true;
}

void ColorPickerModel::EnterHtml(std::wstring_view text) {
  text = text.substr(0, kLongestColorText);
  for (std::size_t channel = 0; channel < kChannelCount; ++channel) {
    const auto value = TakeChannel(text);
    if (!value) return;
    if (*value >= 0) SetChannel(channel, static_cast<std::uint32_t>(*value));
  }
}

void ColorPickerModel::ChooseSwatch(std::size_t swatch) {
  Split(kSwatchColors[swatch]);
}

void ColorPickerModel::ChooseDefault() {
  if (allowsDefault_) color_ = kNoColor;
}

void ColorPickerModel::Split(Color color) {
  for (std::size_t channel = 0; channel < kChannelCount; ++channel) {
    SetChannel(channel, color >> 8 * channel & kGreatest);
  }
}

void ColorPickerModel::SetChannel(std::size_t channel, std::uint32_t value) {
  channels_[channel] = value;
  color_ = Rgb(channels_[0], channels_[1], channels_[2]);
}

std::optional<std::size_t> SwatchInNextRow(std::size_t swatch, int direction) {
  if (direction < 0 && swatch >= kSwatchesInRow) return swatch - kSwatchesInRow;
  if (direction > 0 && swatch + kSwatchesInRow < kSwatchCount) return swatch + kSwatchesInRow;
  return std::nullopt;
}

PickerShades::PickerShades(Color highlight)
    : paperTop(Blend(kWhite, highlight, 40)),
      paperBottom(Blend(kBlack, highlight, 70)),
      card(Blend(kBlack, highlight, 55)),
      cardEdge(Blend(kBlack, highlight, 40)),
      swatchEdge(Blend(InkOn(card), card, 110)),
      bandTop(Blend(kBlack, highlight, 160)),
      bandBottom(Blend(kBlack, highlight, 190)),
      cardInk(InkOn(card)),
      bandInk(InkOn(bandTop)) {}

PickerLayout::PickerLayout(int width, int height, const ScreenScale& scale) {
  const int top = scale.ScaleY(10);
  const int rowHeight = scale.ScaleY(20);
  const int labelWidth = scale.ScaleX(48);
  for (std::size_t row = 0; row < kChannelCount; ++row) {
    const int y = top + static_cast<int>(row) * scale.ScaleY(30);
    labels[row] = {0, y + scale.ScaleY(3), labelWidth, rowHeight};
    sliders[row] = {scale.ScaleX(52), y, width - scale.ScaleX(108), rowHeight};
    fields[row] = {width - scale.ScaleX(50), y, scale.ScaleX(40), rowHeight};
  }
  htmlLabel = {0, scale.ScaleY(3) + top, labelWidth, rowHeight};
  htmlField = {scale.ScaleX(53), top, width - scale.ScaleX(63), rowHeight};

  constexpr int kColumns = kSwatchesInRow;
  const int side = scale.ScaleX(16);
  const int gap = (width - kColumns * side - scale.ScaleX(20)) / kColumns;
  const int pitch = side + gap;
  const int left = (width - kColumns * pitch + gap) / 2;
  for (std::size_t swatch = 0; swatch < kSwatchCount; ++swatch) {
    const auto row = static_cast<int>(swatch / kSwatchesInRow);
    const auto column = static_cast<int>(swatch % kSwatchesInRow);
    swatches[swatch] = {left + column * pitch, top + row * (top + scale.ScaleY(16)), side,
                        scale.ScaleY(16)};
  }

  tabs = {-scale.ScaleX(2), height - scale.ScaleX(44) + 1, width + scale.ScaleX(2),
          scale.ScaleY(20) - 1};
  defaultButton = {width - scale.ScaleX(60), height - scale.ScaleY(20), scale.ScaleX(50),
                   scale.ScaleY(17)};
  paper = Rect::Between(0, 0, width, tabs.top);
  card = Rect::Between(0, scale.ScaleY(4), width, swatches.back().Bottom() + scale.ScaleY(6));
  const int bandHeight = scale.ScaleY(24);
  band = {0, height - bandHeight, width, bandHeight};
  sample = {scale.ScaleX(100), band.top + bandHeight / 2 - scale.ScaleX(6), scale.ScaleX(50),
            scale.ScaleX(12)};
  bandLabel = Rect::Between(scale.ScaleX(6), band.top, sample.left - scale.ScaleX(4), height);
}

}  // namespace tidewell
