#include "platform/windows/windows_locale.h"

#include <windows.h>

#include "platform/text.h"

namespace tidewell {

namespace {

constexpr int kLongestText = 256;  // of a formatted date or time, with its zero

// A fact of one character; where the locale has none the buffer stays empty.
std::wstring ShortFact(LCID localeId, LCTYPE fact) {
  wchar_t text[4] = {};
  GetLocaleInfoW(localeId, fact, text, 4);
  return text;
}

SYSTEMTIME SystemTimeOf(const LocalTime& time) {
  SYSTEMTIME system{};
  system.wYear = time.year;
  system.wMonth = time.month;
  system.wDay = time.day;
  system.wHour = time.hour;
  system.wMinute = time.minute;
  system.wSecond = time.second;
  return system;
}

// `flags` chooses one of the locale's own pictures when `picture` is null.
std::wstring DateText(LCID localeId, DWORD flags, const LocalTime& date, const wchar_t* picture) {
  const SYSTEMTIME day = SystemTimeOf(date);
  wchar_t text[kLongestText] = {};
  GetDateFormatW(localeId, flags, &day, picture, text, kLongestText);
  return text;
}

// In the locale's own picture when `picture` is null.
std::wstring TimeText(LCID localeId, const LocalTime& time, const wchar_t* picture) {
  const SYSTEMTIME moment = SystemTimeOf(time);
  wchar_t text[kLongestText] = {};
  GetTimeFormatW(localeId, TIME_NOSECONDS, &moment, picture, text, kLongestText);
  return text;
}

}  // namespace

WindowsLocale::WindowsLocale() : localeId_(LOCALE_USER_DEFAULT) {}

std::wstring WindowsLocale::TimeStyle() {
  return ShortFact(localeId_, LOCALE_ITIME);
}

std::wstring WindowsLocale::FirstDayOfWeek() {
  return ShortFact(localeId_, LOCALE_IFIRSTDAYOFWEEK);
}

int WindowsLocale::CompareIgnoringCase(const std::wstring& left, const std::wstring& right) {
  const int order =
      CompareStringW(localeId_, NORM_IGNORECASE, left.data(), static_cast<int>(left.size()),
                     right.data(), static_cast<int>(right.size()));
  return order == 0 ? CompareFolded(left, right) : order - CSTR_EQUAL;
}

LocalTime WindowsLocale::Now() {
  SYSTEMTIME now;
  GetLocalTime(&now);
  return {now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond};
}

std::wstring WindowsLocale::FormatDate(const LocalTime& date, const std::wstring& picture) {
  return DateText(localeId_, 0, date, picture.c_str());
}

std::wstring WindowsLocale::FormatDate(const LocalTime& date, DateStyle style) {
  return DateText(localeId_, style == DateStyle::kShort ? DATE_SHORTDATE : DATE_LONGDATE, date,
                  nullptr);
}

std::wstring WindowsLocale::DayName(int day) {
  wchar_t text[kLongestText] = {};
  GetLocaleInfoW(localeId_, LOCALE_SDAYNAME1 + static_cast<LCTYPE>(day), text, kLongestText);
  return text;
}

std::wstring WindowsLocale::FormatTime(const LocalTime& time) {
  return TimeText(localeId_, time, nullptr);
}

std::wstring WindowsLocale::FormatTime(const LocalTime& time, const std::wstring& picture) {
  return TimeText(localeId_, time, picture.c_str());
}

}  // namespace tidewell
