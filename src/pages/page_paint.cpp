#include "pages/page_paint.h"

namespace tidewell {

LogFont PageFont(const ScreenScale& scale) {
  LogFont font;
  font.height = -scale.ScaleX(12);
  font.weight = 400;
  font.faceName = L"Tahoma";
  return font;
}

void DrawSwatch(Canvas& canvas, const Rect& area, Color color, const std::wstring& nameOfNone,
                const CanvasFont& font, const ScreenScale& scale) {
  canvas.Fill(area, kBlack);
  const Rect inside = area.Inset(scale.ScaleX(1));
  const bool isNone = color == kNoColor;
  canvas.Fill(inside, isNone ? kWhite : color);
  if (isNone) canvas.Write(inside, nameOfNone, font, kBlack, TextAlign::kCentre);
}

}  // namespace tidewell
