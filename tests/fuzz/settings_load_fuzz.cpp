#include "tests/fuzz/fuzz_targets.h"
#include "tests/support/setting_lines.h"
#include "tests/support/test_device.h"

namespace tidewell::fuzz {

namespace {

constexpr RegistryRoot kUser = RegistryRoot::kCurrentUser;
const std::wstring kTabs = LocationOf(SettingKey::kTabSettings).path;
// Two stand for whatever else a subkey may hold.
constexpr const wchar_t* kHostedValues[] = {L"Type",  L"DLL",     L"InstallPath", L"CustomIconName",
                                            L"Order", L"Enabled", L"Left",        L"over"};
constexpr const wchar_t* kPlugins[] = {L"A", L"B", L"C", L"contacts", L"Contacts", L"A\\Nested"};
constexpr const wchar_t* kThemeValues[] = {L"4", L"6", L"34", L"SHColor"};

template <typename Items>
auto& TakeOneOf(const Items& items, Bytes& input) {
  const std::size_t low = TakeNumber(input);
  return items[(low | std::size_t{TakeNumber(input)} << 8) % std::size(items)];
}

// Each record is the kind of a value, which of them it is, a type, a size and data.
void Fill(Registry& registry, Bytes input) {
  static SettingsStore catalogue;
  static const SettingLines lines(catalogue);
  while (!input.empty()) {
    RegistryRoot root = kUser;
    std::wstring path;
    std::wstring name;
    switch (TakeNumber(input) % 3) {
      case 0: {
        const Setting& setting = *TakeOneOf(lines.all, input);
        root = LocationOf(setting.Key()).root;
        path = LocationOf(setting.Key()).path;
        name = setting.Name();
        break;
      }
      case 1:
        path = kTabs + L"\\" + TakeOneOf(kPlugins, input);
        name = TakeOneOf(kHostedValues, input);
        break;
      default:
        root = RegistryRoot::kLocalMachine;
        path = L"SOFTWARE\\Microsoft\\Color";
        name = TakeOneOf(kThemeValues, input);
    }
    const std::uint32_t type = TakeNumber(input);
    SetRaw(registry, root, path, name, type, TakeBytes(input, TakeNumber(input)));
  }
}

// A registry with what the input says.
struct Device : TestDevice {
  Device(const ScreenScale& itsScale, Bytes input) {
    scale = itsScale;
    Fill(registry, input);
    Load();
  }
  std::string Tree() { return Dump(L"Software"); }
};

// What the Today item writes itself may be repaired anew; all else must outlive a save.
template <typename Kind>
void RequireSame(const std::vector<Kind*>& saved, const std::vector<Kind*>& loaded) {
  for (std::size_t i = 0; i < saved.size(); ++i) {
    Require(saved[i]->IsReadOnly() || saved[i]->Value() == loaded[i]->Value());
  }
}

}  // namespace

// Whatever a registry holds, what was saved is what is loaded again; a second save writes nothing;
// and a registry that refuses, for once or from some call on, has nothing of it changed.
void settings_load(Bytes bytes) {
  const int dpi = 96 + TakeNumber(bytes);
  const bool isForOnce = TakeNumber(bytes) % 2 == 0;
  const int high = TakeNumber(bytes);
  const int refused = 1 + high * 4 + TakeNumber(bytes);
  const ScreenScale scale(dpi, dpi, false);

  Device device(scale, bytes);
  device.Save();
  const std::string tree = device.Tree();

  SettingsStore second;
  second.Load(device.machine, scale, device.language);
  RequireSame(SettingLines(device.store).dwords, SettingLines(second).dwords);
  RequireSame(SettingLines(device.store).strings, SettingLines(second).strings);
  Require(device.store.tabs == second.tabs);
  CallRecorder<RegistryCall>& calls = device.recorded.Calls();
  calls.Reset();
  second.Save(device.recorded, scale);
  Require(device.recorded.CountWrites() == 0);

  SettingsStore third;
  calls.Reset();
  isForOnce ? calls.FailNth(refused) : calls.FailFrom(refused);
  third.Load(device.machine, scale, device.language);
  third.Save(device.recorded, scale);
  Require(device.Tree() == tree);
}

}  // namespace tidewell::fuzz
