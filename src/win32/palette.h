// The colours that the program and the shell around it share.
#pragma once

#include <windows.h>

namespace tidewell {

inline constexpr COLORREF kPaper = RGB(255, 255, 255);
inline constexpr COLORREF kInk = RGB(32, 38, 46);
inline constexpr COLORREF kEdge = RGB(186, 195, 206);
inline constexpr COLORREF kFocusEdge = RGB(74, 132, 196);

}  // namespace tidewell
