// The program's own colours, and its one type face.
#pragma once

#include <windows.h>

#include <cwchar>

#include "platform/gdi.h"

namespace tidewell {

inline constexpr COLORREF kPaper = RGB(255, 255, 255);
inline constexpr COLORREF kInk = RGB(32, 38, 46);
inline constexpr COLORREF kHairline = RGB(228, 232, 237);
inline constexpr COLORREF kSelectionTop = RGB(238, 244, 251);
inline constexpr COLORREF kSelectionBottom = RGB(204, 221, 241);
inline constexpr COLORREF kSelectionEdge = RGB(168, 194, 224);
inline constexpr COLORREF kBarTop = RGB(247, 249, 251);
inline constexpr COLORREF kBarBottom = RGB(219, 225, 233);
inline constexpr COLORREF kBarEdge = RGB(186, 195, 206);
inline constexpr COLORREF kScrollThumb = RGB(176, 186, 198);

inline Font TahomaFont(int height, int weight) {
  LOGFONTW description{};
  description.lfHeight = -height;
  description.lfWeight = weight;
  std::wcscpy(description.lfFaceName, L"Tahoma");
  return Font(CreateFontIndirectW(&description));
}

}  // namespace tidewell
