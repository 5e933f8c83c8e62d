#include "settings/calendar_programs.h"

#include <array>

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

}  // namespace

bool IsInstalled(Registry& registry, CalendarProgram program) {
  const Probe& probe = kProbes[static_cast<std::size_t>(program)];
  const auto key = registry.Open(probe.root, probe.path);
  ValueInfo info;
  return key && key->Query(probe.value, {}, info) == kStatusSuccess;
}

}  // namespace tidewell
