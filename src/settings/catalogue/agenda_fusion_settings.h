// Where Agenda Fusion keeps its category icons.
#pragma once

#include "settings/setting.h"

namespace tidewell {

struct AgendaFusionSettings : SettingGroup {
  AgendaFusionSettings() : SettingGroup(SettingKey::kAgendaFusion) {}

  StringSetting CoreCategories{*this, L"Core.Categories", L"Program Files\\Agenda Fusion\\Icons",
                               kReadOnly};
};

}  // namespace tidewell
