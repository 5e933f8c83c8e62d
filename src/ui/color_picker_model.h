// Choosing one colour by its three channels, by its digits as in HTML, or among fifty swatches.
// Knows no windows.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/language.h"
#include "platform/rect.h"
#include "platform/scale.h"
#include "preview/color.h"

namespace tidewell {

// What a cancelled picker leaves in place of a colour.
inline constexpr Color kColorCancelled = 0xFFFFFFFE;

inline constexpr std::size_t kChannelCount = 3;  // red, green, blue
inline constexpr std::size_t kSwatchCount = 50;
inline constexpr std::size_t kSwatchesInRow = 10;
inline constexpr int kSliderEnd = 100;  // sliders begin at 0
inline constexpr std::size_t kLongestColorText = 256;

extern const std::array<Color, kSwatchCount> kSwatchColors;

enum class PickerView : std::uint8_t { kChannels, kHtml, kSwatches };
inline constexpr int kPickerViews = 3;

struct ColorPickerTexts {
  explicit ColorPickerTexts(const Language& language);

  std::wstring title;
  std::wstring select, cancel;
  std::array<std::wstring, kChannelCount> channels;
  std::array<std::wstring, kPickerViews> views;
  std::wstring byDefault;
  std::wstring outOfRange, outOfRangeCaption;
  std::wstring selected;
};

class ColorPickerModel {
 public:
  // kNoColor begins with the channels of white; it stays the colour where a default is allowed.
  ColorPickerModel(Color present, bool allowsDefault);

  // kNoColor for the default.
  Color Chosen() const { return color_; }
  bool AllowsDefault() const { return allowsDefault_; }

  std::uint32_t Channel(std::size_t channel) const { return channels_[channel]; }
  std::wstring ChannelText(std::size_t channel) const;
  int SliderPosition(std::size_t channel) const;
  // Six digits, red first.
  std::wstring HtmlText() const;

  void MoveSlider(std::size_t channel, int position);
  // False for a number beyond 255 or below 0: the colour stays. Anything else that is no number
  // counts as 0.
  bool EnterNumber(std::size_t channel, std::wstring_view text);
  // Two digits for each channel. From the first that is missing on, channels stay as they are.
  void EnterHtml(std::wstring_view text);
  void ChooseSwatch(std::size_t swatch);
  // Nothing happens where no default is allowed.
  void ChooseDefault();

 private:
  void Split(Color color);
  void SetChannel(std::size_t channel, std::uint32_t value);

  std::array<std::uint32_t, kChannelCount> channels_{};  // 0 to 255
  Color color_ = 0;
  bool allowsDefault_;
};

// The swatch a row above (-1) or below (1); nothing beyond the first and the last row.
std::optional<std::size_t> SwatchInNextRow(std::size_t swatch, int direction);

// The picker's areas, all made of the system's highlight colour.
struct PickerShades {
  explicit PickerShades(Color highlight);

  Color paperTop, paperBottom;  // from the top edge to the row of tabs
  Color card;                   // what all controls of the views lie on
  Color cardEdge, swatchEdge;
  Color bandTop, bandBottom;  // below the row of tabs
  Color cardInk, bandInk;     // black or white, whichever is read better
};

struct PickerLayout {
  PickerLayout(int width, int height, const ScreenScale& scale);

  std::array<Rect, kChannelCount> labels, sliders, fields;
  Rect htmlLabel, htmlField;
  std::array<Rect, kSwatchCount> swatches;
  Rect tabs;
  Rect defaultButton;
  Rect paper, card;
  Rect band;
  Rect bandLabel, sample;
};

}  // namespace tidewell
