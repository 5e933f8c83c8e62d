// The kinds of settings, each on its own.
#include "tests/settings/store_fixture.h"

namespace tidewell {
namespace {

constexpr SettingKey kKey = SettingKey::kNotes;

class SettingTest : public StoreFixture {
 protected:
  // Loads through a shared key, as the store does.
  template <typename Kind>
  Kind& Loaded(Kind& setting) {
    setting.Load(KeyOf(setting.Key()).Get(), {});
    return setting;
  }
  void Save(Setting& setting) {
    FlushedKey key = CreateSettingKey(metered, setting.Key());
    metered.Meter().Reset();
    setting.Save(key.Get());
  }
};

TEST_P(SettingTest, ATextIsItsBytesUpToTheFirstZeroWhateverTheirType) {
  using namespace std::string_literals;
  const std::wstring text255(255, L'q');
  const std::wstring text256(256, L'q');
  const std::wstring surrogate(1, wchar_t(0xD83D));
  struct Case {
    std::wstring stored, expected;
  };
  const Case cases[] = {
      {L"abc\0"s, L"abc"},
      {L"abc", L"abc"},
      {L"", L""},
      {L"\0"s, L""},
      {L"one\0two\0\0"s, L"one"},
      {text255 + L'\0', text255},  // just within one query
      {text256, text256},
      {text256 + L'\0', text256},
      {std::wstring(4000, L'x') + L'\0', std::wstring(4000, L'x')},
      {surrogate + L'\0', surrogate},
  };
  StringSetting text(kKey, L"Text", L"default");
  EXPECT_EQ(Loaded(text).Value(), L"default") << "absent";
  for (const Case& c : cases) {
    for (const std::uint32_t type : {kTypeString, kTypeBinary, 7u}) {
      KeyOf(kKey).Get()->Set(L"Text", type, BytesOf(c.stored));
      EXPECT_EQ(Loaded(text).Value(), c.expected) << Utf8(c.stored) << ", type " << type;
    }
  }
  Loaded(text).Set(L"Default");
  Save(text);
  EXPECT_EQ(Sets(), 1) << "letter case counts";
}

TEST_P(SettingTest, ASaveWritesWhatWasSetAndDeletesWhatIsTheDefault) {
  constexpr std::uint32_t kDefault = 1;
  constexpr std::uint32_t kBehindOurBack = 7;
  struct Case {
    std::uint32_t loaded;
    std::optional<std::uint32_t> set, left;
    int sets, deletes;
  };
  for (const Case& c : {Case{5, {}, kBehindOurBack, 0, 0},
                        {5, 5, 5, 1, 0},
                        {5, 9, 9, 1, 0},
                        {5, kDefault, {}, 0, 1},
                        {kDefault, kDefault, {}, 0, 1}}) {
    DwordSetting number(kKey, L"Number", kDefault);
    Put(kKey, L"Number", c.loaded);
    Loaded(number);
    Put(kKey, L"Number", kBehindOurBack);
    if (c.set) {
      EXPECT_EQ(number.Set(*c.set), c.loaded);
    }
    for (int save = 1; save <= 2; ++save) {
      EXPECT_EQ(number.IsChanged(), c.set.has_value()) << "also when it is the same, also saved";
      Save(number);
      EXPECT_EQ(Stored(kKey, L"Number"), c.left);
      EXPECT_EQ(Sets(), c.sets);
      EXPECT_EQ(Deletes(), c.deletes);
    }
    EXPECT_FALSE(Loaded(number).IsChanged());
  }
}

TEST_P(SettingTest, FlagsAreRoundedUpToBytesAndFilledWhenAbsent) {
  for (const std::size_t bits : {8, 9, 125}) {
    FlagArraySetting clear(kKey, L"Flags", bits, FlagFill::kAllClear);
    FlagArraySetting set(kKey, L"Flags", bits, FlagFill::kAllSet);
    ASSERT_EQ(Loaded(clear).Bytes().size(), bits == 8 ? 1u : bits == 9 ? 2u : 16u);
    EXPECT_EQ(clear.Bytes().back(), std::byte(0));
    EXPECT_EQ(Loaded(set).Bytes().back(), std::byte(0xFF));
  }
}

TEST_P(SettingTest, AFontIsSixNumbersAndTheFaceAndQualityOfItsTime) {
  constexpr SettingKey kFonts = SettingKey::kFonts;
  scale = ScreenScale(192, 192, false);
  Put(kFonts, L"FontFaceToUse", std::wstring(40, L'f'));
  PutNumbers(kFonts, "ForceClearType=2 FontMailUnreadlfItalic=256 FontMailUnreadlfColor=1122867");
  Load();
  FontSetting& font = store.fonts.FontMailUnread;
  const LogFont loaded = font.Font();
  const std::vector<int> numbers = {loaded.height,    loaded.weight,    loaded.italic,
                                    loaded.underline, loaded.strikeOut, loaded.quality};
  EXPECT_EQ(numbers, (std::vector<int>{24, 700, 1, 0, 0, 5}));
  EXPECT_EQ(loaded.faceName, std::wstring(31, L'f')) << "as much as the system's structure holds";
  EXPECT_EQ(store.fonts.FontCalPast.Font().strikeOut, 1);
  store.fonts.FontFaceToUse.Set(L"Other");
  EXPECT_EQ(font.Font().faceName, loaded.faceName);
  EXPECT_FALSE(font.IsChanged());

  EXPECT_EQ(font.Set({24, 400, 0, 1, 1, 0, L""}, 0x00FF00), 0x112233u) << "the previous colour";
  EXPECT_TRUE(font.IsChanged());
  DeleteKey(kFonts);
  Save(font);
  EXPECT_EQ(Dump(kFonts),
            "[Software\\Velmont\\Tidewell\\Fonts]\n"
            "FontMailUnreadlfColor = 65280\n"
            "FontMailUnreadlfStrikeOut = 1\n"
            "FontMailUnreadlfUnderline = 1\n"
            "FontMailUnreadlfWeight = 400\n");
  EXPECT_EQ(Deletes(), 2) << "height and slant";
}

TEST_P(SettingTest, ASettingUsedAloneOpensFlushesAndClosesItsOwnKeyIfItHasOne) {
  DwordSetting mode(SettingKey::kRoot, L"MyVgaMode", 0);
  mode.LoadAlone(metered, {});
  mode.Set(1);
  mode.SaveAlone(metered);
  EXPECT_EQ(metered.Meter().Paths(RegistryCall::kCreate),
            std::vector<std::wstring>(2, L"HKCU\\Software\\Velmont\\Tidewell"));
  EXPECT_EQ(metered.Count(RegistryCall::kFlush), 2);
  EXPECT_EQ(metered.Count(RegistryCall::kClose), 2);
  EXPECT_EQ(Stored(SettingKey::kRoot, L"MyVgaMode"), 1u);
  for (const int id : {-1, 15, 99}) {
    DwordSetting homeless(static_cast<SettingKey>(id), L"Number", 6);
    homeless.LoadAlone(metered, {});
    EXPECT_EQ(homeless.Set(7), 6u);
    homeless.SaveAlone(metered);
  }
  EXPECT_EQ(metered.CountWrites(), 1);
}

INSTANTIATE_TEST_SUITE_P(On, SettingTest, testing::ValuesIn(RegistryKinds()),
                         testing::PrintToStringParamName());

}  // namespace
}  // namespace tidewell
