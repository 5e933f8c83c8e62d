// Every line of the catalogue at work: loaded, saved in order, set back, and fed with nonsense.
#include <gtest/gtest.h>

#include "platform/text.h"
#include "tests/support/setting_lines.h"
#include "tests/support/test_device.h"
#include "tests/support/utf8.h"

namespace tidewell {
namespace {

// Shows `act` every number and text with a value that no other line has.
template <typename Act>
void WithOwnValues(SettingGroup& group, Act act) {
  const SettingLines lines(group);
  std::uint32_t next = 5000;
  for (DwordSetting* setting : lines.dwords) {
    const bool isFree = setting->Range().checked == ValueRange::Checked::kNever;
    act(*setting, isFree ? ++next : static_cast<std::uint32_t>(setting->Range().last));
  }
  for (StringSetting* setting : lines.strings) act(*setting, L"text " + std::to_wstring(++next));
}

class CatalogueWalkTest : public testing::Test, protected TestDevice {
 protected:
  // Saves and returns the names of the values that were set, or deleted, in order.
  std::wstring Save(SettingGroup& group, RegistryCall call) {
    const FlushedKey key = CreateSettingKey(recorded, group.Key());
    recorded.Calls().Reset();
    group.Save(key.Get());
    std::wstring names;
    for (const std::wstring& path : recorded.Calls().Paths(call)) {
      names += path.substr(path.rfind(L'\\') + 1) + L"\n";
    }
    return names;
  }
};

TEST_F(CatalogueWalkTest, EveryLineIsLoadedSavedInOrderAndDeletedWhenSetBack) {
  for (SettingGroup* group : store.Groups()) {
    std::wstring saved;
    for (const Setting* setting : SettingLines(*group).all) {
      if (!setting->IsReadOnly()) saved += setting->Name() + L"\n";
    }
    WithOwnValues(*group, [&](Setting& setting, const auto& value) {
      Put(group->Key(), setting.Name(), value);
    });
    const std::string stored = Dump(group->Key());
    group->Load(KeyOf(group->Key()).Get(), {});
    WithOwnValues(*group, [](auto& setting, const auto& value) {
      EXPECT_EQ(setting.Value(), value) << Utf8(setting.Name());
    });
    WithOwnValues(*group, [](auto& setting, const auto&) { setting.Set(setting.Default()); });
    EXPECT_EQ(Save(*group, RegistryCall::kDeleteValue), saved);
    WithOwnValues(*group, [](auto& setting, const auto& value) { setting.Set(value); });
    EXPECT_EQ(Save(*group, RegistryCall::kSet), saved);
    EXPECT_EQ(Dump(group->Key()), stored);
  }
}

TEST_F(CatalogueWalkTest, EveryValueIsReadWholeOrNotAtAll) {
  for (const std::uint32_t type : {0u, kTypeString, kTypeBinary, kTypeDword}) {
    for (const std::size_t size : {0, 3, 4, 5, 6, 16, 17, 513, 8002}) {
      SCOPED_TRACE("type " + std::to_string(type) + ", " + std::to_string(size) + " bytes");
      const std::vector<std::byte> data(size, std::byte('A'));
      for (SettingGroup* group : store.Groups()) {
        const FlushedKey key = KeyOf(group->Key());
        const SettingLines lines(*group);
        for (Setting* setting : lines.all) key.Get()->Set(setting->Name(), type, data);
        group->Load(key.Get(), {});
        for (DwordSetting* setting : lines.dwords) {
          const bool fits = size == 4 && setting->Range().checked != ValueRange::Checked::kAtLoad;
          EXPECT_EQ(setting->Value(), fits ? 0x41414141u : setting->Default());
        }
        for (StringSetting* setting : lines.strings) {
          EXPECT_EQ(setting->Value(), TextOfBytes(data));
        }
        for (FlagArraySetting* setting : lines.flags) {
          const bool fits = type == kTypeBinary && size == (setting->Bits() + 7) / 8;
          const std::byte expected = fits ? std::byte('A') : std::byte(0);
          for (const std::byte byte : setting->Bytes()) EXPECT_EQ(byte, expected);
        }
      }
    }
  }
}

}  // namespace
}  // namespace tidewell
