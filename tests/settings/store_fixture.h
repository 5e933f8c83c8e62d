// A settings store on a machine in memory, with every call to its registry counted.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "platform/memory/memory_machine.h"
#include "platform/memory/recorded_registry.h"
#include "platform/text.h"
#include "tests/support/registry_support.h"
#include "tests/support/setting_lines.h"
#include "tests/support/utf8.h"

namespace tidewell {

class StoreFixture : public testing::Test {
 protected:
  void LoadInto(SettingsStore& target) {
    Machine door{recorded, machine.files, machine.locale, machine.libraries, machine.system};
    target.Load(door, scale, language);
  }
  void Load() {
    recorded.Calls().Reset();
    LoadInto(store);
  }
  void Save() {
    recorded.Calls().Reset();
    store.Save(recorded, scale);
  }
  int Sets() const { return recorded.Count(RegistryCall::kSet); }
  int Deletes() const { return recorded.Count(RegistryCall::kDeleteValue); }

  // All below make a setting's key when it is missing.
  FlushedKey KeyOf(SettingKey key) { return CreateSettingKey(registry, key); }
  void Put(SettingKey key, const std::wstring& name, std::uint32_t number) {
    SetDword(registry, LocationOf(key).root, LocationOf(key).path, name, number);
  }
  void Put(SettingKey key, const std::wstring& name, const std::wstring& text) {
    SetString(registry, LocationOf(key).root, LocationOf(key).path, name, text);
  }
  // Numbers by name: "dNumOfDays=7 TimelinesStart=-1".
  void PutNumbers(SettingKey key, const char* text) {
    std::istringstream words(text);
    std::string name;
    long long number = 0;
    while (std::getline(words >> std::ws, name, '=') && words >> number) {
      Put(key, std::wstring(name.begin(), name.end()), static_cast<std::uint32_t>(number));
    }
  }
  std::optional<std::uint32_t> Stored(SettingKey key, const std::wstring& name) {
    return FindDword(registry, LocationOf(key).root, LocationOf(key).path, name);
  }
  std::string Dump(SettingKey key) {
    return DumpTree(registry, LocationOf(key).root, LocationOf(key).path);
  }
  void DeleteKey(SettingKey key) {
    registry.DeleteTree(LocationOf(key).root, LocationOf(key).path);
  }

  MemoryMachine machine;
  MemoryRegistry& registry = machine.registry;
  RecordedRegistry recorded{registry};
  ScreenScale scale{96, 96, false};
  Language language;
  SettingsStore store;
};

}  // namespace tidewell
