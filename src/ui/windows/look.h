// The program's own colours.
#pragma once

#include <windows.h>

#include "win32/palette.h"

namespace tidewell {

inline constexpr COLORREF kHairline = RGB(228, 232, 237);
inline constexpr COLORREF kSelectionTop = RGB(238, 244, 251);
inline constexpr COLORREF kSelectionBottom = RGB(204, 221, 241);
inline constexpr COLORREF kSelectionEdge = RGB(168, 194, 224);
inline constexpr COLORREF kBarTop = RGB(247, 249, 251);
inline constexpr COLORREF kBarBottom = RGB(219, 225, 233);
inline constexpr COLORREF kScrollThumb = RGB(176, 186, 198);

}  // namespace tidewell
