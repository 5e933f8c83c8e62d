#include "settings/hosted_plugins.h"

#include <utility>

#include "platform/text.h"
#include "settings/registry_values.h"
#include "settings/setting_key.h"

namespace tidewell {

namespace {

constexpr std::uint32_t kNameCapacity = 256;

// This subkey belongs to a built-in tab. Reading and deleting must agree on it to the letter, or
// a plug-in named "contacts" would be deleted without ever having been read.
bool IsBuiltInSubkey(const std::wstring& name) {
  return name == L"Contacts";
}

std::wstring PathOf(const std::wstring& pluginName) {
  return JoinPath(LocationOf(SettingKey::kTabSettings).path, pluginName);
}

TabEntry ReadHostedPlugin(RegistryKey& key, std::wstring name) {
  TabEntry entry;
  entry.type = TabType::kHosted;
  entry.order = static_cast<std::int32_t>(ReadDword(&key, L"Order", kHostedOrder));
  entry.enabled = ReadDword(&key, L"Enabled", 0);
  entry.caption = std::move(name);
  ReadString(&key, L"DLL", L"", entry.dll);
  ReadString(&key, L"InstallPath", L"", entry.installPath);
  ReadString(&key, L"CustomIconName", L"", entry.customIconName);
  return entry;
}

void WriteHostedPlugin(RegistryKey* key, const TabEntry& entry) {
  WriteDwordOrDelete(key, L"Enabled", entry.enabled, 0);
  WriteDwordOrDelete(key, L"Order", static_cast<std::uint32_t>(entry.order), kHostedOrder);
  WriteDword(key, L"Type", static_cast<std::uint32_t>(entry.type));
  WriteStringOrDelete(key, L"DLL", entry.dll, L"");
  WriteStringOrDelete(key, L"InstallPath", entry.installPath, L"");
  WriteStringOrDelete(key, L"CustomIconName", entry.customIconName, L"");
}

}  // namespace

void ReadHostedPlugins(Registry& registry, RegistryKey& tabSettingsKey, TabList& tabs) {
  std::wstring name;
  for (std::uint32_t index = 0;
       tabSettingsKey.EnumSubkey(index, kNameCapacity, name) == kStatusSuccess; ++index) {
    if (IsBuiltInSubkey(name)) continue;
    const auto key = registry.Open(RegistryRoot::kCurrentUser, PathOf(name));
    if (key) InsertByOrder(tabs, ReadHostedPlugin(*key, name));
  }
}

void DeleteHostedPlugins(Registry& registry, RegistryKey& tabSettingsKey) {
  std::uint32_t index = 0;
  std::wstring name;
  while (tabSettingsKey.EnumSubkey(index, kNameCapacity, name) == kStatusSuccess) {
    const bool deleted =
        !IsBuiltInSubkey(name) &&
        registry.DeleteTree(RegistryRoot::kCurrentUser, PathOf(name)) == kStatusSuccess;
    // The next subkey moves up into a deleted one's place; one that stays, or that the system
    // refuses to delete, is passed over.
    if (!deleted) ++index;
  }
}

void WriteHostedPlugins(Registry& registry, const TabList& tabs) {
  for (const TabEntry& entry : tabs) {
    if (entry.type != TabType::kHosted) continue;
    const FlushedKey key(registry.Create(RegistryRoot::kCurrentUser, PathOf(entry.caption)));
    WriteHostedPlugin(key.Get(), entry);
  }
}

}  // namespace tidewell
