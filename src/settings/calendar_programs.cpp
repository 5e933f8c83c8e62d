#include "settings/calendar_programs.h"

#include <array>

#include "settings/registry_values.h"

namespace tidewell {

namespace {

struct Probe {
  RegistryRoot root;
  const wchar_t* path;
  const wchar_t* value;
};

// In the order of CalendarProgram.
constexpr std::array<Probe, 4> kProbes = {{
    {RegistryRoot::kCurrentUser, L"SOFTWARE\\Velmont Calendar", L"ExecutablePath"},
    {RegistryRoot::kCurrentUser, L"Software\\WebIS\\PocketInformant", L"version"},
    {RegistryRoot::kLocalMachine, L"SOFTWARE\\Developer One, Inc.\\Agenda Fusion", L"VerMajor"},
    {RegistryRoot::kCurrentUser, L"SOFTWARE\\Developer One\\Agenda One", L"InstallPath"},
}};

// Empty when the maker's program is not there.
std::wstring UtilityLibraryOf(Registry& registry, const wchar_t* programKey) {
  const auto key = registry.Open(RegistryRoot::kCurrentUser, programKey);
  return FindString(key.get(), L"UtilityLibrary").value_or(L"");
}

}  // namespace

bool IsInstalled(Registry& registry, CalendarProgram program) {
  const Probe& probe = kProbes[static_cast<std::size_t>(program)];
  const auto key = registry.Open(probe.root, probe.path);
  ValueInfo info;
  return key && key->Query(probe.value, {}, info) == kStatusSuccess;
}

bool HasWeather(Registry& registry, Files& files) {
  const std::wstring path = UtilityLibraryOf(registry, L"SOFTWARE\\Velmont Weather");
  return !path.empty() && files.Find(path);
}

bool HasListwise(Registry& registry) {
  return !UtilityLibraryOf(registry, L"SOFTWARE\\Velmont Listwise").empty();
}

}  // namespace tidewell
