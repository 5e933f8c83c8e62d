#include "addons/note_folders.h"

#include <algorithm>
#include <limits>
#include <map>
#include <set>
#include <utility>

#include "platform/text.h"
#include "settings/exact_key.h"
#include "settings/registry_values.h"
#include "settings/setting_key.h"

namespace tidewell {

namespace {

std::wstring KeyPath() {
  return JoinPath(LocationOf(SettingKey::kNotes).path, L"Folders");
}

// "0", "1", "2" ... by their number, all other names behind them.
std::int32_t PlaceOf(const std::wstring& name) {
  const std::int32_t number = ParseNumber(name, 10);
  return FormatDecimal(number) == name && number >= 0 ? number
                                                      : std::numeric_limits<std::int32_t>::max();
}

// A pattern is no name.
bool IsThere(Files& files, const std::wstring& path) {
  return !path.empty() && path.find_first_of(L"*?") == std::wstring::npos && files.Find(path);
}

}  // namespace

NoteFolders::NoteFolders(const Machine& machine) : machine_(machine) {
  ReadKey();
  std::set<std::wstring> known;
  for (const StoredPath& each : stored_) {
    std::wstring folded = each.path;
    std::ranges::transform(folded, folded.begin(), FoldCase);
    if (!known.insert(std::move(folded)).second) continue;
    if (IsThere(machine_.files, each.path)) paths_.push_back(each.path);
  }
}

// No system promises the order of its enumeration, so the names tell it.
void NoteFolders::ReadKey() {
  const auto key = machine_.registry.Open(RegistryRoot::kCurrentUser, KeyPath());
  isNew_ = !key;
  if (isNew_) return;
  EnumeratedValue value;
  RegistryStatus status = kStatusSuccess;
  for (std::uint32_t index = 0; (status = EnumWholeValue(*key, index, value)) == kStatusSuccess;
       ++index) {
    if (value.name.size() >= kNameCapacity) continue;
    stored_.push_back({value.name, TextUpToZero(value.data)});
  }
  isWhole_ = status == kStatusNoMoreItems;
  std::ranges::stable_sort(stored_, {}, [](const StoredPath& each) { return PlaceOf(each.name); });
}

bool NoteFolders::Add(std::wstring path) {
  if (path.ends_with(L'\\')) path.pop_back();
  const bool isListed = std::ranges::any_of(
      paths_, [&](const std::wstring& listed) { return EqualIgnoringCase(listed, path); });
  if (isListed) return false;
  if (IsThere(machine_.files, path)) paths_.push_back(std::move(path));
  return true;
}

void NoteFolders::Remove(std::size_t position) {
  paths_.erase(paths_.begin() + static_cast<std::ptrdiff_t>(position));
}

void NoteFolders::Save() const {
  if (!isWhole_) return;
  const auto key = machine_.registry.Create(RegistryRoot::kCurrentUser, KeyPath());
  if (!key || (isNew_ && HoldsAnything(*key)) || !SaveEndangered(*key)) return;
  std::vector<KeyValue> values;
  for (const std::wstring& path : paths_) {
    values.push_back(TextValue(FormatDecimal(static_cast<std::int32_t>(values.size())), path));
  }
  if (StoreExactly(machine_.registry, KeyPath(), *key, values, Others::kGo)) key->Flush();
}

// Positions are written from the first on, so a folder that moves down the list would be gone for a
// moment: such folders are first put where they are in nobody's way. False when one was refused.
bool NoteFolders::SaveEndangered(RegistryKey& key) const {
  std::map<std::wstring, std::size_t> places;
  for (const std::wstring& path : paths_) places.emplace(path, places.size());
  std::size_t free = paths_.size();
  for (const StoredPath& each : stored_) {
    const auto place = static_cast<std::size_t>(PlaceOf(each.name));
    if (place < std::numeric_limits<std::int32_t>::max()) free = std::max(free, place + 1);
  }
  for (const StoredPath& each : stored_) {
    const auto place = places.find(each.path);
    const auto present = static_cast<std::size_t>(PlaceOf(each.name));
    if (place == places.end() || present >= paths_.size() || place->second <= present) continue;
    const KeyValue spare = TextValue(FormatDecimal(static_cast<std::int32_t>(free++)), each.path);
    if (key.Set(spare.name, spare.type, spare.data) != kStatusSuccess) return false;
  }
  return true;
}

}  // namespace tidewell
