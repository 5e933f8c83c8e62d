// A locale whose every answer a test lays down.
#pragma once

#include <array>

#include "platform/locale.h"

namespace tidewell {

class FixedLocale final : public Locale {
 public:
  std::wstring timeStyle = L"1";
  std::wstring firstDayOfWeek = L"0";
  std::wstring morning = L"AM";
  std::wstring afternoon = L"PM";
  std::wstring shortDate = L"M/d/yyyy";
  std::wstring longDate = L"dddd, MMM d, yyyy";
  std::array<std::wstring, 7> dayNames{L"Monday", L"Tuesday",  L"Wednesday", L"Thursday",
                                       L"Friday", L"Saturday", L"Sunday"};
  std::size_t shortDayLength = 3;  // of a day's name
  std::array<std::wstring, 12> monthNames{L"Jan", L"Feb", L"Mar", L"Apr", L"May", L"Jun",
                                          L"Jul", L"Aug", L"Sep", L"Oct", L"Nov", L"Dec"};
  LocalTime now{2008, 3, 14, 9, 5};

  std::wstring TimeStyle() override { return timeStyle; }
  std::wstring FirstDayOfWeek() override { return firstDayOfWeek; }
  // By folded code units, which sorts umlauts behind z.
  int CompareIgnoringCase(const std::wstring& left, const std::wstring& right) override;
  LocalTime Now() override { return now; }
  // Knows d to dddd, M to MMM, yy, yyyy and text in single quotes; other characters stand for
  // themselves.
  std::wstring FormatDate(const LocalTime& date, const std::wstring& picture) override;
  std::wstring FormatDate(const LocalTime& date, DateStyle style) override {
    return FormatDate(date, style == DateStyle::kShort ? shortDate : longDate);
  }
  std::wstring DayName(int day) override { return dayNames[static_cast<std::size_t>(day)]; }
  // "9:05 AM" with time style "0", otherwise "09:05".
  std::wstring FormatTime(const LocalTime& time) override;
  // Knows H, HH, h, hh, mm and t, the first letter of `morning` or `afternoon`.
  std::wstring FormatTime(const LocalTime& time, const std::wstring& picture) override;

 private:
  const std::wstring& Marker(const LocalTime& time) const {
    return time.hour < 12 ? morning : afternoon;
  }
};

}  // namespace tidewell
