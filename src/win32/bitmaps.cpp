#include "win32/bitmaps.h"

#include <aygshell.h>

#include <cstddef>
#include <span>

#include "platform/bitmap_check.h"

namespace tidewell {

namespace {

std::span<const std::byte> BytesOfBitmap(HMODULE module, int id) {
  const HRSRC found = FindResourceW(module, MAKEINTRESOURCEW(id), RT_BITMAP);
  const HGLOBAL loaded = found ? LoadResource(module, found) : nullptr;
  if (!loaded) return {};
  return {static_cast<const std::byte*>(LockResource(loaded)), SizeofResource(module, found)};
}

}  // namespace

Bitmap LoadBitmapFile(Files& files, const std::wstring& path) {
  return Bitmap(IsWholeBitmap(files, path) ? SHLoadDIBitmap(path.c_str()) : nullptr);
}

Bitmap LoadBitmapResource(HMODULE module, int id) {
  if (!IsWholeBitmap(BytesOfBitmap(module, id))) return {};
  return Bitmap(static_cast<HBITMAP>(
      LoadImageW(module, MAKEINTRESOURCEW(id), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION)));
}

}  // namespace tidewell
