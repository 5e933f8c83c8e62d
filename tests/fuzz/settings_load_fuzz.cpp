#include <algorithm>
#include <array>

#include "platform/memory/memory_machine.h"
#include "tests/fuzz/fuzz_targets.h"
#include "tests/support/setting_lines.h"

namespace tidewell::fuzz {

namespace {

Bytes Take(Bytes& input, std::size_t count) {
  const Bytes taken = input.first(std::min(count, input.size()));
  input = input.subspan(taken.size());
  return taken;
}

std::uint8_t TakeNumber(Bytes& input) {
  const Bytes taken = Take(input, 1);
  return taken.empty() ? std::uint8_t{0} : std::to_integer<std::uint8_t>(taken[0]);
}

// Each record is a setting (or a hosted tab's value), a type, a size and data.
void Fill(Registry& registry, Bytes input) {
  static SettingsStore catalogue;
  static const SettingLines lines(catalogue);
  constexpr std::array kHostedNames = {L"Enabled", L"Order",       L"Type",
                                       L"DLL",     L"InstallPath", L"CustomIconName"};
  while (!input.empty()) {
    const std::size_t low = TakeNumber(input);
    const std::size_t index = low | std::size_t{TakeNumber(input)} << 8;
    const std::uint32_t type = TakeNumber(input);
    const Bytes data = Take(input, TakeNumber(input));
    if (index < lines.all.size()) {
      const Setting& setting = *lines.all[index];
      CreateSettingKey(registry, setting.Key()).Get()->Set(setting.Name(), type, data);
      continue;
    }
    const std::wstring plugin(1 + index % 3, static_cast<wchar_t>(L'A' + index % 23));
    const auto key = registry.Create(RegistryRoot::kCurrentUser,
                                     L"Software\\Velmont\\Tidewell\\TabSettings\\" + plugin);
    key->Set(kHostedNames[index % kHostedNames.size()], type, data);
  }
}

// What the Today item writes itself may be repaired anew; all else must outlive a save.
template <typename Kind>
void RequireSame(const std::vector<Kind*>& saved, const std::vector<Kind*>& loaded) {
  for (std::size_t i = 0; i < saved.size(); ++i) {
    Require(saved[i]->IsReadOnly() || saved[i]->Value() == loaded[i]->Value());
  }
}

}  // namespace

// Whatever a registry holds, what was saved is what is loaded again.
void settings_load(Bytes bytes) {
  MemoryMachine machine;
  const int dpi = 96 + TakeNumber(bytes);
  const ScreenScale scale(dpi, dpi, false);
  Fill(machine.registry, bytes);

  Machine door = machine.Door();
  std::unique_ptr<ResourceLibrary> language;
  SettingsStore first;
  first.Load(door, scale, language);
  first.Save(machine.registry, scale);
  SettingsStore second;
  second.Load(door, scale, language);

  RequireSame(SettingLines(first).dwords, SettingLines(second).dwords);
  RequireSame(SettingLines(first).strings, SettingLines(second).strings);
  Require(std::ranges::equal(first.tabs, second.tabs, [](const TabEntry& a, const TabEntry& b) {
    return a.order == b.order && a.caption == b.caption && a.enabled == b.enabled && a.dll == b.dll;
  }));
}

}  // namespace tidewell::fuzz
