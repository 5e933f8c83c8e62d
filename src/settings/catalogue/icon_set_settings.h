// The folders of the chosen icon set; docs/icon-sets.md.
#pragma once

#include "settings/setting.h"

namespace tidewell {

// Empty where the set that ships is shown.
struct IconSetSettings : SettingGroup {
  IconSetSettings() : SettingGroup(SettingKey::kIconSet) {}

  StringSetting InstallPath12{*this, L"InstallPath12", L""};
  StringSetting InstallPath18{*this, L"InstallPath18", L""};
  StringSetting InstallPath24{*this, L"InstallPath24", L""};
  // For the Today item: in place of icons that an item does not have.
  StringSetting InstallPathBlank{*this, L"InstallPathBlank", L""};
};

}  // namespace tidewell
