// Fills a registry from the input and loads, saves and loads the settings: whatever it holds, what
// was saved is what is loaded again.
#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <span>

#include "platform/memory/memory_machine.h"
#include "settings/settings_store.h"

namespace tidewell {
namespace {

class Input {
 public:
  explicit Input(std::span<const std::byte> bytes) : rest_(bytes) {}
  bool IsEmpty() const { return rest_.empty(); }
  std::uint8_t Byte() {
    if (rest_.empty()) return 0;
    const auto value = std::to_integer<std::uint8_t>(rest_.front());
    rest_ = rest_.subspan(1);
    return value;
  }
  std::span<const std::byte> Bytes(std::size_t count) {
    const auto taken = rest_.first(std::min(count, rest_.size()));
    rest_ = rest_.subspan(taken.size());
    return taken;
  }

 private:
  std::span<const std::byte> rest_;
};

// The values that a save must preserve: what the Today item writes itself may be repaired anew.
class SavedValues final : public SettingVisitor {
 public:
  using SettingVisitor::Visit;
  void Visit(DwordSetting& setting) override {
    settings.push_back(&setting);
    if (!setting.IsReadOnly()) numbers.push_back(setting.Value());
  }
  void Visit(StringSetting& setting) override {
    settings.push_back(&setting);
    if (!setting.IsReadOnly()) texts.push_back(setting.Value());
  }
  void Visit(FlagArraySetting& setting) override { settings.push_back(&setting); }

  std::vector<Setting*> settings;
  std::vector<std::uint32_t> numbers;
  std::vector<std::wstring> texts;
};

SavedValues ValuesOf(SettingsStore& store) {
  SavedValues values;
  for (SettingGroup* group : store.Groups()) group->Accept(values);
  return values;
}

// Each record is a setting (or a hosted tab's value), a type, a size and data.
void Fill(Registry& registry, Input& input) {
  static SettingsStore catalogue;
  static const std::vector<Setting*> settings = ValuesOf(catalogue).settings;
  constexpr std::array kHostedNames = {L"Enabled", L"Order",       L"Type",
                                       L"DLL",     L"InstallPath", L"CustomIconName"};
  while (!input.IsEmpty()) {
    const std::size_t index = input.Byte() | std::size_t{input.Byte()} << 8;
    const std::uint32_t type = input.Byte();
    const auto data = input.Bytes(input.Byte());
    if (index < settings.size()) {
      const Setting& setting = *settings[index];
      CreateSettingKey(registry, setting.Key()).Get()->Set(setting.Name(), type, data);
      continue;
    }
    const std::wstring plugin(1 + index % 3, static_cast<wchar_t>(L'A' + index % 23));
    const auto key = registry.Create(RegistryRoot::kCurrentUser,
                                     L"Software\\Velmont\\Tidewell\\TabSettings\\" + plugin);
    key->Set(kHostedNames[index % kHostedNames.size()], type, data);
  }
}

void Expect(bool holds) {
  if (!holds) std::abort();
}

void LoadSaveLoad(Input input) {
  MemoryMachine machine;
  const int dpi = 96 + input.Byte();
  const ScreenScale scale(dpi, dpi, false);
  Fill(machine.registry, input);

  Machine door = machine.Door();
  std::unique_ptr<ResourceLibrary> language;
  SettingsStore first;
  first.Load(door, scale, language);
  first.Save(machine.registry, scale);
  SettingsStore second;
  second.Load(door, scale, language);

  const SavedValues before = ValuesOf(first);
  const SavedValues after = ValuesOf(second);
  Expect(before.numbers == after.numbers);
  Expect(before.texts == after.texts);
  Expect(first.tabs.size() == second.tabs.size());
  for (auto a = first.tabs.begin(), b = second.tabs.begin(); a != first.tabs.end(); ++a, ++b) {
    Expect(a->order == b->order && a->caption == b->caption && a->enabled == b->enabled &&
           a->dll == b->dll);
  }
}

}  // namespace
}  // namespace tidewell

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  tidewell::LoadSaveLoad(tidewell::Input(std::as_bytes(std::span(data, size))));
  return 0;
}
