// A small rectangle that shows a colour. Windows only.
#pragma once

#include <windows.h>

#include <string>

#include "platform/rect.h"
#include "preview/color.h"

namespace tidewell {

// Black, its inside in the colour; white for kNoColor, with a text in the font that `dc` has.
void DrawColorSwatch(HDC dc, const Rect& area, int frameWidth, Color color,
                     const std::wstring& automatic);

}  // namespace tidewell
