// The canvas of a device context. Windows only.
#pragma once

#include <windows.h>

#include "platform/pixels.h"
#include "preview/canvas.h"
#include "win32/gdi.h"

namespace tidewell {

RECT SystemRect(const Rect& area);
LOGFONTW SystemDescription(const LogFont& font);

// A bitmap as it is loaded or decoded. One of 32 bits has its transparency in them, and colours
// that are multiplied with it already.
class GdiImage final : public Image {
 public:
  // Null for no bitmap.
  static std::unique_ptr<GdiImage> Of(Bitmap bitmap);
  static std::unique_ptr<GdiImage> Of(const Pixels& pixels);

  HBITMAP Handle() const { return bitmap_.Get(); }
  bool HasAlpha() const { return hasAlpha_; }

 private:
  GdiImage(Bitmap bitmap, const BITMAP& facts);

  Bitmap bitmap_;
  bool hasAlpha_;
};

class GdiCanvas : public Canvas {
 public:
  // The context outlives the canvas, which changes its text colour and makes its background
  // transparent.
  explicit GdiCanvas(HDC dc) : dc_(dc) { SetBkMode(dc, TRANSPARENT); }

  std::unique_ptr<CanvasFont> MakeFont(const LogFont& description) override;
  int LineHeight(const CanvasFont& font) override;
  int LineWidth(const CanvasFont& font, std::wstring_view text) override;
  void Write(const Rect& area, std::wstring_view text, const CanvasFont& font, Color color,
             TextAlign align) override;
  void Fill(const Rect& area, Color color) override;
  void Overlay(const Rect& area, Color color, std::uint32_t weight) override;
  void Draw(const Image& image, int x, int y) override;
  void DrawPart(const Image& image, const Rect& source, int x, int y, Color transparent) override;
  std::unique_ptr<Canvas> MakeOffscreen(int width, int height) override;
  void Copy(const Canvas& source, const Rect& area) override;

 private:
  HDC dc_;
};

}  // namespace tidewell
