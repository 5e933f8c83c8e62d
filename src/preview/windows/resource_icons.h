// The icons of a resolution library, which the preview shows where no other set is chosen. Windows
// only.
#pragma once

#include <windows.h>

#include "preview/icons.h"
#include "preview/windows/gdi_canvas.h"
#include "resources/art/bitmap_ids.h"

namespace tidewell {

// Of `module`, which outlives the cache; null stands for a library without any.
inline IconCache ResourceIcons(HMODULE module) {
  return IconCache([module](IconSymbol symbol) -> std::unique_ptr<Image> {
    if (!module) return nullptr;
    const int id = IDB_FIRST_ITEM_ICON + static_cast<int>(symbol);
    return GdiImage::Of(Bitmap(static_cast<HBITMAP>(
        LoadImageW(module, MAKEINTRESOURCEW(id), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION))));
  });
}

}  // namespace tidewell
