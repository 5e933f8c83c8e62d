// The catalogue as plain lists, for tests that try every line.
#pragma once

#include <vector>

#include "settings/settings_store.h"

namespace tidewell {

// Every registry value of a store or of one key, in order.
struct SettingLines final : SettingVisitor {
  using SettingVisitor::Visit;
  explicit SettingLines(SettingsStore& store) {
    for (SettingGroup* group : store.Groups()) group->Accept(*this);
  }
  explicit SettingLines(SettingGroup& group) { group.Accept(*this); }

  void Visit(DwordSetting& setting) override { Add(setting, dwords); }
  void Visit(StringSetting& setting) override { Add(setting, strings); }
  void Visit(FlagArraySetting& setting) override { Add(setting, flags); }

  std::vector<Setting*> all;
  std::vector<DwordSetting*> dwords;
  std::vector<StringSetting*> strings;
  std::vector<FlagArraySetting*> flags;

 private:
  template <typename Kind>
  void Add(Kind& setting, std::vector<Kind*>& kind) {
    all.push_back(&setting);
    kind.push_back(&setting);
  }
};

}  // namespace tidewell
