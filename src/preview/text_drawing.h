// Text with a shadow, wrapped text, and titles that are cut short.
#pragma once

#include <cstdint>
#include <string_view>

#include "preview/canvas.h"

namespace tidewell {

// The numbers are those of the setting UseShadowColor; any other casts no shadow.
enum ShadowStyle : std::uint32_t {
  kNoShadow = 0,
  kShadowRight = 1,
  kShadowDownRight = 2,
  kShadowDown = 3,
  kShadowOutline = 4,
};

inline constexpr Color kDefaultShadowColor = Rgb(40, 40, 40);

struct TextStyle {
  const CanvasFont& font;
  Color color = kBlack;
  std::uint32_t shadowStyle = kNoShadow;
  Color shadowColor = kDefaultShadowColor;
};

// One line of text over its shadow, which lies a whole pixel off at every resolution.
void WriteShadowed(Canvas& canvas, const Rect& area, std::wstring_view text, const TextStyle& style,
                   TextAlign align = TextAlign::kLeft);

// Where a wrapped text ended.
struct WrappedEnd {
  int height;     // of all lines
  Rect lastLine;  // as wide as its text, the blank at its end included
};

enum class DrawPass : std::uint8_t { kMeasure, kDraw };

// Breaks a text after its blanks, so that no line but one of a single word passes the area's right
// edge. Lines below the area are not drawn. An empty text has one line.
WrappedEnd WriteWrapped(Canvas& canvas, const Rect& area, std::wstring_view text,
                        const TextStyle& style, DrawPass pass);

// One line; where it is wider than the area, as many words as fit before an ellipsis, or as many
// letters where not even one word does. Returns the place of what was drawn.
Rect WriteTitle(Canvas& canvas, const Rect& area, std::wstring_view text, const TextStyle& style);

}  // namespace tidewell
