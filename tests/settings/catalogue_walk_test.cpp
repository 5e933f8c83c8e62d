// Every line of the catalogue at work: loaded, saved in order, loaded again, set back.
#include "tests/settings/store_fixture.h"
#include "tests/support/utf8.h"

namespace tidewell {
namespace {

// Gives every line a value of its own, so that two lines cannot pass for each other.
class CatalogueWalkTest : public StoreFixture {
 protected:
  static std::uint32_t NumberOf(std::size_t line) {
    return 5000 + static_cast<std::uint32_t>(line);
  }
  static std::wstring TextFor(std::size_t line) {
    return L"text " + FormatDecimal(static_cast<std::int32_t>(line));
  }
  static std::vector<std::byte> FlagsOf(const FlagArraySetting& setting, std::size_t line) {
    return std::vector<std::byte>((setting.Bits() + 7) / 8, std::byte(line & 0xFF));
  }
  // Whether the lines hold those values; those that are never saved, when `saved` says so, their
  // defaults.
  static void ExpectOwnValues(SettingGroup& group, bool saved) {
    const SettingLines lines(group);
    for (std::size_t i = 0; i < lines.dwords.size(); ++i) {
      const DwordSetting& setting = *lines.dwords[i];
      const bool isDefault = saved && setting.IsReadOnly();
      EXPECT_EQ(setting.Value(), isDefault ? setting.Default() : NumberOf(i))
          << Utf8(setting.Name());
    }
    for (std::size_t i = 0; i < lines.strings.size(); ++i) {
      const StringSetting& setting = *lines.strings[i];
      const bool isDefault = saved && setting.IsReadOnly();
      EXPECT_EQ(setting.Value(), isDefault ? setting.Default() : TextFor(i))
          << Utf8(setting.Name());
    }
  }
  static std::vector<std::wstring> SavedNames(const SettingLines& lines) {
    std::vector<std::wstring> names;
    for (const Setting* setting : lines.all) {
      if (!setting->IsReadOnly()) names.push_back(setting->Name());
    }
    return names;
  }
  // The names that calls of a kind touched, in order.
  std::vector<std::wstring> Touched(RegistryCall call) {
    std::vector<std::wstring> names = metered.Meter().Paths(call);
    for (std::wstring& name : names) name.erase(0, name.rfind(L'\\') + 1);
    return names;
  }
  void LoadGroup(SettingGroup& group) { group.Load(KeyOf(group.Key()).Get(), context); }
  void SaveGroup(SettingGroup& group) {
    const FlushedKey key = CreateSettingKey(metered, group.Key());
    metered.Meter().Reset();
    group.Save(key.Get());
  }

  LoadContext context;
};

TEST_P(CatalogueWalkTest, EveryLineReadsTheValueOfItsName) {
  for (SettingGroup* group : store.Groups()) {
    const SettingLines lines(*group);
    const FlushedKey key = KeyOf(group->Key());
    for (std::size_t i = 0; i < lines.dwords.size(); ++i) {
      WriteDword(key.Get(), lines.dwords[i]->Name(), NumberOf(i));
    }
    for (std::size_t i = 0; i < lines.strings.size(); ++i) {
      WriteString(key.Get(), lines.strings[i]->Name(), TextFor(i));
    }
    for (const FlagArraySetting* setting : lines.flags) {
      key.Get()->Set(setting->Name(), kTypeBinary, FlagsOf(*setting, 9));
    }
    group->Load(key.Get(), context);
    ExpectOwnValues(*group, false);
    for (const FlagArraySetting* setting : lines.flags) {
      const std::vector<std::byte> loaded(setting->Bytes().begin(), setting->Bytes().end());
      EXPECT_EQ(loaded, FlagsOf(*setting, 9)) << Utf8(setting->Name());
    }
  }
}

TEST_P(CatalogueWalkTest, EveryLineIsSavedInOrderLoadedAgainAndGoneWhenSetBack) {
  for (SettingGroup* group : store.Groups()) {
    LoadGroup(*group);
    SaveGroup(*group);
    EXPECT_EQ(metered.CountWrites(), 0) << "unchanged";

    const SettingLines lines(*group);
    for (std::size_t i = 0; i < lines.dwords.size(); ++i) lines.dwords[i]->Set(NumberOf(i));
    for (std::size_t i = 0; i < lines.strings.size(); ++i) lines.strings[i]->Set(TextFor(i));
    SaveGroup(*group);
    EXPECT_EQ(Touched(RegistryCall::kSet), SavedNames(lines));
    EXPECT_EQ(metered.Count(RegistryCall::kDeleteValue), 0);

    LoadGroup(*group);
    ExpectOwnValues(*group, true);
    SaveGroup(*group);
    EXPECT_EQ(metered.CountWrites(), 0) << "loaded again";

    for (DwordSetting* setting : lines.dwords) setting->Set(setting->Default());
    for (StringSetting* setting : lines.strings) setting->Set(setting->Default());
    SaveGroup(*group);
    EXPECT_EQ(Touched(RegistryCall::kDeleteValue), SavedNames(lines));
    EXPECT_EQ(metered.Count(RegistryCall::kSet), 0);
    EnumeratedValue left;
    EXPECT_EQ(KeyOf(group->Key()).Get()->EnumValue(0, 256, 256, left), kStatusNoMoreItems);
  }
}

INSTANTIATE_TEST_SUITE_P(On, CatalogueWalkTest, testing::ValuesIn(RegistryKinds()),
                         testing::PrintToStringParamName());

}  // namespace
}  // namespace tidewell
