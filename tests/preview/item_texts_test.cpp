#include "preview/item_texts.h"

#include <gtest/gtest.h>

#include "platform/memory/fixed_locale.h"
#include "tests/support/utf8.h"

namespace tidewell {
namespace {

constexpr int kDay = 39521;  // 14 March 2008

TEST(OleDate, CountsDaysFromTheEndOf1899) {
  EXPECT_EQ(DayNumber({1899, 12, 30}), 0);
  EXPECT_EQ(DayNumber({2008, 3, 14}), kDay);
  EXPECT_EQ(DayNumber({4501, 1, 1}), static_cast<int>(kNoDate));
  const LocalTime late = TimeOfDay(kDay + 0.9993055);  // a hair before 23:59
  EXPECT_EQ(late.hour * 60 + late.minute, 23 * 60 + 59);
}

// Start and end are hours from the midnight before the day.
TEST(TimeRange, FollowsTheDayTheHumanTimeAndTheClock) {
  struct Clock {
    bool twelveHours, twoDigits;
    const wchar_t* morning;
    const wchar_t* afternoon;
  };
  constexpr Clock kGerman{false, false, L"", L""}, kGermanWide{false, true, L"", L""};
  constexpr Clock kEnglish{true, false, L"AM", L"PM"}, kEnglishWide{true, true, L"AM", L"PM"};
  constexpr Clock kGreek{true, false, L"\u03C0\u03BC", L"\u03BC\u03BC"};
  const struct {
    double start, end;
    std::uint32_t humanTime;
    Clock clock;
    const char* full;
    const char* shortForm;
  } cases[] = {
      {9, 15.5, 0, kGerman, "9:00-15:30", "9:00"},
      {9, 15.5, 0, kGermanWide, "09:00-15:30", "09:00"},
      {9, 15.5, 0, kEnglish, "9:00A-3:30P", "9:00A"},
      {0, 12, 0, kEnglishWide, "12:00A-12:00P", "12:00A"},
      {9, 15.5, 0, kGreek, "9:00\u03C0-3:30\u03BC", "9:00\u03C0"},
      {22, 26, 6, kGerman, "22:00-2:00", "22:00"},
      {22, 26, 2, kGerman, "22:00-MultiDay", "22:00"},
      {22, 26, 0, kGerman, "22:00-MultiDay", "22:00"},
      {22, 24, 0, kGerman, "22:00-0:00", "22:00"},
      {22, 72, 0, kGerman, "22:00-0:00", "22:00"},
      {-2, 2, 0, kGerman, "MultiDay-2:00", ">2:00"},
      {-2, 24.5, 6, kGerman, "MultiDay", "MultiDay"},
  };
  for (const auto& c : cases) {
    FixedLocale locale;
    locale.morning = c.clock.morning;
    locale.afternoon = c.clock.afternoon;
    TodayLook look;
    look.twelveHourClock = c.clock.twelveHours;
    look.twoDigitHours = c.clock.twoDigits;
    look.humanTime = c.humanTime;
    const double start = kDay + c.start / 24, end = kDay + c.end / 24;
    EXPECT_EQ(Utf8(TimeRangeText(start, end, kDay, false, look, locale)), c.full) << c.start;
    EXPECT_EQ(Utf8(TimeRangeText(start, end, kDay, true, look, locale)), c.shortForm) << c.start;
  }
}

TEST(ItemTexts, StandWhereTheDisplayFormatPutsThem) {
  // Subject, place; each: time | title | second line.
  const struct {
    std::vector<int> formats;
    const char* located;
    const char* bare;
    const char* allDay;
  } cases[] = {
      {{1}, "9:00-10:00:|S|(P)", "9:00-10:00:|S|", ":|S|(P)"},
      {{2}, "9:00:|S|(P)", "9:00:|S|", ":|S|(P)"},
      {{3, 7}, "9:00-10:00:|S (P)|", "9:00-10:00:|S|", ":|S (P)|"},
      {{4, 8}, "9:00:|S (P)|", "9:00:|S|", ":|S (P)|"},
      {{5, 9}, "9:00-10:00:|S|", "9:00-10:00:|S|", ":|S|"},
      {{6, 10}, "9:00:|S|", "9:00:|S|", ":|S|"},
      {{11}, "|S|[9:00-10:00] (P)", "|S|[9:00-10:00]", "|S| (P)"},
      {{12}, "|S|[9:00-10:00]", "|S|[9:00-10:00]", "|S|"},
  };
  FixedLocale locale;
  TodayLook look;
  look.twelveHourClock = false;
  const auto text = [&](const TodayItem& item) {
    const ItemTexts texts = FormatTexts(item, kDay, look, locale);
    return Utf8(texts.time + L"|" + texts.title + L"|" + texts.secondLine);
  };
  TodayItem item;
  item.subject = L"S";
  item.start = kDay + 9 / 24.0;
  item.end = kDay + 10 / 24.0;
  for (const auto& c : cases) {
    for (const int format : c.formats) {
      look.displayFormat = format;
      item.allDay = false;
      item.location = L"P";
      EXPECT_EQ(text(item), c.located) << format;
      item.allDay = true;
      EXPECT_EQ(text(item), c.allDay) << format;
      item.allDay = false;
      item.location.clear();
      EXPECT_EQ(text(item), c.bare) << format;
      EXPECT_EQ(text(SampleTask(kDay, L"S")), "|S|") << format;
    }
  }
}

}  // namespace
}  // namespace tidewell
