#include "pages/settings_without_row.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tidewell {

namespace {

struct Exception {
  std::wstring_view name;
  NoRow why;
};

constexpr std::array<Exception, 8> kExceptions = {{
    {L"FirstTimeSettingsMsg", NoRow::kAfterFirstStart},
    {L"ApptDisplayFormat", NoRow::kOnTodayScreen},
    {L"CalendarTabEnabled", NoRow::kNotListed},
    {L"CalendarTabOrder", NoRow::kNotListed},
    {L"CntctsActiveLanguages", NoRow::kWithAnother},
    {L"InstallPath18", NoRow::kWithAnother},
    {L"InstallPath24", NoRow::kWithAnother},
    {L"InstallPathBlank", NoRow::kWithAnother},
}};

}  // namespace

NoRow WhyNoRow(const Setting& setting) {
  if (setting.Key() < SettingKey::kRoot) return NoRow::kOfAnotherProgram;
  if (setting.IsReadOnly()) return NoRow::kKeptByTodayItem;
  const auto* const found = std::ranges::find(kExceptions, setting.Name(), &Exception::name);
  return found == kExceptions.end() ? NoRow::kNotKnown : found->why;
}

}  // namespace tidewell
