#include "platform/memory/fixed_locale.h"

#include <algorithm>
#include <array>
#include <chrono>

#include "platform/text.h"

namespace tidewell {

namespace {

std::wstring Padded(int number, std::size_t digits) {
  std::wstring text = FormatDecimal(number);
  if (text.size() < digits) text.insert(0, digits - text.size(), L'0');
  return text;
}

constexpr std::wstring::size_type kWhole = std::wstring::npos;

// From 0, Monday.
int DayOfWeek(const LocalTime& date) {
  const std::chrono::year_month_day day{std::chrono::year(date.year),
                                        std::chrono::month(date.month), std::chrono::day(date.day)};
  return static_cast<int>(std::chrono::weekday(day).iso_encoding()) - 1;
}

int TwelveHour(int hour) {
  return hour % 12 == 0 ? 12 : hour % 12;
}

// Each run of one letter becomes what `field` makes of it; what stands in quotes stays.
template <typename Field>
std::wstring FilledIn(const std::wstring& picture, Field field) {
  std::wstring text;
  for (std::size_t at = 0; at < picture.size();) {
    const wchar_t unit = picture[at];
    if (unit == L'\'') {
      const std::size_t end = std::min(picture.find(L'\'', at + 1), picture.size());
      text += picture.substr(at + 1, end - at - 1);
      at = end + 1;
      continue;
    }
    const std::size_t run = std::min(picture.find_first_not_of(unit, at), picture.size()) - at;
    text += field(unit, run);
    at += run;
  }
  return text;
}

}  // namespace

int FixedLocale::CompareIgnoringCase(const std::wstring& left, const std::wstring& right) {
  return CompareFolded(left, right);
}

std::wstring FixedLocale::FormatDate(const LocalTime& date, const std::wstring& picture) {
  return FilledIn(picture, [&](wchar_t unit, std::size_t run) {
    if (unit == L'd' && run > 2) {
      return DayName(DayOfWeek(date)).substr(0, run < 4 ? shortDayLength : kWhole);
    }
    if (unit == L'd') return Padded(date.day, run);
    if (unit == L'M' && run > 2) return monthNames[date.month - 1u];
    if (unit == L'M') return Padded(date.month, run);
    if (unit == L'y') return Padded(run < 4 ? date.year % 100 : date.year, run);
    return std::wstring(run, unit);
  });
}

std::wstring FixedLocale::FormatTime(const LocalTime& time) {
  const std::wstring minute = L":" + Padded(time.minute, 2);
  if (timeStyle != L"0") return Padded(time.hour, 2) + minute;
  return FormatDecimal(TwelveHour(time.hour)) + minute + L" " + Marker(time);
}

std::wstring FixedLocale::FormatTime(const LocalTime& time, const std::wstring& picture) {
  return FilledIn(picture, [&](wchar_t unit, std::size_t run) {
    if (unit == L'H') return Padded(time.hour, run);
    if (unit == L'h') return Padded(TwelveHour(time.hour), run);
    if (unit == L'm') return Padded(time.minute, run);
    if (unit == L't') return Marker(time).substr(0, 1);
    return std::wstring(run, unit);
  });
}

}  // namespace tidewell
