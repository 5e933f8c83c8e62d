// A canvas that notes down what is drawn on it, with fonts whose letters are all as wide as half
// their height.
#pragma once

#include <map>
#include <memory>
#include <sstream>
#include <string>

#include "preview/canvas.h"
#include "preview/icons.h"
#include "tests/support/utf8.h"

namespace tidewell {

struct RecordedFont final : CanvasFont {
  explicit RecordedFont(int fontHeight) : height(fontHeight) {}
  int height;
};

struct RecordedImage final : Image {
  RecordedImage(std::string imageName, int width, int height)
      : Image(width, height), name(std::move(imageName)) {}
  std::string name;
};

inline std::string Utf8(const Rect& rect) {
  std::ostringstream text;
  text << rect.left << ',' << rect.top << ' ' << rect.width << 'x' << rect.height;
  return text.str();
}

// Notes are "12:00 @4,0-86" (from the left edge to the right one), "fill ff @17,1 6x11" and the
// like; behind a text " h10" is a font that is not the usual one, " #ff" a colour but black.
class Recorder final : public Canvas {
 public:
  explicit Recorder(int usualHeight = 12) : usualHeight_(usualHeight) {}

  std::unique_ptr<CanvasFont> MakeFont(const LogFont& description) override {
    Note() << "font " << description.height;
    return std::make_unique<RecordedFont>(description.height);
  }
  int LineHeight(const CanvasFont& font) override {
    return static_cast<const RecordedFont&>(font).height;
  }
  int LineWidth(const CanvasFont& font, std::wstring_view text) override {
    return static_cast<int>(text.size()) * LineHeight(font) / 2;
  }
  void Write(const Rect& area, std::wstring_view text, const CanvasFont& font, Color color,
             TextAlign align) override {
    Note() << Utf8(text) << (align == TextAlign::kRight ? " right" : "") << " @" << area.left << ','
           << area.top << '-' << area.Right();
    if (LineHeight(font) != usualHeight_) *notes_ << " h" << LineHeight(font);
    if (color != kBlack) *notes_ << " #" << std::hex << color << std::dec;
  }
  void Fill(const Rect& area, Color color) override {
    Note() << "fill " << std::hex << color << std::dec << " @" << Utf8(area);
  }
  void Overlay(const Rect& area, Color color, std::uint32_t weight) override {
    Note() << "overlay " << weight << ' ' << std::hex << color << std::dec << " @" << Utf8(area);
  }
  void Draw(const Image& image, int x, int y) override {
    Note() << static_cast<const RecordedImage&>(image).name << " @" << x << ',' << y;
  }
  void DrawPart(const Image& image, const Rect& source, int x, int y, Color transparent) override {
    Draw(image, x, y);
    *notes_ << " from " << Utf8(source) << " but " << std::hex << transparent << std::dec;
  }
  std::unique_ptr<Canvas> MakeOffscreen(int width, int height) override {
    Note() << "canvas " << width << 'x' << height;
    auto made = std::make_unique<Recorder>(usualHeight_);
    made->notes_ = notes_;
    return made;
  }
  void Copy(const Canvas&, const Rect& area) override { Note() << "copy @" << Utf8(area); }

  // What was noted on this canvas and those that it made, in order; forgets it.
  std::string Take() {
    std::string taken = notes_->str();
    notes_->str("");
    return taken;
  }

 private:
  std::ostream& Note() { return *notes_ << (notes_->tellp() > 0 ? "; " : ""); }

  int usualHeight_;
  std::shared_ptr<std::ostringstream> notes_ = std::make_shared<std::ostringstream>();
};

// Has every icon, all of one size, by the name of its symbol.
class RecordedIcons final : public IconSource {
 public:
  explicit RecordedIcons(int size = 12) : size_(size) {}
  const Image* Find(IconSymbol symbol) override {
    return &icons_.try_emplace(symbol, Utf8(SymbolName(symbol)), size_, size_).first->second;
  }

 private:
  int size_;
  std::map<IconSymbol, RecordedImage> icons_;
};

}  // namespace tidewell
