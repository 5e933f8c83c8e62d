#include "ui/windows/color_swatch.h"

#include "preview/windows/gdi_canvas.h"
#include "settings/setting.h"
#include "ui/windows/look.h"
#include "win32/gdi.h"

namespace tidewell {

void DrawColorSwatch(HDC dc, const Rect& area, int frameWidth, Color color,
                     const std::wstring& automatic) {
  const bool isAutomatic = color == kNoColor;
  RECT inside = SystemRect(area.Inset(frameWidth));
  FillPlain(dc, SystemRect(area), kBlack);
  FillPlain(dc, inside, isAutomatic ? kPaper : color);
  if (!isAutomatic) return;
  SetBkMode(dc, TRANSPARENT);
  SetTextColor(dc, kBlack);
  DrawTextW(dc, automatic.c_str(), -1, &inside, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}

}  // namespace tidewell
