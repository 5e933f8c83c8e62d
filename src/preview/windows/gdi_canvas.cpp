#include "preview/windows/gdi_canvas.h"

#include <aygshell.h>

#include <algorithm>
#include <functional>
#include <map>
#include <string>

namespace tidewell {

namespace {

class GdiFont final : public CanvasFont {
 public:
  GdiFont(HDC dc, const LogFont& description) {
    const LOGFONTW system = SystemDescription(description);
    font_ = Font(CreateFontIndirectW(&system));
    const Selected selected(dc, font_.Get());
    TEXTMETRICW metrics{};
    GetTextMetricsW(dc, &metrics);
    lineHeight_ = metrics.tmHeight;
  }

  HFONT Handle() const { return font_.Get(); }
  int LineHeight() const { return lineHeight_; }
  int WidthOf(HDC dc, std::wstring_view text) const {
    const auto known = widths_.find(text);
    if (known != widths_.end()) return known->second;
    const Selected selected(dc, font_.Get());
    SIZE size{};
    GetTextExtentExPointW(dc, text.data(), static_cast<int>(text.size()), 0, nullptr, nullptr,
                          &size);
    if (widths_.size() == kKnownWidths) widths_.clear();
    widths_.emplace(text, size.cx);
    return size.cx;
  }

 private:
  static constexpr std::size_t kKnownWidths = 64;

  Font font_;
  int lineHeight_ = 0;
  // The same texts are measured each time that something is painted.
  mutable std::map<std::wstring, int, std::less<>> widths_;
};

class OffscreenCanvas final : private MemoryBitmap, public GdiCanvas {
 public:
  OffscreenCanvas(HDC like, int width, int height)
      : MemoryBitmap(like, width, height), GdiCanvas(MemoryBitmap::Dc()) {}
};

HFONT HandleOf(const CanvasFont& font) {
  return static_cast<const GdiFont&>(font).Handle();
}

const GdiImage& GdiImageOf(const Image& image) {
  return static_cast<const GdiImage&>(image);
}

UINT Flags(TextAlign align) {
  constexpr UINT kLine = DT_SINGLELINE | DT_NOPREFIX;
  switch (align) {
    case TextAlign::kCentre:
      return kLine | DT_CENTER | DT_VCENTER;
    case TextAlign::kRight:
      return kLine | DT_RIGHT;
    default:
      return kLine | DT_LEFT;
  }
}

}  // namespace

RECT SystemRect(const Rect& area) {
  return {area.left, area.top, area.Right(), area.Bottom()};
}

LOGFONTW SystemDescription(const LogFont& font) {
  LOGFONTW system{};
  system.lfHeight = font.height;
  system.lfWeight = font.weight;
  system.lfItalic = font.italic;
  system.lfUnderline = font.underline;
  system.lfStrikeOut = font.strikeOut;
  system.lfQuality = font.quality;
  const std::size_t length = std::min<std::size_t>(font.faceName.size(), LF_FACESIZE - 1);
  std::copy_n(font.faceName.begin(), length, system.lfFaceName);
  return system;
}

GdiImage::GdiImage(Bitmap bitmap, const BITMAP& facts)
    : Image(facts.bmWidth, facts.bmHeight),
      bitmap_(std::move(bitmap)),
      hasAlpha_(facts.bmBitsPixel == 32) {}

std::unique_ptr<GdiImage> GdiImage::Of(Bitmap bitmap) {
  BITMAP facts{};
  if (!bitmap || !GetObjectW(bitmap.Get(), sizeof facts, &facts)) return nullptr;
  return std::unique_ptr<GdiImage>(new GdiImage(std::move(bitmap), facts));
}

std::unique_ptr<GdiImage> GdiImage::Of(const Pixels& pixels) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = pixels.width;
  info.bmiHeader.biHeight = -pixels.height;  // from the top
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  void* points = nullptr;
  Bitmap bitmap(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &points, nullptr, 0));
  if (!bitmap) return nullptr;
  std::ranges::copy(pixels.points, static_cast<Argb*>(points));
  return Of(std::move(bitmap));
}

std::unique_ptr<CanvasFont> GdiCanvas::MakeFont(const LogFont& description) {
  return std::make_unique<GdiFont>(dc_, description);
}

int GdiCanvas::LineHeight(const CanvasFont& font) {
  return static_cast<const GdiFont&>(font).LineHeight();
}

int GdiCanvas::LineWidth(const CanvasFont& font, std::wstring_view text) {
  return static_cast<const GdiFont&>(font).WidthOf(dc_, text);
}

void GdiCanvas::Write(const Rect& area, std::wstring_view text, const CanvasFont& font, Color color,
                      TextAlign align) {
  const Selected selected(dc_, HandleOf(font));
  SetTextColor(dc_, color);
  RECT place = SystemRect(area);
  DrawTextW(dc_, text.data(), static_cast<int>(text.size()), &place, Flags(align));
}

void GdiCanvas::Fill(const Rect& area, Color color) {
  FillPlain(dc_, SystemRect(area), color);
}

void GdiCanvas::Overlay(const Rect& area, Color color, std::uint32_t weight) {
  const MemoryBitmap point(dc_, 1, 1);
  FillPlain(point.Dc(), {0, 0, 1, 1}, color);
  AlphaBlend(dc_, area.left, area.top, area.width, area.height, point.Dc(), 0, 0, 1, 1,
             {AC_SRC_OVER, 0, static_cast<BYTE>(weight), 0});
}

void GdiCanvas::Draw(const Image& image, int x, int y) {
  const GdiImage& picture = GdiImageOf(image);
  if (picture.HasAlpha()) {
    DrawWithAlpha(dc_, x, y, picture.Handle(), image.Width(), image.Height());
  } else {
    const BitmapReader source(picture.Handle());
    BitBlt(dc_, x, y, image.Width(), image.Height(), source.Dc(), 0, 0, SRCCOPY);
  }
}

void GdiCanvas::DrawPart(const Image& image, const Rect& source, int x, int y, Color transparent) {
  const BitmapReader picture(GdiImageOf(image).Handle());
  TransparentImage(dc_, x, y, source.width, source.height, picture.Dc(), source.left, source.top,
                   source.width, source.height, transparent);
}

std::unique_ptr<Canvas> GdiCanvas::MakeOffscreen(int width, int height) {
  return std::make_unique<OffscreenCanvas>(dc_, width, height);
}

void GdiCanvas::Copy(const Canvas& source, const Rect& area) {
  BitBlt(dc_, area.left, area.top, area.width, area.height,
         static_cast<const GdiCanvas&>(source).dc_, 0, 0, SRCCOPY);
}

}  // namespace tidewell
