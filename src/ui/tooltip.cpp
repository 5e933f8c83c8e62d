#include "ui/tooltip.h"

namespace tidewell {

namespace {

constexpr Color kFrameColor = Rgb(20, 10, 20);
constexpr Color kPaperColor = Rgb(247, 246, 220);

}  // namespace

LogFont TooltipFont(const ScreenScale& scale) {
  LogFont font;
  font.height = -scale.ScaleX(12);
  font.weight = static_cast<std::int32_t>(kFontBold);
  font.faceName = L"Tahoma";
  return font;
}

Rect PlaceTooltip(Canvas& canvas, const CanvasFont& font, std::wstring_view text, int x, int y,
                  const ScreenScale& scale) {
  const int width = canvas.LineWidth(font, text) + scale.ScaleX(10);
  const int height = canvas.LineHeight(font) + scale.ScaleX(8);
  return {x - scale.ScaleX(2) - width, y - scale.ScaleX(2) - height, width, height};
}

void PaintTooltip(Canvas& canvas, const CanvasFont& font, std::wstring_view text,
                  const Rect& client, const ScreenScale& scale) {
  canvas.Fill(client, kFrameColor);
  const Rect paper = client.Inset(scale.ScaleX(1));
  canvas.Fill(paper, kPaperColor);
  canvas.Write(paper, text, font, kBlack, TextAlign::kCentre);
}

}  // namespace tidewell
