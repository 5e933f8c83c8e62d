#include "preview/text_drawing.h"

#include <algorithm>
#include <span>
#include <string>

namespace tidewell {

namespace {

constexpr std::wstring_view kBlanks = L" \t\r\n";
constexpr wchar_t kEllipsis = 0x2026;

struct Offset {
  int right;
  int down;
};

std::span<const Offset> ShadowPasses(std::uint32_t style) {
  static constexpr Offset kRight[] = {{1, 0}};
  static constexpr Offset kDownRight[] = {{1, 1}};
  static constexpr Offset kDown[] = {{0, 1}};
  static constexpr Offset kOutline[] = {{0, -1}, {-1, 0}, {0, 1}, {1, 0}};
  switch (style) {
    case kShadowRight:
      return kRight;
    case kShadowDownRight:
      return kDownRight;
    case kShadowDown:
      return kDown;
    case kShadowOutline:
      return kOutline;
    default:
      return {};
  }
}

// Behind the word that begins at `start` and the blank that follows it.
std::size_t EndOfWord(std::wstring_view text, std::size_t start) {
  const std::size_t blank = text.find_first_of(kBlanks, start);
  return blank == std::wstring_view::npos ? text.size() : blank + 1;
}

bool IsHighSurrogate(wchar_t unit) {
  return unit >= 0xD800 && unit < 0xDC00;
}

std::wstring CutAt(std::wstring_view text, std::size_t length) {
  return std::wstring(text.substr(0, length)) + kEllipsis;
}

// The text up to a word or, failing that, a letter, with an ellipsis; at least one letter.
std::wstring CutToFit(Canvas& canvas, const CanvasFont& font, std::wstring_view text, int width) {
  std::size_t end = text.find_last_of(kBlanks);
  while (end != std::wstring_view::npos && end > 0) {
    std::wstring cut = CutAt(text, end);
    if (canvas.LineWidth(font, cut) <= width) return cut;
    end = text.find_last_of(kBlanks, end - 1);
  }
  std::size_t length = std::min(text.find_first_of(kBlanks, 1), text.size());
  while (length > 1 && (IsHighSurrogate(text[length - 1]) ||
                        canvas.LineWidth(font, CutAt(text, length)) > width)) {
    --length;
  }
  return CutAt(text, length);
}

}  // namespace

void WriteShadowed(Canvas& canvas, const Rect& area, std::wstring_view text, const TextStyle& style,
                   TextAlign align) {
  for (const Offset& offset : ShadowPasses(style.shadowStyle)) {
    canvas.Write(area.Moved(offset.right, offset.down), text, style.font, style.shadowColor, align);
  }
  canvas.Write(area, text, style.font, style.color, align);
}

WrappedEnd WriteWrapped(Canvas& canvas, const Rect& area, std::wstring_view text,
                        const TextStyle& style, DrawPass pass) {
  Rect line{area.left, area.top, 0, canvas.LineHeight(style.font)};
  std::size_t start = 0;
  std::size_t end = 0;
  const auto writeLine = [&] {
    if (pass == DrawPass::kMeasure || start == end || line.top >= area.Bottom()) return;
    WriteShadowed(canvas, Rect::Between(area.left, line.top, area.Right(), area.Bottom()),
                  text.substr(start, end - start), style);
  };
  while (end < text.size()) {
    const std::size_t next = EndOfWord(text, end);
    line.width = canvas.LineWidth(style.font, text.substr(start, next - start));
    if (line.Right() > area.Right() && start < end) {
      writeLine();
      start = end;
      line.top += line.height;
      line.width = canvas.LineWidth(style.font, text.substr(start, next - start));
    }
    end = next;
  }
  writeLine();
  return {line.Bottom() - area.top, line};
}

Rect WriteTitle(Canvas& canvas, const Rect& area, std::wstring_view text, const TextStyle& style) {
  if (text.empty()) return {area.left, area.top, 0, canvas.LineHeight(style.font)};
  std::wstring shown(text);
  int width = canvas.LineWidth(style.font, shown);
  if (width > area.width) {
    shown = CutToFit(canvas, style.font, text, area.width);
    width = canvas.LineWidth(style.font, shown);
  }
  WriteShadowed(canvas, area, shown, style);
  return {area.left, area.top, std::min(width, area.width), canvas.LineHeight(style.font)};
}

}  // namespace tidewell
