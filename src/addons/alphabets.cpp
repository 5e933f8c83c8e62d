#include "addons/alphabets.h"

#include <algorithm>
#include <array>
#include <set>
#include <utility>

#include "platform/text.h"
#include "settings/exact_key.h"
#include "settings/setting_key.h"

namespace tidewell {

namespace {

constexpr std::size_t kEnding = 4;

constexpr std::array<std::pair<const wchar_t*, std::uint32_t>, 4> kBuiltIn = {
    {{L"Latin", kLatin}, {L"Cyrillic", kCyrillic}, {L"Hebrew", kHebrew}, {L"Greek", kGreek}}};

std::wstring KeyPath() {
  return JoinPath(LocationOf(SettingKey::kContacts).path, L"Alphabets");
}

using Names = std::set<std::wstring, FoldedLess>;

Names SetOf(const std::vector<std::wstring>& names) {
  return {names.begin(), names.end()};
}

}  // namespace

bool IsAlphabetFile(std::wstring_view name) {
  return EqualIgnoringCase(name, L"Latin.txt") ||
         (name.size() > kEnding && name.find_first_of(L".tx") == name.size() - kEnding);
}

Alphabets::Alphabets(const Machine& machine, const std::wstring& installFolder)
    : machine_(machine), folder_(installFolder + L"\\CustomAlphabets") {}

std::vector<std::wstring> Alphabets::FileNames(const wchar_t* pattern) const {
  std::vector<std::wstring> names;
  machine_.files.List(JoinPath(folder_, pattern), [&](const FileEntry& entry) {
    if (!entry.isFolder) names.push_back(entry.name);
    return true;
  });
  return names;
}

Alphabets::ActiveNames Alphabets::ReadKey() const {
  ActiveNames active;
  const auto key = machine_.registry.Open(RegistryRoot::kCurrentUser, KeyPath());
  active.isNew = !key;
  if (active.isNew) return active;
  EnumeratedValue value;
  RegistryStatus status = kStatusSuccess;
  for (std::uint32_t index = 0; (status = EnumWholeValue(*key, index, value)) == kStatusSuccess;
       ++index) {
    active.names.push_back(value.name);
  }
  active.isWhole = status == kStatusNoMoreItems;
  return active;
}

std::vector<Alphabet> Alphabets::Offered(std::uint32_t bits) {
  std::vector<Alphabet> offered;
  offered.reserve(kBuiltIn.size());
  for (const auto& [name, bit] : kBuiltIn) offered.push_back({name, bit, (bits & bit) != 0});
  known_ = ReadKey();
  const Names active = SetOf(known_.names);
  for (const std::wstring& file : FileNames(L"*.*")) {
    if (!IsAlphabetFile(file)) continue;
    const std::wstring name = file.substr(0, file.size() - kEnding);
    offered.push_back({name, kCustomAlphabets, active.contains(name)});
  }
  return offered;
}

std::uint32_t Alphabets::Activate(const std::vector<Alphabet>& alphabets) const {
  std::uint32_t bits = 0;
  std::vector<KeyValue> values;
  for (const Alphabet& alphabet : alphabets) {
    if (!alphabet.active) continue;
    bits |= alphabet.bit;
    if (alphabet.bit == kCustomAlphabets) values.push_back(NumberValue(alphabet.name, 1));
  }
  if (known_.isWhole) SaveKey(values);
  return bits;
}

void Alphabets::SaveKey(const std::vector<KeyValue>& values) const {
  if (values.empty()) {
    if (!known_.isNew) machine_.registry.DeleteTree(RegistryRoot::kCurrentUser, KeyPath());
    return;
  }
  const auto key = machine_.registry.Create(RegistryRoot::kCurrentUser, KeyPath());
  if (!key || (known_.isNew && HoldsAnything(*key))) return;
  if (StoreExactly(machine_.registry, KeyPath(), *key, values, Others::kGo)) key->Flush();
}

std::vector<std::wstring> Alphabets::ActiveCustom() const {
  std::vector<std::wstring> names = ReadKey().names;
  // A longer name ends the list, as for the Today item.
  const auto isTooLong = [](const std::wstring& name) { return name.size() >= kNameCapacity; };
  names.erase(std::ranges::find_if(names, isTooLong), names.end());
  if (names.empty()) return names;
  const Names files = SetOf(FileNames(L"*.txt"));
  std::erase_if(names, [&](const std::wstring& name) { return !files.contains(name + L".txt"); });
  return names;
}

}  // namespace tidewell
