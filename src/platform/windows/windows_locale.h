#pragma once

#include "platform/locale.h"

namespace tidewell {

class WindowsLocale final : public Locale {
 public:
  WindowsLocale();  // the user's
  explicit WindowsLocale(std::uint32_t localeId) : localeId_(localeId) {}

  std::wstring TimeStyle() override;
  std::wstring FirstDayOfWeek() override;
  int CompareIgnoringCase(const std::wstring& left, const std::wstring& right) override;
  LocalTime Now() override;
  std::wstring FormatDate(const LocalTime& date, const std::wstring& picture) override;
  std::wstring FormatDate(const LocalTime& date, DateStyle style) override;
  std::wstring DayName(int day) override;
  std::wstring FormatTime(const LocalTime& time) override;
  std::wstring FormatTime(const LocalTime& time, const std::wstring& picture) override;

 private:
  std::uint32_t localeId_;
};

}  // namespace tidewell
