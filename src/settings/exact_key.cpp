#include "settings/exact_key.h"

#include <map>
#include <utility>

#include "platform/text.h"

namespace tidewell {

namespace {

// Nearly every value fits the usual room.
constexpr std::uint32_t kUsualDataBytes = 4096;
constexpr std::uint32_t kMostDataBytes = 16u << 20;

// What the key holds of the values: whatever a refusal hides is neither stored nor absent.
struct Wanted {
  const KeyValue* value;
  bool isStored = false;
  bool isAbsent = true;
};

struct Comparison {
  std::vector<Wanted> wanted;
  std::vector<std::wstring> others;  // names that are not wanted
};

Comparison Compare(RegistryKey& key, std::span<const KeyValue> values) {
  Comparison found;
  std::map<std::wstring, std::size_t, FoldedLess> places;
  for (const KeyValue& value : values) {
    places.emplace(value.name, found.wanted.size());
    found.wanted.push_back({&value});
  }
  EnumeratedValue stored;
  RegistryStatus status = kStatusSuccess;
  for (std::uint32_t index = 0; (status = EnumWholeValue(key, index, stored)) == kStatusSuccess;
       ++index) {
    const auto place = places.find(stored.name);
    if (place == places.end()) {
      found.others.push_back(stored.name);
      continue;
    }
    Wanted& wanted = found.wanted[place->second];
    wanted.isAbsent = false;
    wanted.isStored = stored.type == wanted.value->type && stored.data == wanted.value->data;
  }
  if (status == kStatusNoMoreItems) return found;
  for (Wanted& wanted : found.wanted) wanted.isAbsent = false;
  return found;
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

}  // namespace

KeyValue NumberValue(std::wstring name, std::uint32_t number) {
  const auto bytes = std::as_bytes(std::span(&number, 1));
  return {std::move(name), kTypeDword, {bytes.begin(), bytes.end()}};
}

KeyValue TextValue(std::wstring name, const std::wstring& text) {
  return {std::move(name), kTypeString, BytesOf({text.c_str(), text.size() + 1})};
}

RegistryStatus EnumWholeValue(RegistryKey& key, std::uint32_t index, EnumeratedValue& value) {
  RegistryStatus status = kStatusMoreData;
  for (std::uint32_t room = kUsualDataBytes; status == kStatusMoreData && room <= kMostDataBytes;
       room *= 16) {
    status = key.EnumValue(index, room / 16, room, value);
  }
  return status;
}

bool HoldsAnything(RegistryKey& key) {
  EnumeratedValue value;
  return EnumWholeValue(key, 0, value) != kStatusNoMoreItems;
}

bool StoreExactly(Registry& registry, const std::wstring& path, RegistryKey& key,
                  std::span<const KeyValue> values, Others others) {
  const Comparison found = Compare(key, values);
  bool isWritten = false;
  for (const Wanted& wanted : found.wanted) {
    const KeyValue& value = *wanted.value;
    if (value.data.empty() || wanted.isStored) continue;
    if (key.Set(value.name, value.type, value.data) != kStatusSuccess) return isWritten;
    isWritten = true;
  }
  const auto discard = [&](const std::wstring& name) {
    key.DeleteValue(name);
    isWritten = true;
  };
  for (const Wanted& wanted : found.wanted) {
    if (wanted.value->data.empty() && !wanted.isAbsent) discard(wanted.value->name);
  }
  if (others == Others::kStay) return isWritten;
  for (const std::wstring& name : found.others) discard(name);
  return DeleteSubkeys(registry, key, path) || isWritten;
}

}  // namespace tidewell
