#include "settings/hosted_plugins.h"

#include <array>
#include <optional>
#include <utility>

#include "platform/text.h"
#include "settings/exact_key.h"
#include "settings/registry_values.h"
#include "settings/setting_key.h"

namespace tidewell {

namespace {

// This subkey belongs to a built-in tab. Reading and deleting must agree on it to the letter, or
// a plug-in named "contacts" would be deleted without ever having been read.
bool IsBuiltInSubkey(const std::wstring& name) {
  return name == L"Contacts";
}

std::wstring PathOf(const std::wstring& pluginName) {
  return JoinPath(LocationOf(SettingKey::kTabSettings).path, pluginName);
}

// Nothing when one of the values was refused: defaults in its place would be saved as if the user
// had wanted them.
std::optional<TabEntry> ReadHostedPlugin(RegistryKey& key, std::wstring name) {
  TabEntry entry;
  bool refused = false;
  entry.type = TabType::kHosted;
  entry.order = static_cast<std::int32_t>(ReadDword(&key, L"Order", kHostedOrder, &refused));
  entry.enabled = ReadDword(&key, L"Enabled", 0, &refused);
  entry.caption = std::move(name);
  ReadString(&key, L"DLL", L"", entry.dll, &refused);
  ReadString(&key, L"InstallPath", L"", entry.installPath, &refused);
  ReadString(&key, L"CustomIconName", L"", entry.customIconName, &refused);
  if (refused) return std::nullopt;
  return entry;
}

// A default is not stored.
KeyValue Unless(bool isDefault, KeyValue value) {
  if (isDefault) value.data.clear();
  return value;
}

// In the order of writing: a new tab is enabled when it has all the rest.
std::array<KeyValue, 6> ValuesOf(const TabEntry& entry) {
  const auto text = [](const wchar_t* name, const std::wstring& value) {
    return Unless(value.empty(), TextValue(name, value));
  };
  return {NumberValue(L"Type", static_cast<std::uint32_t>(entry.type)),
          text(L"DLL", entry.dll),
          text(L"InstallPath", entry.installPath),
          text(L"CustomIconName", entry.customIconName),
          Unless(entry.order == kHostedOrder,
                 NumberValue(L"Order", static_cast<std::uint32_t>(entry.order))),
          Unless(entry.enabled == 0, NumberValue(L"Enabled", entry.enabled))};
}

}  // namespace

bool HostedPlugins::Read(Registry& registry, RegistryKey* tabSettingsKey, TabList& tabs) {
  names_.clear();
  if (!tabSettingsKey) return false;
  bool isWhole = true;
  std::wstring name;
  RegistryStatus status = kStatusSuccess;
  for (std::uint32_t index = 0;
       (status = tabSettingsKey->EnumSubkey(index, kNameCapacity, name)) == kStatusSuccess;
       ++index) {
    if (IsBuiltInSubkey(name)) continue;
    const auto key = registry.Open(RegistryRoot::kCurrentUser, PathOf(name));
    auto entry = key ? ReadHostedPlugin(*key, name) : std::nullopt;
    isWhole = isWhole && entry;
    if (!entry) continue;
    InsertByOrder(tabs, *std::move(entry));
    names_.insert(name);
  }
  return isWhole && status == kStatusNoMoreItems;
}

void HostedPlugins::Save(Registry& registry, const TabList& tabs) {
  std::set<std::wstring> hosted;
  for (const TabEntry& entry : tabs) {
    if (entry.type == TabType::kHosted) hosted.insert(entry.caption);
  }
  const std::set<std::wstring, FoldedLess> inAnyCase(hosted.begin(), hosted.end());
  const auto deleteThose = [&](const auto& isSurplus) {
    std::erase_if(names_, [&](const std::wstring& name) {
      return isSurplus(name) &&
             registry.DeleteTree(RegistryRoot::kCurrentUser, PathOf(name)) == kStatusSuccess;
    });
  };
  // A plug-in that was removed and came back in other letters takes its old subkey's place.
  deleteThose(
      [&](const std::wstring& name) { return inAnyCase.contains(name) && !hosted.contains(name); });
  for (const TabEntry& entry : tabs) {
    if (entry.type == TabType::kHosted) SaveEntry(registry, entry);
  }
  deleteThose([&](const std::wstring& name) { return !inAnyCase.contains(name); });
}

void HostedPlugins::SaveEntry(Registry& registry, const TabEntry& entry) {
  const std::wstring path = PathOf(entry.caption);
  const bool isOurs = names_.contains(entry.caption);
  auto key = isOurs ? nullptr : registry.Open(RegistryRoot::kCurrentUser, path);
  const bool isNew = !isOurs && !key;
  if (!key) key = registry.Create(RegistryRoot::kCurrentUser, path);
  if (!key) return;
  if (isNew && !IsBuiltInSubkey(entry.caption)) names_.insert(entry.caption);

  const bool isWritten =
      StoreExactly(registry, path, *key, ValuesOf(entry), isOurs ? Others::kGo : Others::kStay);
  if (isWritten || isNew) key->Flush();
}

}  // namespace tidewell
