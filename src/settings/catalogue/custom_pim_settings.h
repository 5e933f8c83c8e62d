// The personal-information program that the item works with.
#pragma once

#include "settings/setting.h"

namespace tidewell {

struct CustomPimSettings : SettingGroup {
  CustomPimSettings() : SettingGroup(SettingKey::kCustomPim) {}

  DwordSetting PimSw{*this, L"PimSw", 0};
  // In minutes.
  DwordSetting DefaultReminderAppts{*this, L"DefaultReminderAppts", 15};
  DwordSetting DefaultReminderTasks{*this, L"DefaultReminderTasks", 480};
  DwordSetting OverridePimCatIcons{*this, L"OverridePimCatIcons", 0};
  DwordSetting OverridePimCatColros{*this, L"OverridePimCatColros", 0};
  DwordSetting LeaveAFRunning{*this, L"LeaveAFRunning", 0};
  DwordSetting HideABCVals{*this, L"HideABCVals", 1};
};

}  // namespace tidewell
