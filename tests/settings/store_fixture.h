// A settings store on a registry of a test's choice, with every call counted.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/memory/memory_machine.h"
#include "platform/memory/metered_registry.h"
#include "platform/text.h"
#include "settings/registry_values.h"
#include "settings/settings_store.h"
#include "tests/support/test_registries.h"

namespace tidewell {

// Every registry value of the catalogue, in order.
class SettingLines final : public SettingVisitor {
 public:
  using SettingVisitor::Visit;
  explicit SettingLines(SettingsStore& store) {
    for (SettingGroup* group : store.Groups()) group->Accept(*this);
  }
  explicit SettingLines(SettingGroup& group) { group.Accept(*this); }

  void Visit(DwordSetting& setting) override {
    all.push_back(&setting);
    dwords.push_back(&setting);
  }
  void Visit(StringSetting& setting) override {
    all.push_back(&setting);
    strings.push_back(&setting);
  }
  void Visit(FlagArraySetting& setting) override {
    all.push_back(&setting);
    flags.push_back(&setting);
  }

  std::vector<Setting*> all;
  std::vector<DwordSetting*> dwords;
  std::vector<StringSetting*> strings;
  std::vector<FlagArraySetting*> flags;
};

class StoreFixture : public testing::TestWithParam<RegistryKind> {
 protected:
  void Load() { Load(store); }
  void Load(SettingsStore& into) {
    Machine door{metered, machine.files, machine.locale, machine.libraries, machine.system};
    metered.Meter().Reset();
    into.Load(door, scale, language);
  }
  void Save() {
    metered.Meter().Reset();
    store.Save(metered, scale);
  }

  // Values below a setting's key, or below a key of its own path; both are made when missing.
  FlushedKey KeyOf(SettingKey key) { return CreateSettingKey(*registry, key); }
  void Put(SettingKey key, const std::wstring& name, std::uint32_t value) {
    WriteDword(KeyOf(key).Get(), name, value);
  }
  void Put(SettingKey key, const std::wstring& name, const wchar_t* text) {
    WriteString(KeyOf(key).Get(), name, text);
  }
  void Put(SettingKey key, const std::wstring& name, std::uint32_t type,
           std::span<const std::byte> bytes) {
    KeyOf(key).Get()->Set(name, type, bytes);
  }
  std::optional<std::uint32_t> Stored(SettingKey key, const std::wstring& name) {
    return FindDword(KeyOf(key).Get(), name);
  }
  std::optional<std::wstring> StoredText(SettingKey key, const std::wstring& name) {
    return FindString(KeyOf(key).Get(), name);
  }

  MemoryMachine machine;
  std::unique_ptr<Registry> registry = MakeTestRegistry(GetParam());
  MeteredRegistry metered{*registry};
  ScreenScale scale{96, 96, false};
  std::unique_ptr<ResourceLibrary> language;
  SettingsStore store;
};

}  // namespace tidewell
