// The icons of a resolution library: the set that ships. Windows only.
#pragma once

#include <windows.h>

#include "preview/icons.h"
#include "preview/windows/gdi_canvas.h"
#include "resources/art/bitmap_ids.h"
#include "win32/bitmaps.h"

namespace tidewell {

// Of `module`, which outlives what is returned; null stands for a library without any.
inline IconCache::LoadIcon ResourceIcons(HMODULE module) {
  return [module](IconSymbol symbol) -> std::unique_ptr<Image> {
    if (!module) return nullptr;
    const int id = IDB_FIRST_ITEM_ICON + static_cast<int>(symbol);
    return GdiImage::Of(LoadBitmapResource(module, static_cast<WORD>(id)));
  };
}

}  // namespace tidewell
