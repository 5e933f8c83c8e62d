// One row of the Today screen: its time, title and icons, laid out as the Today item does.
#pragma once

#include "platform/rect.h"
#include "platform/scale.h"
#include "preview/canvas.h"
#include "preview/icons.h"
#include "preview/item_texts.h"
#include "preview/text_drawing.h"
#include "preview/today_item.h"
#include "preview/today_look.h"

namespace tidewell {

// What all rows of a list share.
struct RowSetting {
  Canvas& canvas;
  IconSource& icons;
  const ScreenScale& scale;
  const TodayLook& look;
  const CanvasFont& generalFont;
  int timeColumn;  // width, from MeasureTimeColumn
};

// What is particular to one row.
struct RowStyle {
  const CanvasFont& font;
  Color color = kBlack;
  IconSlots slots{};
  std::uint32_t icons = 0;  // mask of the codes after the title
  bool isSelected = false;
  bool allowsShadow = true;
  DrawPass pass = DrawPass::kDraw;
};

// The width that times, left icons and leading rectangles take in every row.
int MeasureTimeColumn(Canvas& canvas, const CanvasFont& font, const TodayLook& look,
                      const ScreenScale& scale);

// Draws into `row`, or only measures. Returns the height that the row takes, in pixels; in the
// column layout a measured second line counts as one line, however it will wrap.
int DrawAppointmentRow(const RowSetting& setting, const RowStyle& style, TodayItem& item,
                       const ItemTexts& texts, const Rect& row);
// The same for a task; `foldingType` decides its layout as the setting does an appointment's.
int DrawTaskRow(const RowSetting& setting, const RowStyle& style, TodayItem& item,
                const ItemTexts& texts, const Rect& row, std::uint32_t foldingType);

}  // namespace tidewell
