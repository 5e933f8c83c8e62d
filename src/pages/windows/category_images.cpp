#include "pages/windows/category_images.h"

#include "categories/windows/pim_categories.h"
#include "settings/setting.h"
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
  const HDC source = CreateCompatibleDC(dc);
  const HGDIOBJ before = SelectObject(source, bitmap);
  StretchBlt(dc, 0, 0, side, side, source, 0, 0, facts.bmWidth, facts.bmHeight, SRCCOPY);
  SelectObject(source, before);
  DeleteDC(source);
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
  const WindowDc screen(nullptr);
  const HDC dc = CreateCompatibleDC(screen.Dc());
  const Bitmap picture(CreateCompatibleBitmap(screen.Dc(), width, side_));
  const HGDIOBJ before = SelectObject(dc, picture.Get());
  FillPlain(dc, {0, 0, width, side_}, kPaper);
  PaintIcon(dc, icon, side_);
  RECT swatch{side_ + gap_, 1, width - gap_, side_ - 1};
  FillPlain(dc, swatch, kInk);
  InflateRect(&swatch, -1, -1);
  FillPlain(dc, swatch, color == kNoColor ? kPaper : color);
  SelectObject(dc, before);
  DeleteDC(dc);
  return ImageList_Add(images_, picture.Get(), nullptr);
}

void CategoryImages::Clear() {
  ImageList_Remove(images_, -1);
}

}  // namespace tidewell
