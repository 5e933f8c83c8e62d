#include <algorithm>

#include "platform/memory/memory_machine.h"
#include "tests/fuzz/fuzz_targets.h"
#include "tests/support/setting_lines.h"

namespace tidewell::fuzz {

namespace {

std::uint8_t TakeNumber(Bytes& input) {
  if (input.empty()) return 0;
  const auto number = std::to_integer<std::uint8_t>(input[0]);
  input = input.subspan(1);
  return number;
}

// Each record is a setting (or a hosted tab's order), a type, a size and data.
void Fill(Registry& registry, Bytes input) {
  static SettingsStore catalogue;
  static const SettingLines lines(catalogue);
  while (!input.empty()) {
    const std::size_t low = TakeNumber(input);
    const std::size_t index = low | std::size_t{TakeNumber(input)} << 8;
    const std::uint32_t type = TakeNumber(input);
    const std::size_t size = TakeNumber(input);
    const Bytes data = input.first(std::min(size, input.size()));
    input = input.subspan(data.size());
    if (index < lines.all.size()) {
      const Setting& setting = *lines.all[index];
      CreateSettingKey(registry, setting.Key()).Get()->Set(setting.Name(), type, data);
    } else {
      const KeyLocation tabs = LocationOf(SettingKey::kTabSettings);
      const std::wstring plugin = {L'\\', static_cast<wchar_t>(L'A' + index % 23)};
      registry.Create(tabs.root, tabs.path + plugin)->Set(L"Order", type, data);
    }
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
