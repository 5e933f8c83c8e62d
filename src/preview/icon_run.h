// The icons that follow a title, in cells of one size.
#pragma once

#include "platform/scale.h"
#include "preview/canvas.h"
#include "preview/icons.h"
#include "preview/text_drawing.h"
#include "preview/today_item.h"

namespace tidewell {

// Where the next icon goes: along a line of text and, where that is allowed, on to the next one.
struct FlowingPlace {
  int x;
  int top;  // of the line
  int bottom;
  int right;     // limit of the line
  int wrapLeft;  // where a further line begins
};

enum class Overflow : std::uint8_t { kWrap, kStop };

class IconDrawer {
 public:
  // `lineHeight` is that of the row's font. Both references outlive the drawer.
  IconDrawer(Canvas& canvas, IconSource& icons, const ScreenScale& scale, int lineHeight,
             DrawPass pass)
      : canvas_(canvas), icons_(icons), scale_(scale), lineHeight_(lineHeight), pass_(pass) {}

  // Draws in the middle of the cell at `x`, and of the line. False when nothing is drawn.
  bool DrawInCell(IconSymbol symbol, int x, int lineTop);
  // The icon that the item has for a code, if it has one; the item learns where it stands.
  void DrawCode(TodayItem& item, std::uint32_t code, int x, int lineTop);
  // All icons of a mask that the item has, in their fixed order.
  void DrawRun(TodayItem& item, std::uint32_t mask, FlowingPlace& place, Overflow overflow);
  // The width of such a run on one line; draws nothing.
  int RunWidth(TodayItem& item, std::uint32_t mask) const;

  int Cell() const { return scale_.ScaleX(12); }
  int CellStep() const { return scale_.ScaleX(13); }

 private:
  // False when the icon does not fit and must not wrap.
  bool MakeRoom(FlowingPlace& place, Overflow overflow) const;

  Canvas& canvas_;
  IconSource& icons_;
  const ScreenScale& scale_;
  int lineHeight_;
  DrawPass pass_;
};

}  // namespace tidewell
