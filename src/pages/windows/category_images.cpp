#include "pages/windows/category_images.h"

#include "categories/windows/pim_categories.h"
#include "ui/windows/color_swatch.h"
#include "ui/windows/look.h"
#include "win32/gdi.h"

namespace tidewell {

namespace {

// At 96 dots per inch.
constexpr int kSwatchWidth = 20;
constexpr int kGap = 3;

void PaintIcon(HDC dc, CategoryIcon* icon, int side) {
  const HBITMAP bitmap = icon ? static_cast<BitmapIcon*>(icon)->Handle() : nullptr;
  BITMAP facts{};
  if (!bitmap || !GetObjectW(bitmap, sizeof facts, &facts)) return;
  const BitmapReader reader(bitmap);
  StretchBlt(dc, 0, 0, side, side, BitmapReader::Dc(), 0, 0, facts.bmWidth, facts.bmHeight,
             SRCCOPY);
}

}  // namespace

CategoryImages::CategoryImages(const ScreenScale& scale)
    : side_(GetSystemMetrics(SM_CXSMICON)),
      swatchWidth_(scale.ScaleX(kSwatchWidth)),
      gap_(scale.ScaleX(kGap)),
      images_(ImageList_Create(side_ + 2 * gap_ + swatchWidth_, side_, ILC_COLOR, 0, 16)) {}

CategoryImages::~CategoryImages() {
  ImageList_Destroy(images_);
}

int CategoryImages::Add(CategoryIcon* icon, Color color) {
  const int width = side_ + 2 * gap_ + swatchWidth_;
  MemoryBitmap picture(WindowDc(nullptr).Dc(), width, side_);
  FillPlain(picture.Dc(), {0, 0, width, side_}, kPaper);
  PaintIcon(picture.Dc(), icon, side_);
  const Rect swatch{side_ + gap_, 1, swatchWidth_, side_ - 2};
  DrawColorSwatch(picture.Dc(), swatch, 1, color, {});
  return ImageList_Add(images_, picture.Take().Get(), nullptr);
}

void CategoryImages::Clear() {
  ImageList_Remove(images_, -1);
}

}  // namespace tidewell
