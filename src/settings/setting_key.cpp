#include "settings/setting_key.h"

#include <array>
#include <cstddef>

namespace tidewell {

namespace {

constexpr std::array<KeyLocation, 16> kLocations = {{
    {RegistryRoot::kLocalMachine, L"Software\\Microsoft\\today\\items\\Tidewell"},
    {RegistryRoot::kCurrentUser, L"Software\\WebIS\\PocketInformant"},
    {RegistryRoot::kLocalMachine, L"SOFTWARE\\Developer One, Inc.\\Agenda Fusion"},
    {RegistryRoot::kCurrentUser, L"Software\\Velmont\\Tidewell"},
    {RegistryRoot::kCurrentUser, L"Software\\Velmont\\Tidewell\\Calendar"},
    {RegistryRoot::kCurrentUser, L"Software\\Velmont\\Tidewell\\Tasks"},
    {RegistryRoot::kCurrentUser, L"Software\\Velmont\\Tidewell\\Notes"},
    {RegistryRoot::kCurrentUser, L"Software\\Velmont\\Tidewell\\Contacts"},
    {RegistryRoot::kCurrentUser, L"Software\\Velmont\\Tidewell\\Messages"},
    {RegistryRoot::kCurrentUser, L"Software\\Velmont\\Tidewell\\SEvents"},
    {RegistryRoot::kCurrentUser, L"Software\\Velmont\\Tidewell\\Fonts"},
    {RegistryRoot::kCurrentUser, L"Software\\Velmont\\Tidewell\\Colors"},
    {RegistryRoot::kCurrentUser, L"Software\\Velmont\\Tidewell\\CustomPIM"},
    {RegistryRoot::kCurrentUser, L"Software\\Velmont\\Tidewell\\TabSettings"},
    {RegistryRoot::kCurrentUser, L"Software\\Velmont\\Tidewell\\Categories"},
    {RegistryRoot::kCurrentUser, L"Software\\Velmont\\Tidewell\\IconSet"},
}};

}  // namespace

KeyLocation LocationOf(SettingKey key) {
  const auto index = static_cast<std::uint32_t>(key);
  return index < kLocations.size() ? kLocations[index] : KeyLocation{};
}

FlushedKey OpenSettingKey(Registry& registry, SettingKey key) {
  const KeyLocation location = LocationOf(key);
  return FlushedKey(registry.Open(location.root, location.path));
}

FlushedKey CreateSettingKey(Registry& registry, SettingKey key) {
  const KeyLocation location = LocationOf(key);
  return FlushedKey(registry.Create(location.root, location.path));
}

}  // namespace tidewell
