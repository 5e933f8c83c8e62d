#include "ui/windows/picture.h"

#include "win32/bitmaps.h"

namespace tidewell {

Picture::Picture(HMODULE module, int id) {
  if (!module) return;
  bitmap_ = LoadBitmapResource(module, id);
  BITMAP facts{};
  if (!bitmap_ || !GetObjectW(bitmap_.Get(), sizeof facts, &facts)) return;
  width_ = facts.bmWidth;
  height_ = facts.bmHeight;
  hasAlpha_ = facts.bmBitsPixel == 32;
}

void Picture::Draw(HDC dc, int x, int y) const {
  if (!bitmap_) return;
  if (hasAlpha_) {
    DrawWithAlpha(dc, x, y, bitmap_.Get(), width_, height_);
  } else {
    const BitmapReader source(bitmap_.Get());
    BitBlt(dc, x, y, width_, height_, source.Dc(), 0, 0, SRCCOPY);
  }
}

void Picture::DrawCentred(HDC dc, const RECT& area) const {
  Draw(dc, area.left + (area.right - area.left - width_) / 2,
       area.top + (area.bottom - area.top - height_) / 2);
}

}  // namespace tidewell
