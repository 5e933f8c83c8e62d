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

struct NameLess {
  bool operator()(const std::wstring& left, const std::wstring& right) const {
    return CompareFolded(left, right) < 0;
  }
};
using Names = std::set<std::wstring, NameLess>;

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

// A longer name ends the list, as for the Today item.
std::vector<std::wstring> Alphabets::ActiveNames() const {
  std::vector<std::wstring> names;
  const auto key = machine_.registry.Open(RegistryRoot::kCurrentUser, KeyPath());
  if (!key) return names;
  EnumeratedValue value;
  for (std::uint32_t index = 0;
       EnumWholeValue(*key, index, value) == kStatusSuccess && value.name.size() < kNameCapacity;
       ++index) {
    names.push_back(value.name);
  }
  return names;
}

std::vector<Alphabet> Alphabets::Offered(std::uint32_t bits) const {
  std::vector<Alphabet> offered;
  offered.reserve(kBuiltIn.size());
  for (const auto& [name, bit] : kBuiltIn) offered.push_back({name, bit, (bits & bit) != 0});
  const Names active = SetOf(ActiveNames());
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
  if (values.empty()) {
    machine_.registry.DeleteTree(RegistryRoot::kCurrentUser, KeyPath());
    return bits;
  }
  const auto key = machine_.registry.Create(RegistryRoot::kCurrentUser, KeyPath());
  if (key && StoreExactly(machine_.registry, KeyPath(), *key, values, Others::kGo)) key->Flush();
  return bits;
}

std::vector<std::wstring> Alphabets::ActiveCustom() const {
  std::vector<std::wstring> names = ActiveNames();
  if (names.empty()) return names;
  const Names files = SetOf(FileNames(L"*.txt"));
  std::erase_if(names, [&](const std::wstring& name) { return !files.contains(name + L".txt"); });
  return names;
}

}  // namespace tidewell
