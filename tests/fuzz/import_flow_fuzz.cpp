#include "backup/settings_backup.h"
#include "platform/text.h"
#include "tests/fuzz/fuzz_targets.h"
#include "tests/support/test_device.h"

namespace tidewell::fuzz {

namespace {

constexpr RegistryRoot kUser = RegistryRoot::kCurrentUser;
const std::wstring kFile = L"\\My Documents\\a.twsb";

// A name as the registry takes it: no zero ends it early, no backslash splits it.
std::wstring TakeName(Bytes& input) {
  std::wstring name = TextOfBytes(TakeBytes(input, 2 * (TakeNumber(input) % 130u)));
  std::erase_if(name, [](wchar_t unit) { return unit == L'\0' || unit == L'\\'; });
  return name;
}

// Each record is a key, a name, a type, a size times a factor, and data that is repeated.
void Fill(Registry& registry, Bytes& input) {
  for (std::size_t records = TakeNumber(input) % 16u; records > 0; --records) {
    std::wstring path(kProductKey);
    if (const std::wstring key = TakeName(input); !key.empty()) path += L'\\' + key;
    const std::wstring name = TakeName(input);
    const std::uint32_t type = TakeNumber(input) % 8u;
    const std::size_t times = 1u + TakeNumber(input) % 40u;
    const Bytes piece = TakeBytes(input, TakeNumber(input));
    std::vector<std::byte> data;
    for (std::size_t i = 0; i < times; ++i) data.insert(data.end(), piece.begin(), piece.end());
    SetRaw(registry, kUser, path, name, type, data);
  }
}

}  // namespace

// Whatever the registry holds and whatever file is imported: a file that is refused has changed
// nothing, the settings that an import brought can be saved and loaded, and the copy brings back
// all that was there.
void import_flow(Bytes bytes) {
  TestDevice device;
  device.files.Put(L"\\My Documents\\");
  Fill(device.registry, bytes);
  device.files.Put(kFile, bytes);
  device.LoadWith({});
  // The store repairs what it loads, now as after going back.
  device.Save();
  const std::string before = device.Dump(SettingKey::kRoot);

  SettingsBackup backup(device.machine, device.store, device.catalog);
  const ImportQuestions questions{[](const std::wstring&) { return true; },
                                  [](FileStatus) { return false; }};
  const auto import = [&](const std::wstring& path) {
    return backup.ImportFrom(path, questions, device.scale, device.language);
  };
  const ImportOutcome outcome = import(kFile);
  Require(outcome.result != ImportResult::kDeclined);
  if (outcome.result == ImportResult::kRefused) {
    Require(device.Dump(SettingKey::kRoot) == before);
    return;
  }
  device.Save();
  device.LoadWith({});
  Require(import(L"\\My Documents\\" + outcome.copy).result == ImportResult::kDone);
  Require(device.Dump(SettingKey::kRoot) == before);
}

}  // namespace tidewell::fuzz
