// Where every bitmap comes in: from a file, or from a resource library. Windows only.
#pragma once

#include <windows.h>

#include <string>

#include "platform/files.h"
#include "win32/gdi.h"

namespace tidewell {

// Null when the file is absent, damaged or no bitmap.
Bitmap LoadBitmapFile(Files& files, const std::wstring& path);

// Null when the module has no bitmap of that id, or a damaged one.
Bitmap LoadBitmapResource(HMODULE module, int id);

}  // namespace tidewell
