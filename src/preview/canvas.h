// What the preview and the small controls are drawn on. All lengths and places are pixels. Fonts,
// images and other canvases that are passed to a canvas come from one of the same kind.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "platform/rect.h"
#include "preview/color.h"
#include "settings/setting.h"

namespace tidewell {

// A font as the kind of canvas that made it knows it.
class CanvasFont {
 public:
  virtual ~CanvasFont() = default;
};

// A decoded picture, likewise; it brings its own transparency.
class Image {
 public:
  virtual ~Image() = default;
  int Width() const { return width_; }
  int Height() const { return height_; }

 protected:
  Image(int width, int height) : width_(width), height_(height) {}

 private:
  int width_;
  int height_;
};

// Null for a file that is missing or cannot be decoded.
using LoadImageFile = std::function<std::unique_ptr<Image>(const std::wstring& path)>;

// kCentre is the middle of both directions; the others begin at the top.
enum class TextAlign : std::uint8_t { kLeft, kCentre, kRight };

class Canvas {
 public:
  virtual ~Canvas() = default;

  virtual std::unique_ptr<CanvasFont> MakeFont(const LogFont& description) = 0;
  // Of any line of text in that font.
  virtual int LineHeight(const CanvasFont& font) = 0;
  // Of a text on one line, blanks at its end included.
  virtual int LineWidth(const CanvasFont& font, std::wstring_view text) = 0;

  // One line of text, cut off at the area's edges; an ampersand is shown as it is.
  virtual void Write(const Rect& area, std::wstring_view text, const CanvasFont& font, Color color,
                     TextAlign align) = 0;
  virtual void Fill(const Rect& area, Color color) = 0;
  // Blends a colour over what is there; `weight` as in Blend.
  virtual void Overlay(const Rect& area, Color color, std::uint32_t weight) = 0;
  virtual void Draw(const Image& image, int x, int y) = 0;
  // A part of an image, but for its pixels of one colour. `source` lies within the image.
  virtual void DrawPart(const Image& image, const Rect& source, int x, int y,
                        Color transparent) = 0;

  // A canvas in memory, to be copied to one of this kind.
  virtual std::unique_ptr<Canvas> MakeOffscreen(int width, int height) = 0;
  // Fills `area` with what stands at the top left of `source`.
  virtual void Copy(const Canvas& source, const Rect& area) = 0;
};

}  // namespace tidewell
