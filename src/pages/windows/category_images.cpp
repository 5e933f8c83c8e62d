#include "pages/windows/category_images.h"

#include "categories/windows/pim_categories.h"
#include "ui/windows/look.h"
#include "win32/gdi.h"

namespace tidewell {

namespace {

constexpr int kGap = 3;  // between icon and name, at 96 dots per inch

void PaintIcon(HDC dc, CategoryIcon* icon, int top, int side) {
  const HBITMAP bitmap = icon ? static_cast<BitmapIcon*>(icon)->Handle() : nullptr;
  BITMAP facts{};
  if (!bitmap || !GetObjectW(bitmap, sizeof facts, &facts)) return;
  const BitmapReader reader(bitmap);
  StretchBlt(dc, 0, top, side, side, BitmapReader::Dc(), 0, 0, facts.bmWidth, facts.bmHeight,
             SRCCOPY);
}

}  // namespace

CategoryImages::CategoryImages(const ScreenScale& scale)
    : side_(GetSystemMetrics(SM_CXSMICON)),
      margin_(scale.ScaleY(1)),
      width_(side_ + scale.ScaleX(kGap)),
      height_(side_ + 2 * margin_),
      images_(ImageList_Create(width_, height_, ILC_COLOR24, 0, 16)) {}

CategoryImages::~CategoryImages() {
  ImageList_Destroy(images_);
}

int CategoryImages::Add(CategoryIcon* icon) {
  MemoryBitmap picture(WindowDc(nullptr).Dc(), width_, height_);
  FillPlain(picture.Dc(), {0, 0, width_, height_}, kPaper);
  PaintIcon(picture.Dc(), icon, margin_, side_);
  return ImageList_Add(images_, picture.Take().Get(), nullptr);
}

void CategoryImages::Clear() {
  ImageList_Remove(images_, -1);
}

}  // namespace tidewell
