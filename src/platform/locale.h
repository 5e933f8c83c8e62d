// The door to the user's locale: the facts that settings and pages depend on.
#pragma once

#include <cstdint>
#include <string>

namespace tidewell {

struct LocalTime {
  std::uint16_t year = 2000;
  std::uint16_t month = 1;
  std::uint16_t day = 1;
  std::uint16_t hour = 0;
  std::uint16_t minute = 0;
  std::uint16_t second = 0;
};

// The user's own pictures of a date.
enum class DateStyle : std::uint8_t { kShort, kLong };

class Locale {
 public:
  virtual ~Locale() = default;
  // LOCALE_ITIME as text, at most 3 characters: "0" is a 12-hour clock, "1" a 24-hour clock.
  virtual std::wstring TimeStyle() = 0;
  // LOCALE_IFIRSTDAYOFWEEK as text: "0" is Monday, "6" Sunday.
  virtual std::wstring FirstDayOfWeek() = 0;
  // Below, equal to or above 0, without regard to case, as the user's locale sorts.
  virtual int CompareIgnoringCase(const std::wstring& left, const std::wstring& right) = 0;
  virtual LocalTime Now() = 0;
  // `picture` in the system's terms, such as "yyyy_MM_dd".
  virtual std::wstring FormatDate(const LocalTime& date, const std::wstring& picture) = 0;
  virtual std::wstring FormatDate(const LocalTime& date, DateStyle style) = 0;
  // Of a day of the week, counted from 0, Monday.
  virtual std::wstring DayName(int day) = 0;
  // The time of day in the user's format, without seconds.
  virtual std::wstring FormatTime(const LocalTime& time) = 0;
  // `picture` in the system's terms, such as "hh:mmt".
  virtual std::wstring FormatTime(const LocalTime& time, const std::wstring& picture) = 0;
};

}  // namespace tidewell
