// The tab of birthdays, anniversaries and other special events.
#pragma once

#include "settings/setting.h"

namespace tidewell {

struct SpecialEventsSettings : SettingGroup {
  SpecialEventsSettings() : SettingGroup(SettingKey::kSEvents) {}

  DwordSetting SEventDays{*this, L"SEventDays", 2};
  DwordSetting SEAlertBeforeDays{*this, L"SEAlertBeforeDays", 0};
  DwordSetting SEDateFormat{*this, L"SEDateFormat", 0};
  DwordSetting SEContactFormat{*this, L"SEContactFormat", 0};
  DwordSetting SEApptsDaySpan{*this, L"SEApptsDaySpan", 30};
  DwordSetting SEFilterAlertBeforeDays{*this, L"SEFilterAlertBeforeDays", 0};
  StringSetting AdditionalFilterCat1{*this, L"AdditionalFilterCat1", L""};
  StringSetting AdditionalFilterCat2{*this, L"AdditionalFilterCat2", L""};
  StringSetting AdditionalFilterCat3{*this, L"AdditionalFilterCat3", L""};
  StringSetting AdditionalFilterCat4{*this, L"AdditionalFilterCat4", L""};
  DwordSetting BreakLineStyle{*this, L"BreakLineStyle", 1};
  DwordSetting IncldFoldBttns{*this, L"IncldFoldBttns", 1};
  DwordSetting IncldCounters{*this, L"IncldCounters", 1};
  StringSetting SEventsSelCategory{*this, L"SEventsSelCategory", L"", kReadOnly};
  DwordSetting SEventsSelFilter{*this, L"SEventsSelFilter", 0, kReadOnly};
  StringSetting SEventsRecentFilters{*this, L"SEventsRecentFilters", L"", kReadOnly};
  DwordSetting FoldingState{*this, L"FoldingState", 0, kReadOnly};
};

}  // namespace tidewell
