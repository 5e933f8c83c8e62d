// The small window that names what the finger rests on: its size, its place and its picture.
#pragma once

#include <string_view>

#include "platform/scale.h"
#include "preview/canvas.h"

namespace tidewell {

LogFont TooltipFont(const ScreenScale& scale);

// Where a window for `text` stands when the finger is at a point: left of and above it. All in
// pixels of one coordinate system.
Rect PlaceTooltip(Canvas& canvas, const CanvasFont& font, std::wstring_view text, int x, int y,
                  const ScreenScale& scale);

void PaintTooltip(Canvas& canvas, const CanvasFont& font, std::wstring_view text,
                  const Rect& client, const ScreenScale& scale);

}  // namespace tidewell
