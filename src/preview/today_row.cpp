#include "preview/today_row.h"

#include <algorithm>

#include "preview/icon_run.h"

namespace tidewell {

namespace {

// As the setting FoldingType has them.
enum Folding : std::uint32_t { kFlowing = 0, kInColumns = 1, kFlowingWhenSelected = 2 };

constexpr int kTextHeight = 500;  // more than any screen has, at 96 dots per inch

int FilledSlots(const IconSlots& slots) {
  return static_cast<int>(std::count_if(slots.begin(), slots.end(),
                                        [](std::uint32_t code) { return code != kNoIcon; }));
}

int Indentation(const TodayLook& look, const ScreenScale& scale) {
  return look.indentsItems ? scale.ScaleX(8) : 0;
}

int SlotsWidth(const TodayLook& look, const ScreenScale& scale) {
  const int slots =
      std::max(FilledSlots(look.appointmentSlots), FilledSlots(look.calendarTaskSlots));
  return scale.ScaleX(13) * slots + Indentation(look, scale);
}

class RowDrawer {
 public:
  RowDrawer(const RowSetting& setting, const RowStyle& style, TodayItem& item,
            const ItemTexts& texts, const Rect& row);

  int Appointment();
  int Task(std::uint32_t foldingType);

 private:
  int S(int length) const { return setting_.scale.ScaleX(length); }
  int Sy(int length) const { return setting_.scale.ScaleY(length); }
  bool IsDrawing() const { return style_.pass == DrawPass::kDraw; }
  TextStyle StyleOf(const CanvasFont& font) const;
  int Width(const TextStyle& text, const std::wstring& of) const {
    return setting_.canvas.LineWidth(text.font, of);
  }
  void WriteLine(const TextStyle& style, int left, int right, const std::wstring& text,
                 TextAlign align = TextAlign::kLeft);
  void DrawSymbol(IconSymbol symbol, int x, int y);

  void DrawSlots();
  int DrawTime(int rowStart);
  int DrawAllDayMark(int rowStart);
  void DrawLeadingRect(int rowStart, int height);

  int DrawCheckBox(int x);
  void DrawActiveMark(int x);
  int DrawLeadText(int textLeft, int checkBoxX);

  int DrawTitleAndIcons(int left, std::uint32_t foldingType);
  int DrawFlowing(int left);
  int DrawInColumns(int left);
  int DrawSecondLine(int left, int top);

  const RowSetting& setting_;
  const RowStyle& style_;
  const TodayLook& look_;
  TodayItem& item_;
  const ItemTexts& texts_;
  Rect row_;
  int right_;  // of all text and icons
  int lineHeight_;
  TextStyle rowText_;
  TextStyle smallText_;  // times and second lines, which have a font of their own in advanced fonts
  IconDrawer icons_;
};

RowDrawer::RowDrawer(const RowSetting& setting, const RowStyle& style, TodayItem& item,
                     const ItemTexts& texts, const Rect& row)
    : setting_(setting),
      style_(style),
      look_(setting.look),
      item_(item),
      texts_(texts),
      row_(row),
      right_(row.Right() - S(2)),
      lineHeight_(setting.canvas.LineHeight(style.font)),
      rowText_(StyleOf(style.font)),
      smallText_(StyleOf(look_.advancedFonts ? style.font : setting.generalFont)),
      icons_(setting.canvas, setting.icons, setting.scale, lineHeight_, style.pass) {
  if (IsDrawing()) item_.reminderPlace = item_.notePlace = item_.linkPlace = {};
}

TextStyle RowDrawer::StyleOf(const CanvasFont& font) const {
  const bool hasShadow = !style_.isSelected && style_.allowsShadow;
  return {font, style_.color, hasShadow ? look_.shadowStyle : kNoShadow, look_.shadowColor};
}

void RowDrawer::WriteLine(const TextStyle& style, int left, int right, const std::wstring& text,
                          TextAlign align) {
  if (!IsDrawing()) return;
  const Rect area = Rect::Between(left, row_.top, right, row_.top + S(kTextHeight));
  WriteShadowed(setting_.canvas, area, text, style, align);
}

void RowDrawer::DrawSymbol(IconSymbol symbol, int x, int y) {
  if (IsDrawing()) PaintIcon(setting_.canvas, setting_.icons.Find(symbol), x, y);
}

int RowDrawer::Appointment() {
  const bool rectBeforeText = look_.leadingRects && !look_.HasTimeColumn();
  const int rowStart = row_.left + setting_.timeColumn + (rectBeforeText ? S(12) : 0);
  DrawSlots();
  const int bottom = DrawTitleAndIcons(DrawTime(rowStart), look_.foldingType);
  const int height = bottom + Sy(1) - row_.top;
  DrawLeadingRect(rowStart, height);
  return height;
}

int RowDrawer::Task(std::uint32_t foldingType) {
  const int column = row_.left + setting_.timeColumn;
  const bool boxInColumn = look_.HasTimeColumn() && item_.IsDated();
  const int checkBoxX = boxInColumn ? column - S(12) : column + S(1);
  DrawSlots();
  const int titleLeft = DrawLeadText(DrawCheckBox(checkBoxX), checkBoxX);
  return DrawTitleAndIcons(titleLeft, foldingType) + Sy(1) - row_.top;
}

// An empty slot takes no room, as none is reserved for it.
void RowDrawer::DrawSlots() {
  int x = row_.left + S(1) + Indentation(look_, setting_.scale);
  for (const std::uint32_t code : style_.slots) {
    if (code == kNoIcon) continue;
    icons_.DrawCode(item_, code, x, row_.top);
    x += icons_.CellStep();
  }
}

// Returns where the title begins.
int RowDrawer::DrawTime(int rowStart) {
  if (item_.allDay) return DrawAllDayMark(rowStart);
  if (look_.HasTimeColumn()) {
    WriteLine(smallText_, row_.left + S(4), rowStart - S(2), texts_.time, TextAlign::kRight);
    return rowStart;
  }
  if (!look_.HasInlineTime() || texts_.time.empty()) return rowStart;
  WriteLine(smallText_, rowStart, rowStart + S(180), texts_.time);
  return rowStart + std::min(Width(smallText_, texts_.time), S(180)) + S(2);
}

int RowDrawer::DrawAllDayMark(int rowStart) {
  if (look_.hidesAllDayIcon) return rowStart;
  const int x = look_.HasTimeColumn() ? rowStart - S(2) - S(12) : rowStart - S(1);
  icons_.DrawInCell(IconSymbol::kAllDay, x, row_.top);
  return look_.HasTimeColumn() ? rowStart : rowStart + S(14);
}

void RowDrawer::DrawLeadingRect(int rowStart, int height) {
  if (!look_.leadingRects || !IsDrawing()) return;
  const int left = look_.HasTimeColumn() ? row_.left + S(5) + SlotsWidth(look_, setting_.scale)
                                         : rowStart - S(10);
  const Rect frame = Rect::Between(left, row_.top + Sy(1), left + S(6), row_.top + height - Sy(1));
  const bool conflicts = look_.marksConflicts && item_.overlaps;
  setting_.canvas.Fill(frame, kBlack);
  setting_.canvas.Fill(frame.Inset(look_.thinLines ? 1 : S(1)), conflicts ? kRed : kWhite);
}

// Returns where the text after the check box begins.
int RowDrawer::DrawCheckBox(int x) {
  if (IsDrawing()) item_.checkBoxX = x;
  DrawSymbol(item_.completed ? IconSymbol::kTaskChecked : IconSymbol::kTaskNotChecked, x,
             row_.top - S(4) + lineHeight_ / 2);
  const int textLeft = x + S(11);
  if (look_.HasTimeColumn() || !item_.active || !item_.IsDated()) return textLeft;
  DrawActiveMark(x + S(10));
  return textLeft + S(12);
}

void RowDrawer::DrawActiveMark(int x) {
  DrawSymbol(IconSymbol::kActiveTask, x, row_.top - S(6) + lineHeight_ / 2 + 1);
}

// Returns where the title begins.
int RowDrawer::DrawLeadText(int textLeft, int checkBoxX) {
  const std::wstring& text = item_.leadText;
  if (text.empty()) return textLeft;
  const int width = Width(rowText_, text);
  if (!look_.HasTimeColumn() || !item_.IsDated()) {
    WriteLine(rowText_, textLeft, right_, text);
    return textLeft + width + S(1);
  }
  WriteLine(rowText_, row_.left + S(4), checkBoxX, text, TextAlign::kRight);
  if (item_.active) DrawActiveMark(checkBoxX - width - S(12));
  return textLeft;
}

int RowDrawer::DrawTitleAndIcons(int left, std::uint32_t foldingType) {
  const bool flows =
      foldingType == kFlowing || (foldingType == kFlowingWhenSelected && style_.isSelected);
  return flows ? DrawFlowing(left) : DrawInColumns(left);
}

// These return the bottom of the last line.
int RowDrawer::DrawFlowing(int left) {
  const Rect area = Rect::Between(left, row_.top, right_, row_.top + S(kTextHeight));
  const Rect end =
      WriteWrapped(setting_.canvas, area, texts_.title, rowText_, style_.pass).lastLine;
  FlowingPlace place{end.Right() + S(2), end.top, end.Bottom(), right_, left};
  icons_.DrawRun(item_, style_.icons, place, Overflow::kWrap);
  return texts_.secondLine.empty() ? place.bottom : DrawSecondLine(left, place.bottom);
}

int RowDrawer::DrawInColumns(int left) {
  const int bottom = row_.top + lineHeight_;
  const bool hasSecondLine = look_.HasSecondLine() && !texts_.secondLine.empty();
  if (!IsDrawing()) return hasSecondLine ? bottom + lineHeight_ : bottom;

  // The icons' column is as wide as all of them, with a gap before it; a narrow title pushes it to
  // the right, where those that do not fit are left out.
  const int iconsWidth = icons_.RunWidth(item_, style_.icons);
  const int titleRight =
      iconsWidth > 0 ? std::max(right_ - S(2) - iconsWidth, left + S(20)) : right_;
  WriteTitle(setting_.canvas, Rect::Between(left, row_.top, titleRight, row_.top + S(kTextHeight)),
             texts_.title, rowText_);
  FlowingPlace place{titleRight + S(2), row_.top, bottom, right_, left};
  icons_.DrawRun(item_, style_.icons, place, Overflow::kStop);
  return hasSecondLine ? DrawSecondLine(left, bottom) : bottom;
}

int RowDrawer::DrawSecondLine(int left, int top) {
  const Rect area = Rect::Between(left, top, right_, top + S(kTextHeight));
  return top +
         WriteWrapped(setting_.canvas, area, texts_.secondLine, smallText_, style_.pass).height;
}

}  // namespace

int MeasureTimeColumn(Canvas& canvas, const CanvasFont& font, const TodayLook& look,
                      const ScreenScale& scale) {
  int width = scale.ScaleX(2);
  if (look.HasTimeColumn()) {
    width = canvas.LineWidth(font, look.HasShortTimes() ? L"XXMultiday:" : L"X22:22-Multiday:");
    if (look.leadingRects) width += scale.ScaleX(12);
  }
  return width + SlotsWidth(look, scale);
}

int DrawAppointmentRow(const RowSetting& setting, const RowStyle& style, TodayItem& item,
                       const ItemTexts& texts, const Rect& row) {
  return RowDrawer(setting, style, item, texts, row).Appointment();
}

int DrawTaskRow(const RowSetting& setting, const RowStyle& style, TodayItem& item,
                const ItemTexts& texts, const Rect& row, std::uint32_t foldingType) {
  return RowDrawer(setting, style, item, texts, row).Task(foldingType);
}

}  // namespace tidewell
