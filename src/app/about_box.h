// The about box: which version and build of the program is running.
#pragma once

#include <windows.h>

#include <string>

#include "platform/scale.h"

namespace tidewell {

struct AboutRecord {
  HINSTANCE instance = nullptr;
  HMODULE pictures = nullptr;  // null shows no logo
  WORD menuBarId = 0;
  WORD logoId = 0;
  bool buildSuffix = false;  // names the platform of the build
  std::wstring caption;
  std::wstring version;
  std::wstring buildDate;
};

// What this program tells of itself.
AboutRecord AboutTidewell(HINSTANCE instance, HMODULE pictures);

// "04/17/2009, WM5/WM6 Build": either part may be missing.
std::wstring BuildLine(const AboutRecord& record);

// Shows the box over the whole screen and returns when it is closed.
void ShowAboutBox(HWND parent, const AboutRecord& record, const ScreenScale& scale);

}  // namespace tidewell
