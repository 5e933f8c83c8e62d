// A locale whose every answer a test lays down.
#pragma once

#include "platform/locale.h"

namespace tidewell {

class FixedLocale final : public Locale {
 public:
  std::wstring timeStyle = L"1";
  std::wstring firstDayOfWeek = L"0";
  std::wstring morning = L"AM";
  std::wstring afternoon = L"PM";
  LocalTime now{2008, 3, 14, 9, 5};

  std::wstring TimeStyle() override { return timeStyle; }
  std::wstring FirstDayOfWeek() override { return firstDayOfWeek; }
  // By folded code units, which sorts umlauts behind z.
  int CompareIgnoringCase(const std::wstring& left, const std::wstring& right) override;
  LocalTime Now() override { return now; }
  // Knows d, dd, M, MM, yy, yyyy and text in single quotes; other characters stand for themselves.
  std::wstring FormatDate(const LocalTime& date, const std::wstring& picture) override;
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
