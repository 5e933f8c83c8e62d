// Where pictures come in from files. Windows only.
#pragma once

#include <imaging.h>

#include <memory>
#include <string>

#include "platform/files.h"
#include "preview/windows/gdi_canvas.h"

namespace tidewell {

// By the extension: PNG, GIF (its first picture) and JPEG through `imaging`, which may be null;
// BMP and TGA. With its transparency, which a BMP has in 32 bits, not multiplied, unless they are
// clear all over. Null for a file that is absent, of another kind, damaged, or larger than the
// image limits.
std::unique_ptr<GdiImage> DecodeImage(Files& files, IImagingFactory* imaging,
                                      const std::wstring& path);

}  // namespace tidewell
