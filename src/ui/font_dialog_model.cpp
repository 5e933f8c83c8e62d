#include "ui/font_dialog_model.h"

#include <algorithm>

#include "resources/text/text_ids.h"

namespace tidewell {

namespace {

constexpr std::uint32_t kTooBright = 200;
constexpr Color kDarkGround = Rgb(48, 62, 84);

int LineOfSize(std::int32_t size) {
  return size >= kLeastFontSize && size <= kGreatestFontSize ? size - kLeastFontSize : -1;
}

}  // namespace

FontDialogTexts::FontDialogTexts(const Language& language)
    : title(language.Text(IDS_FONT_TITLE)),
      ok(language.Text(IDS_FONT_OK)),
      cancel(language.Text(IDS_FONT_CANCEL)),
      size(language.Text(IDS_FONT_SIZE)),
      styles{language.Text(IDS_FONT_BOLD), language.Text(IDS_FONT_ITALIC),
             language.Text(IDS_FONT_UNDERLINE), language.Text(IDS_FONT_STRIKE_OUT)},
      color(language.Text(IDS_FONT_COLOR)),
      chooseColor(language.Text(IDS_FONT_CHOOSE_COLOR)),
      automatic(language.Text(IDS_COLOR_AUTOMATIC)),
      sample(language.Text(IDS_SAMPLE_APPOINTMENT)) {}

FontDialogModel::FontDialogModel(const LogFont& font)
    : font_(font),
      sizeLine_(LineOfSize(font.height)),
      styles_{font.weight == static_cast<std::int32_t>(kFontBold), font.italic != 0,
              font.underline != 0, font.strikeOut != 0} {}

LogFont FontDialogModel::Edited() const {
  LogFont font = font_;
  font.height = kLeastFontSize + sizeLine_;
  font.weight = static_cast<std::int32_t>(Has(kBold) ? kFontBold : kFontThin);
  font.italic = Has(kItalic);
  font.underline = Has(kUnderline);
  font.strikeOut = Has(kStrikeOut);
  return font;
}

Color GroundOfSample(Color letters) {
  return Brightness(letters) > kTooBright ? kDarkGround : kWhite;
}

FontDialogLayout::FontDialogLayout(int width, int height, const ScreenScale& scale) {
  const int rowHeight = scale.ScaleX(20);
  const int indent = scale.ScaleX(10);
  int y = scale.ScaleY(8);
  const auto label = [&](int room) {
    return Rect{0, y + scale.ScaleX(3), width - scale.ScaleX(room), rowHeight};
  };
  sizeLabel = label(140);
  sizeList = {width - scale.ScaleX(135), y, scale.ScaleX(125), scale.ScaleX(100)};
  for (Rect& check : checks) {
    y += scale.ScaleY(24);
    check = {indent, y, width - 2 * indent, rowHeight};
  }
  y += scale.ScaleY(24);
  colorLabel = label(110);
  colorButton = {width - scale.ScaleX(50), y, scale.ScaleX(40), rowHeight};
  color = Rect::Between(width - scale.ScaleX(100), scale.ScaleX(128), width - scale.ScaleX(60),
                        scale.ScaleX(148));
  const int top = color.Bottom() + scale.ScaleX(4);
  const int room = height - scale.ScaleX(2) - top;
  sample = {indent, top, width - 2 * indent, std::clamp(room, 0, scale.ScaleX(48))};
}

}  // namespace tidewell
