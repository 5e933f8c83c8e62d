#include "addons/today_plugins.h"

#include "platform/text.h"
#include "settings/exact_key.h"
#include "settings/registry_values.h"

namespace tidewell {

namespace {

constexpr const wchar_t* kItems = L"SOFTWARE\\Microsoft\\Today\\Items";
constexpr const wchar_t* kOwnItem = L"Tidewell";
constexpr const wchar_t* kEnabled = L"Enabled";
constexpr std::uint32_t kHostableType = 4;

}  // namespace

std::unique_ptr<RegistryKey> TodayPlugins::Open(const std::wstring& name) const {
  return registry_.Open(RegistryRoot::kLocalMachine, JoinPath(kItems, name));
}

std::vector<std::wstring> TodayPlugins::Hostable() const {
  std::vector<std::wstring> names;
  const auto items = registry_.Create(RegistryRoot::kLocalMachine, kItems);
  std::wstring name;
  for (std::uint32_t index = 0;
       items && items->EnumSubkey(index, kNameCapacity, name) == kStatusSuccess; ++index) {
    if (EqualIgnoringCase(name, kOwnItem)) continue;
    const auto key = Open(name);
    if (key && ReadDword(key.get(), L"Type", 0) == kHostableType) names.push_back(name);
  }
  return names;
}

bool TodayPlugins::IsEnabled(const std::wstring& name) const {
  return ReadDword(Open(name).get(), kEnabled, 1) == 1;
}

void TodayPlugins::Disable(const std::wstring& name) const {
  const auto key = Open(name);
  if (!key) return;
  WriteDword(key.get(), kEnabled, 0);
  key->Flush();
}

std::wstring TodayPlugins::LibraryOf(const std::wstring& name) const {
  return FindString(Open(name).get(), L"DLL").value_or(L"");
}

}  // namespace tidewell
