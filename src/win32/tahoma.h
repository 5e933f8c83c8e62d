// The one type face of the program and of the shell around it. Windows only.
#pragma once

#include <windows.h>

#include <cwchar>

#include "win32/gdi.h"

namespace tidewell {

// `height` in pixels, of the letters without the leading.
inline Font TahomaFont(int height, int weight) {
  LOGFONTW description{};
  description.lfHeight = -height;
  description.lfWeight = weight;
  std::wcscpy(description.lfFaceName, L"Tahoma");
  return Font(CreateFontIndirectW(&description));
}

}  // namespace tidewell
