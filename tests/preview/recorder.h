// A canvas that notes down what is drawn on it, with fonts whose letters are all as wide as half
// their height.
#pragma once

#include <map>
#include <memory>
#include <sstream>
#include <string>

#include "platform/scale.h"
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

// Notes read "12:00 @4,0-86" (from the left edge to the right one), "fill ff @17,1 6x11" and the
// like, with " h10" behind a text whose font is not the usual one. A colour is left out where it is
// black text.
class Recorder final : public Canvas {
 public:
  explicit Recorder(int usualHeight = 12) : usualHeight_(usualHeight) {}

  std::unique_ptr<CanvasFont> MakeFont(const LogFont& description) override {
    Note() << "font " << description.height;
    return std::make_unique<RecordedFont>(description.height);
  }
  int LineHeight(const CanvasFont& font) override { return HeightOf(font); }
  int LineWidth(const CanvasFont& font, std::wstring_view text) override {
    return static_cast<int>(text.size()) * HeightOf(font) / 2;
  }
  void Write(const Rect& area, std::wstring_view text, const CanvasFont& font, Color color,
             TextAlign align) override {
    std::ostream& note = Note();
    note << Utf8(text) << (align == TextAlign::kRight ? " right" : "") << " @" << area.left << ','
         << area.top << '-' << area.Right();
    if (HeightOf(font) != usualHeight_) note << " h" << HeightOf(font);
    if (color != kBlack) note << " #" << std::hex << color << std::dec;
  }
  void Fill(const Rect& area, Color color) override { Note() << "fill " << Colored(color, area); }
  void Overlay(const Rect& area, Color color, std::uint32_t weight) override {
    Note() << "overlay " << weight << ' ' << Colored(color, area);
  }
  void Draw(const Image& image, int x, int y) override {
    Note() << NameOf(image) << " @" << x << ',' << y;
  }
  void DrawPart(const Image& image, const Rect& source, int x, int y, Color transparent) override {
    Note() << NameOf(image) << " @" << x << ',' << y << " but " << Colored(transparent, source);
  }
  std::unique_ptr<Canvas> MakeOffscreen(int width, int height) override {
    Note() << "canvas " << width << 'x' << height;
    auto made = std::make_unique<Recorder>(usualHeight_);
    made->notes_ = notes_;
    return made;
  }
  void Copy(const Canvas&, const Rect& area) override {
    Note() << "copy @" << area.left << ',' << area.top << ' ' << area.width << 'x' << area.height;
  }

  // What was noted on this canvas and those that it made, in order; forgets it.
  std::string Take() {
    std::string taken = notes_->str();
    notes_->str("");
    return taken;
  }

 private:
  static int HeightOf(const CanvasFont& font) {
    return static_cast<const RecordedFont&>(font).height;
  }
  static const std::string& NameOf(const Image& image) {
    return static_cast<const RecordedImage&>(image).name;
  }
  static std::string Colored(Color color, const Rect& area) {
    std::ostringstream text;
    text << std::hex << color << std::dec << " @" << area.left << ',' << area.top << ' '
         << area.width << 'x' << area.height;
    return text.str();
  }
  std::ostream& Note() { return *notes_ << (notes_->tellp() > 0 ? "; " : ""); }

  int usualHeight_;
  std::shared_ptr<std::ostringstream> notes_ = std::make_shared<std::ostringstream>();
};

// Has every icon, all of one size, by the name of its symbol.
class RecordedIcons final : public IconSource {
 public:
  explicit RecordedIcons(int size = 12) : size_(size) {}
  const Image* Find(IconSymbol symbol) override {
    auto& icon = icons_[symbol];
    if (!icon) icon = std::make_unique<RecordedImage>(Utf8(SymbolName(symbol)), size_, size_);
    return icon.get();
  }

 private:
  int size_;
  std::map<IconSymbol, std::unique_ptr<RecordedImage>> icons_;
};

}  // namespace tidewell
