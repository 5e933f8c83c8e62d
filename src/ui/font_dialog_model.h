// Editing one font of the Today item: its size, its style and its colour. Knows no windows.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "platform/language.h"
#include "platform/rect.h"
#include "platform/scale.h"
#include "preview/color.h"
#include "settings/setting.h"

namespace tidewell {

inline constexpr int kLeastFontSize = 10;
inline constexpr int kGreatestFontSize = 30;

// In the order of their check boxes.
enum FontStyle : std::uint8_t { kBold, kItalic, kUnderline, kStrikeOut };
inline constexpr std::size_t kFontStyles = 4;

struct FontDialogTexts {
  explicit FontDialogTexts(const Language& language);

  std::wstring title;
  std::wstring ok, cancel;
  std::wstring size;
  std::array<std::wstring, kFontStyles> styles;
  std::wstring color, chooseColor;
  std::wstring automatic;  // stands for kNoColor
  std::wstring sample;
};

class FontDialogModel {
 public:
  explicit FontDialogModel(const LogFont& font);

  // The line of the list of sizes; -1 for a size that it does not offer.
  int SizeLine() const { return sizeLine_; }
  bool Has(FontStyle style) const { return styles_[style]; }
  void ChooseSize(int line) { sizeLine_ = line; }
  void Set(FontStyle style, bool isOn) { styles_[style] = isOn; }

  // What OK makes of the font. The Today item draws thin (100) what is not bold, and a size that
  // the list does not offer ends one below the least.
  LogFont Edited() const;

 private:
  LogFont font_;
  int sizeLine_;
  std::array<bool, kFontStyles> styles_;
};

// White, but where letters of that colour would hardly be seen on it.
Color GroundOfSample(Color letters);

struct FontDialogLayout {
  FontDialogLayout(int width, int height, const ScreenScale& scale);

  Rect sizeLabel;
  Rect sizeList;  // as high as it is when open
  std::array<Rect, kFontStyles> checks;
  Rect colorLabel, colorButton;
  Rect color;   // black, its inside in the colour
  Rect sample;  // for a line of text; without height where there is no room
};

}  // namespace tidewell
