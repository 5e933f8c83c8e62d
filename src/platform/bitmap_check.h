// Whether a bitmap is all there. The system's loaders follow its headers without looking where
// they lead, so a bitmap is checked before they are given it.
#pragma once

#include <cstddef>
#include <span>
#include <string>

#include "platform/files.h"

namespace tidewell {

// True when the headers of a bitmap file are those of a bitmap that a device shows (1 to 32 bits,
// not compressed) within the image limits, and its palette and pixels lie within the file. Reads
// the headers alone.
bool IsWholeBitmap(Files& files, const std::wstring& path);

// The same of a bitmap as a library holds it: without the file's header, its pixels right behind
// the palette.
bool IsWholeBitmap(std::span<const std::byte> resource);

}  // namespace tidewell
