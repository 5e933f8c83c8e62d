// Where Pocket Informant keeps its category icons and its database.
#pragma once

#include "settings/setting.h"

namespace tidewell {

struct PocketInformantSettings : SettingGroup {
  PocketInformantSettings() : SettingGroup(SettingKey::kPocketInformant) {}

  StringSetting IconPath{*this, L"IconPath", L"My Documents\\WebIS\\Icons", kReadOnly};
  StringSetting WebIS_Folder{*this, L"WebIS_Folder", L"My Documents", kReadOnly};
  StringSetting PIVOL{*this, L"PIVOL", ValueOf(WebIS_Folder, L"\\WebIS\\PocketInformant.vol"),
                      kReadOnly};
  DwordSetting version{*this, L"version", 700, kReadOnly};
};

}  // namespace tidewell
