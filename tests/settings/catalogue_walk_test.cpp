// Every line of the catalogue at work: loaded, saved in order, loaded again, set back.
#include <gmock/gmock.h>

#include "tests/settings/store_fixture.h"
#include "tests/support/utf8.h"

namespace tidewell {
namespace {

// Every line gets a value of its own, so that no two can pass for each other.
std::uint32_t NumberOf(std::size_t line) {
  return 5000 + static_cast<std::uint32_t>(line);
}
std::wstring TextFor(std::size_t line) {
  return L"text " + FormatDecimal(static_cast<std::int32_t>(line));
}

using Names = std::vector<std::wstring>;

class CatalogueWalkTest : public StoreFixture {
 protected:
  static Names NamesOf(const SettingLines& lines, bool readOnly) {
    Names names;
    for (const Setting* setting : lines.all) {
      if (setting->IsReadOnly() == readOnly) names.push_back(setting->Name());
    }
    return names;
  }
  // The names that the last save set or deleted, in order.
  Names Touched(RegistryCall call) {
    Names names = metered.Meter().Paths(call);
    for (std::wstring& name : names) name.erase(0, name.rfind(L'\\') + 1);
    return names;
  }
  Names StoredNames(SettingKey key) {
    Names names;
    EnumeratedValue value;
    const FlushedKey open = KeyOf(key);
    for (std::uint32_t i = 0; open.Get()->EnumValue(i, 256, 256, value) == kStatusSuccess; ++i) {
      names.push_back(value.name);
    }
    return names;
  }
  void SaveGroup(SettingGroup& group) {
    const FlushedKey key = CreateSettingKey(metered, group.Key());
    metered.Meter().Reset();
    group.Save(key.Get());
  }
  // Stores a value for every line by hand, as the Today item would.
  void PutEveryLine(SettingGroup& group) {
    const SettingLines lines(group);
    for (std::size_t i = 0; i < lines.dwords.size(); ++i) {
      Put(group.Key(), lines.dwords[i]->Name(), NumberOf(i));
    }
    for (std::size_t i = 0; i < lines.strings.size(); ++i) {
      Put(group.Key(), lines.strings[i]->Name(), TextFor(i).c_str());
    }
    for (const FlagArraySetting* setting : lines.flags) {
      const std::vector<std::byte> flags((setting->Bits() + 7) / 8, std::byte(0x5A));
      Put(group.Key(), setting->Name(), kTypeBinary, flags);
    }
  }
  static void ExpectEveryLine(SettingGroup& group) {
    const SettingLines lines(group);
    for (std::size_t i = 0; i < lines.dwords.size(); ++i) {
      EXPECT_EQ(lines.dwords[i]->Value(), NumberOf(i)) << Utf8(lines.dwords[i]->Name());
    }
    for (std::size_t i = 0; i < lines.strings.size(); ++i) {
      EXPECT_EQ(lines.strings[i]->Value(), TextFor(i)) << Utf8(lines.strings[i]->Name());
    }
    for (const FlagArraySetting* setting : lines.flags) {
      EXPECT_EQ(setting->Bytes().back(), std::byte(0x5A)) << Utf8(setting->Name());
    }
  }
};

TEST_P(CatalogueWalkTest, EveryLineIsLoadedSavedInOrderAndGoneWhenSetBack) {
  const LoadContext context;
  for (SettingGroup* group : store.Groups()) {
    const SettingLines lines(*group);
    const auto load = [&] { group->Load(KeyOf(group->Key()).Get(), context); };
    PutEveryLine(*group);
    load();
    ExpectEveryLine(*group);
    SaveGroup(*group);
    EXPECT_EQ(metered.CountWrites(), 0) << "nothing was changed";

    for (DwordSetting* setting : lines.dwords) setting->Set(setting->Default());
    for (StringSetting* setting : lines.strings) setting->Set(setting->Default());
    SaveGroup(*group);
    EXPECT_EQ(Touched(RegistryCall::kDeleteValue), NamesOf(lines, false));
    EXPECT_EQ(metered.Count(RegistryCall::kSet), 0);
    EXPECT_THAT(StoredNames(group->Key()),
                testing::UnorderedElementsAreArray(NamesOf(lines, true)));

    for (std::size_t i = 0; i < lines.dwords.size(); ++i) lines.dwords[i]->Set(NumberOf(i));
    for (std::size_t i = 0; i < lines.strings.size(); ++i) lines.strings[i]->Set(TextFor(i));
    SaveGroup(*group);
    EXPECT_EQ(Touched(RegistryCall::kSet), NamesOf(lines, false));
    EXPECT_EQ(metered.Count(RegistryCall::kDeleteValue), 0);
    load();
    ExpectEveryLine(*group);
  }
}

INSTANTIATE_TEST_SUITE_P(On, CatalogueWalkTest, testing::ValuesIn(RegistryKinds()),
                         testing::PrintToStringParamName());

}  // namespace
}  // namespace tidewell
