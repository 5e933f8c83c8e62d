#include "settings/hosted_plugins.h"

#include <algorithm>
#include <array>
#include <functional>
#include <optional>
#include <span>
#include <utility>

#include "platform/text.h"
#include "settings/registry_values.h"
#include "settings/setting_key.h"

namespace tidewell {

namespace {

constexpr std::uint32_t kNameCapacity = 256;
// Nearly every value fits the usual room.
constexpr std::uint32_t kUsualDataBytes = 4096;
constexpr std::uint32_t kMostDataBytes = 16u << 20;

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

// What a subkey is to hold under a name.
struct HostedValue {
  const wchar_t* name;
  std::uint32_t type;
  std::vector<std::byte> data;  // empty for a default, which is not stored
  bool isStored = false;
  bool isAbsent = false;
};

HostedValue NumberValue(const wchar_t* name, std::uint32_t number, std::uint32_t defaultNumber) {
  HostedValue value{name, kTypeDword, {}};
  const auto bytes = std::as_bytes(std::span(&number, 1));
  if (number != defaultNumber) value.data.assign(bytes.begin(), bytes.end());
  return value;
}

HostedValue TextValue(const wchar_t* name, const std::wstring& text) {
  HostedValue value{name, kTypeString, {}};
  if (!text.empty()) value.data = BytesOf({text.c_str(), text.size() + 1});
  return value;
}

// In the order of writing: a new tab is enabled when it has all the rest.
std::array<HostedValue, 6> ValuesOf(const TabEntry& entry) {
  constexpr std::uint32_t kNever = 0;  // no type of a tab
  return {NumberValue(L"Type", static_cast<std::uint32_t>(entry.type), kNever),
          TextValue(L"DLL", entry.dll),
          TextValue(L"InstallPath", entry.installPath),
          TextValue(L"CustomIconName", entry.customIconName),
          NumberValue(L"Order", static_cast<std::uint32_t>(entry.order), kHostedOrder),
          NumberValue(L"Enabled", entry.enabled, 0)};
}

RegistryStatus EnumWholeValue(RegistryKey& key, std::uint32_t index, EnumeratedValue& value) {
  RegistryStatus status = kStatusMoreData;
  for (std::uint32_t room = kUsualDataBytes; status == kStatusMoreData && room <= kMostDataBytes;
       room *= 16) {
    status = key.EnumValue(index, room / 16, room, value);
  }
  return status;
}

// Notes which of the values the key holds already, or does not hold, and returns the names of all
// others in it. What a refusal hides is neither.
std::vector<std::wstring> CompareValues(RegistryKey& key, std::span<HostedValue> values) {
  std::vector<std::wstring> others;
  for (HostedValue& value : values) value.isAbsent = true;
  EnumeratedValue stored;
  RegistryStatus status = kStatusSuccess;
  for (std::uint32_t index = 0; (status = EnumWholeValue(key, index, stored)) == kStatusSuccess;
       ++index) {
    const auto found = std::ranges::find_if(values, [&](const HostedValue& value) {
      return EqualIgnoringCase(value.name, stored.name);
    });
    if (found == values.end()) {
      others.push_back(stored.name);
      continue;
    }
    found->isAbsent = false;
    found->isStored = stored.type == found->type && stored.data == found->data;
  }
  if (status != kStatusNoMoreItems) {
    for (HostedValue& value : values) value.isAbsent = false;
  }
  return others;
}

// True when there was something to write.
bool StoreValues(RegistryKey& key, std::span<const HostedValue> values) {
  bool isWritten = false;
  for (const HostedValue& value : values) {
    if (value.data.empty() || value.isStored) continue;
    key.Set(value.name, value.type, value.data);
    isWritten = true;
  }
  for (const HostedValue& value : values) {
    if (!value.data.empty() || value.isAbsent) continue;
    key.DeleteValue(value.name);
    isWritten = true;
  }
  return isWritten;
}

// True when there were any.
bool DeleteSubkeys(Registry& registry, RegistryKey& key, const std::wstring& path) {
  bool isWritten = false;
  std::uint32_t index = 0;
  std::wstring name;
  while (key.EnumSubkey(index, kNameCapacity, name) == kStatusSuccess) {
    isWritten = true;
    // The next subkey moves up into a deleted one's place; one that the system refuses to delete
    // is passed over.
    const std::wstring subkey = JoinPath(path, name);
    if (registry.DeleteTree(RegistryRoot::kCurrentUser, subkey) != kStatusSuccess) ++index;
  }
  return isWritten;
}

template <typename Same>
bool Lists(const TabList& tabs, const std::wstring& name, Same isSame) {
  return std::ranges::any_of(tabs, [&](const TabEntry& entry) {
    return entry.type == TabType::kHosted && isSame(entry.caption, name);
  });
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
    names_.push_back(name);
  }
  return isWhole && status == kStatusNoMoreItems;
}

void HostedPlugins::Save(Registry& registry, const TabList& tabs) {
  const auto deleteThose = [&](const auto& isSurplus) {
    std::erase_if(names_, [&](const std::wstring& name) {
      return isSurplus(name) &&
             registry.DeleteTree(RegistryRoot::kCurrentUser, PathOf(name)) == kStatusSuccess;
    });
  };
  // A plug-in that was removed and came back in other letters takes its old subkey's place.
  deleteThose([&](const std::wstring& name) {
    return Lists(tabs, name, EqualIgnoringCase) && !Lists(tabs, name, std::equal_to<>());
  });
  for (const TabEntry& entry : tabs) {
    if (entry.type == TabType::kHosted) SaveEntry(registry, entry);
  }
  deleteThose([&](const std::wstring& name) { return !Lists(tabs, name, EqualIgnoringCase); });
}

void HostedPlugins::SaveEntry(Registry& registry, const TabEntry& entry) {
  const std::wstring path = PathOf(entry.caption);
  const bool isOurs = std::ranges::find(names_, entry.caption) != names_.end();
  auto key = isOurs ? nullptr : registry.Open(RegistryRoot::kCurrentUser, path);
  const bool isNew = !isOurs && !key;
  if (!key) key = registry.Create(RegistryRoot::kCurrentUser, path);
  if (!key) return;
  if (isNew && !IsBuiltInSubkey(entry.caption)) names_.push_back(entry.caption);

  std::array<HostedValue, 6> values = ValuesOf(entry);
  const std::vector<std::wstring> others = CompareValues(*key, values);
  bool isWritten = StoreValues(*key, values);
  if (isOurs) {
    for (const std::wstring& name : others) key->DeleteValue(name);
    isWritten = DeleteSubkeys(registry, *key, path) || isWritten || !others.empty();
  }
  if (isWritten || isNew) key->Flush();
}

}  // namespace tidewell
