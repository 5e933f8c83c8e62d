// The categories as a whole; each category has a record of its own.
#pragma once

#include "settings/setting.h"

namespace tidewell {

struct CategoriesSettings : SettingGroup {
  CategoriesSettings() : SettingGroup(SettingKey::kCategories) {}

  StringSetting AdditionalIconsFolder{*this, L"AdditionalIconsFolder", L""};
};

}  // namespace tidewell
