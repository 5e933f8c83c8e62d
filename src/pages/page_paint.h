// What the rules of several pages paint.
#pragma once

#include <string>

#include "platform/scale.h"
#include "preview/canvas.h"

namespace tidewell {

// What a page writes in.
LogFont PageFont(const ScreenScale& scale);

// A sample of a color in a black frame; of kNoColor a white one with the name that it has.
void DrawSwatch(Canvas& canvas, const Rect& area, Color color, const std::wstring& nameOfNone,
                const CanvasFont& font, const ScreenScale& scale);

}  // namespace tidewell
