// Every line of rows.txt says how a row is set, and what is then drawn.
#include "preview/today_row.h"

#include <gtest/gtest.h>

#include <fstream>
#include <map>

#include "platform/memory/fixed_locale.h"
#include "tests/preview/recorder.h"

namespace tidewell {
namespace {

constexpr int kDay = 39521;

struct RowCase {
  explicit RowCase(int format) {
    item.subject = L"Board meeting";
    look.displayFormat = format;
    look.appointmentIcons = 0;
    look.twelveHourClock = false;
  }
  void Set(const std::string& word);
  std::string Draw();

  TodayItem item;
  TodayLook look;
  FixedLocale locale;
  double start = 9, end = 10.5;  // hours from the day's beginning
  bool isTask = false, isDated = true, hasAll = false;
  bool isSelected = false, allowsShadow = true, measures = false;
  int dpi = 96, top = 0, iconSize = 12;
};

void RowCase::Set(const std::string& word) {
  const std::map<std::string, bool*> flags = {{"task", &isTask},
                                              {"dated", &isDated},
                                              {"all", &hasAll},
                                              {"selected", &isSelected},
                                              {"shaded", &allowsShadow},
                                              {"measure", &measures},
                                              {"allday", &item.allDay},
                                              {"overlaps", &item.overlaps},
                                              {"done", &item.completed},
                                              {"active", &item.active},
                                              {"regenerating", &item.regenerating},
                                              {"rects", &look.leadingRects},
                                              {"thin", &look.thinLines},
                                              {"marked", &look.marksConflicts},
                                              {"hide", &look.hidesAllDayIcon},
                                              {"indent", &look.indentsItems},
                                              {"advanced", &look.advancedFonts},
                                              {"clock12", &look.twelveHourClock},
                                              {"two", &look.twoDigitHours}};
  const std::map<std::string, std::uint32_t*> codes = {{"icons", &look.appointmentIcons},
                                                       {"slot1", &look.appointmentSlots[0]},
                                                       {"slot2", &look.appointmentSlots[1]},
                                                       {"taskslot1", &look.calendarTaskSlots[0]},
                                                       {"taskslot2", &look.calendarTaskSlots[1]},
                                                       {"fold", &look.foldingType},
                                                       {"shadow", &look.shadowStyle},
                                                       {"human", &look.humanTime}};
  const std::map<std::string, int*> numbers = {{"again", &item.recurrence},
                                               {"importance", &item.importance},
                                               {"dpi", &dpi},
                                               {"top", &top},
                                               {"iconsize", &iconSize}};
  const std::map<std::string, double*> hours = {{"start", &start}, {"end", &end}};
  const std::map<std::string, std::wstring*> texts = {{"place", &item.location},
                                                      {"title", &item.subject},
                                                      {"lead", &item.leadText},
                                                      {"morning", &locale.morning}};
  const std::size_t sign = word.find('=');
  const std::string name = word.substr(0, sign);
  std::string value = sign == std::string::npos ? "1" : word.substr(sign + 1);
  const double number = std::atof(value.c_str());
  for (char& letter : value) letter = letter == '_' ? ' ' : letter;
  if (flags.contains(name)) {
    *flags.at(name) = number != 0;
  } else if (codes.contains(name)) {
    *codes.at(name) = static_cast<std::uint32_t>(number);
  } else if (numbers.contains(name)) {
    *numbers.at(name) = static_cast<int>(number);
  } else if (hours.contains(name)) {
    *hours.at(name) = number;
  } else {
    texts.at(name)->assign(value.begin(), value.end());
  }
}

std::string RowCase::Draw() {
  item.kind = isTask ? ItemKind::kTask : ItemKind::kAppointment;
  item.start = kDay + start / 24;
  item.end = isDated ? kDay + end / 24 : kNoDate;
  item.reminder = item.note = item.link = hasAll;
  item.sensitivity = hasAll ? 2 : 0;
  item.attendees = hasAll;
  if (item.recurrence == 0) item.recurrence = hasAll;

  const ScreenScale scale(dpi, dpi, false);
  Recorder canvas(scale.ScaleX(12));
  RecordedIcons icons(scale.ScaleX(iconSize));
  const RecordedFont font(scale.ScaleX(12)), general(scale.ScaleX(10));
  const ItemTexts texts = FormatTexts(item, kDay, look, locale);
  const RowSetting setting{canvas, icons,   scale,
                           look,   general, MeasureTimeColumn(canvas, general, look, scale)};
  const RowStyle style{font,
                       kBlack,
                       look.appointmentSlots,
                       look.appointmentIcons,
                       isSelected,
                       allowsShadow,
                       measures ? DrawPass::kMeasure : DrawPass::kDraw};
  const Rect row{0, top, scale.ScaleX(240), scale.ScaleX(200)};
  const int height = isTask ? DrawTaskRow(setting, style, item, texts, row, look.foldingType)
                            : DrawAppointmentRow(setting, style, item, texts, row);
  std::string drawn = std::to_string(height) + " | " + canvas.Take();
  for (const Rect& place : {item.reminderPlace, item.notePlace, item.linkPlace}) {
    if (place != Rect{}) drawn += " | " + Utf8(place);
  }
  return item.checkBoxX == 0 ? drawn : drawn + " | box " + std::to_string(item.checkBoxX);
}

TEST(TodayRow, IsDrawnAsItsListingSays) {
  std::ifstream file(TODAY_ROWS);
  int rows = 0;
  for (std::string line; std::getline(file, line);) {
    if (line.empty() || line[0] == '#') continue;
    const std::string set = line.substr(0, line.find(" | "));
    std::istringstream words(set);
    int format = 0;
    words >> format;
    RowCase row(format);
    for (std::string word; words >> word;) row.Set(word);
    ++rows;
    EXPECT_EQ(set + " | " + row.Draw(), line);
  }
  EXPECT_GE(rows, 60);
}

}  // namespace
}  // namespace tidewell
