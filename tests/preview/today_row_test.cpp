// Every line of rows.txt says how a row is set, and what is then drawn.
#include "preview/today_row.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <functional>
#include <map>
#include <sstream>

#include "platform/memory/fixed_locale.h"
#include "tests/preview/recorder.h"

namespace tidewell {
namespace {

constexpr int kDay = 39521;

std::wstring Spaced(const std::string& word) {
  std::wstring text(word.begin(), word.end());
  std::replace(text.begin(), text.end(), L'_', L' ');
  return text;
}

// A row 240 design pixels wide. Its font is 12 pixels high, the general one 10.
struct RowCase {
  RowCase() {
    item.subject = L"Board meeting";
    item.start = kDay + 9 / 24.0;
    item.end = kDay + 10.5 / 24;
    look.twelveHourClock = false;
    look.appointmentIcons = look.taskIcons = 0;
  }

  void Set(const std::string& word);
  std::string Draw();

  TodayItem item;
  TodayLook look;
  int dpi = 96;
  int top = 0;
  int iconSize = 12;
  bool selected = false;
  bool allowsShadow = true;
  DrawPass pass = DrawPass::kDraw;
};

void RowCase::Set(const std::string& word) {
  const std::size_t sign = word.find('=');
  const std::string value = sign == std::string::npos ? "" : word.substr(sign + 1);
  const int number = std::atoi(value.c_str());
  const auto code = static_cast<std::uint32_t>(number);
  const std::map<std::string, std::function<void()>> words = {
      {"place", [&] { item.location = Spaced(value); }},
      {"title", [&] { item.subject = Spaced(value); }},
      {"hours", [&] { item.end = item.start + number / 24.0; }},
      {"allday", [&] { item.allDay = true; }},
      {"overlaps", [&] { item.overlaps = true; }},
      {"full",
       [&] {
         item.reminder = item.note = item.link = item.recurrence = 1;
         item.sensitivity = 2;
         item.attendees = true;
       }},
      {"again", [&] { item.recurrence = number; }},
      {"task", [&] { item.kind = ItemKind::kTask; }},
      {"undated", [&] { item.end = kNoDate; }},
      {"done", [&] { item.completed = true; }},
      {"active", [&] { item.active = true; }},
      {"regenerating", [&] { item.regenerating = true; }},
      {"importance", [&] { item.importance = number; }},
      {"lead", [&] { item.leadText = Spaced(value); }},
      {"icons", [&] { look.appointmentIcons = code; }},
      {"slot1", [&] { look.appointmentSlots[0] = code; }},
      {"slot2", [&] { look.appointmentSlots[1] = code; }},
      {"taskslot1", [&] { look.calendarTaskSlots[0] = code; }},
      {"taskslot2", [&] { look.calendarTaskSlots[1] = code; }},
      {"fold", [&] { look.foldingType = code; }},
      {"norect", [&] { look.leadingRects = false; }},
      {"thin", [&] { look.thinLines = true; }},
      {"unmarked", [&] { look.marksConflicts = false; }},
      {"hide", [&] { look.hidesAllDayIcon = true; }},
      {"indent", [&] { look.indentsItems = true; }},
      {"advanced", [&] { look.advancedFonts = true; }},
      {"clock12", [&] { look.twelveHourClock = true; }},
      {"shadow", [&] { look.shadowStyle = code; }},
      {"plain", [&] { allowsShadow = false; }},
      {"selected", [&] { selected = true; }},
      {"measure", [&] { pass = DrawPass::kMeasure; }},
      {"dpi", [&] { dpi = number; }},
      {"top", [&] { top = number; }},
      {"iconsize", [&] { iconSize = number; }},
  };
  words.at(word.substr(0, sign))();
}

std::string PlaceNote(const char* name, const Rect& place) {
  if (place == Rect{}) return "";
  std::ostringstream note;
  note << " | " << name << ' ' << place.left << ',' << place.top << ' ' << place.width << 'x'
       << place.height;
  return note.str();
}

std::string RowCase::Draw() {
  const ScreenScale scale(dpi, dpi, false);
  Recorder canvas(scale.ScaleX(12));
  RecordedIcons icons(scale.ScaleX(iconSize));
  const RecordedFont font(scale.ScaleX(12)), general(scale.ScaleX(10));
  FixedLocale locale;
  const ItemTexts texts = FormatTexts(item, kDay, look, locale);
  const RowSetting setting{canvas, icons,   scale,
                           look,   general, MeasureTimeColumn(canvas, general, look, scale)};
  const RowStyle style{font,         kBlack, look.appointmentSlots, look.appointmentIcons, selected,
                       allowsShadow, pass};
  const Rect row{0, top, scale.ScaleX(240), scale.ScaleX(200)};
  const int height = item.IsTask() ? DrawTaskRow(setting, style, item, texts, row, look.foldingType)
                                   : DrawAppointmentRow(setting, style, item, texts, row);
  std::string drawn = std::to_string(height) + " | " + canvas.Take();
  drawn += PlaceNote("reminder", item.reminderPlace) + PlaceNote("note", item.notePlace) +
           PlaceNote("link", item.linkPlace);
  if (item.checkBoxX != 0) drawn += " | box " + std::to_string(item.checkBoxX);
  return drawn;
}

TEST(TodayRow, IsDrawnAsItsListingSays) {
  std::ifstream file(TODAY_ROWS);
  int rows = 0;
  for (std::string line; std::getline(file, line);) {
    if (line.empty() || line[0] == '#') continue;
    const std::size_t bar = line.find(" | ");
    std::istringstream words(line.substr(0, bar));
    RowCase row;
    words >> row.look.displayFormat;
    for (std::string word; words >> word;) row.Set(word);
    ++rows;
    EXPECT_EQ(line.substr(0, bar) + " | " + row.Draw(), line);
  }
  EXPECT_GE(rows, 60);
}

}  // namespace
}  // namespace tidewell
