// Choosing a folder or a file over the whole screen. Windows only.
#pragma once

#include <optional>
#include <string>

#include "ui/windows/full_screen_dialog.h"

namespace tidewell {

// Both begin at the present value, or at the nearest folder above it that exists, and return a
// full path, without a backslash at its end unless it is the root; nothing when cancelled.
std::optional<std::wstring> ChooseFolder(const DialogContext& context, const std::wstring& title,
                                         const std::wstring& present);
// `pattern` tells the files to choose from: "*.bmp", or several as "*.bmp;*.png".
std::optional<std::wstring> ChooseFile(const DialogContext& context, const std::wstring& title,
                                       const std::wstring& present, const std::wstring& pattern);

}  // namespace tidewell
