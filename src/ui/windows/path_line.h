// A line of text that tells a folder. Windows only.
#pragma once

#include <windows.h>

#include <string>

namespace tidewell {

// The style of a static control that serves as such a line.
inline constexpr DWORD kPathLineStyle = SS_LEFTNOWORDWRAP | SS_NOPREFIX;

// Shows as much of the path as the line has room for, its end rather than its beginning.
void ShowPath(HWND line, const std::wstring& path);

}  // namespace tidewell
