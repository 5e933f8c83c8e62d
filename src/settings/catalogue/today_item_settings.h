// What the Today screen's own key tells of the installation. Opened, never created.
#pragma once

#include "settings/setting.h"

namespace tidewell {

struct TodayItemSettings : SettingGroup {
  TodayItemSettings() : SettingGroup(SettingKey::kTodayItem) {}

  StringSetting ProgramFiles{*this, L"ProgramFiles", L"\\Program Files", kReadOnly};
  StringSetting InstallPath{*this, L"InstallPath", ValueOf(ProgramFiles), kReadOnly};
};

}  // namespace tidewell
