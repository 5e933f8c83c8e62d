// The kinds of settings, each on its own, on every registry.
#include <array>
#include <cstring>

#include "tests/settings/store_fixture.h"

namespace tidewell {
namespace {

constexpr SettingKey kKey = SettingKey::kNotes;

std::vector<std::byte> Bytes(std::size_t count, unsigned first = 1) {
  std::vector<std::byte> bytes(count);
  for (std::size_t i = 0; i < count; ++i) bytes[i] = std::byte((first + i) & 0xFF);
  return bytes;
}

std::vector<std::byte> TextBytes(const std::wstring& text, std::size_t dropped = 0) {
  std::vector<std::byte> bytes = BytesOf(text);
  bytes.resize(bytes.size() - dropped);
  return bytes;
}

class SettingTest : public StoreFixture {
 protected:
  // Loads through a shared key of its own, as the store does.
  template <typename Kind>
  Kind& Loaded(Kind& setting) {
    setting.Load(KeyOf(setting.Key()).Get(), context);
    return setting;
  }
  void SaveCounted(Setting& setting) {
    FlushedKey key = CreateSettingKey(metered, setting.Key());
    metered.Meter().Reset();
    setting.Save(key.Get());
  }
  int Sets() const { return metered.Count(RegistryCall::kSet); }
  int Deletes() const { return metered.Count(RegistryCall::kDeleteValue); }

  LoadContext context;
};

TEST_P(SettingTest, ANumberIsReadOnlyFromExactlyFourBytesOfAnyType) {
  DwordSetting number(kKey, L"Number", 77);
  EXPECT_EQ(Loaded(number).Value(), 77u) << "absent";
  for (const std::uint32_t type : {kTypeDword, kTypeBinary, kTypeString, 0u, 11u}) {
    for (const std::size_t size : {0, 1, 2, 3, 4, 5, 8, 600}) {
      Put(kKey, L"Number", type, Bytes(size));
      EXPECT_EQ(Loaded(number).Value(), size == 4 ? 0x04030201u : 77u)
          << size << " bytes of type " << type;
    }
  }
  Put(kKey, L"NUMBER", 0xFFFFFFFFu);
  EXPECT_EQ(Loaded(number).Signed(), -1) << "in other letter case";
}

TEST_P(SettingTest, ATextIsItsBytesUpToTheFirstZeroWhateverTheirType) {
  const std::wstring z(1, L'\0');
  const std::wstring long4000(4000, L'x');
  struct Case {
    const char* what;
    std::vector<std::byte> bytes;
    std::wstring expected;
  };
  const std::vector<Case> cases = {
      {"terminated", TextBytes(L"abc" + z), L"abc"},
      {"unterminated", TextBytes(L"abc"), L"abc"},
      {"odd", TextBytes(L"abc", 1), L"ab"},
      {"one byte", Bytes(1), L""},
      {"no bytes", {}, L""},
      {"a lone zero", TextBytes(z), L""},
      {"several texts", TextBytes(L"one" + z + L"two" + z + z), L"one"},
      {"just within one query", TextBytes(std::wstring(255, L'q') + z), std::wstring(255, L'q')},
      {"just over one query", TextBytes(std::wstring(256, L'q') + z), std::wstring(256, L'q')},
      {"unterminated at the limit", TextBytes(std::wstring(256, L'q')), std::wstring(256, L'q')},
      {"4,000 characters", TextBytes(long4000 + z), long4000},
      {"a lone surrogate", TextBytes(std::wstring(1, wchar_t(0xD83D)) + z),
       std::wstring(1, wchar_t(0xD83D))},
  };
  StringSetting text(kKey, L"Text", L"default");
  EXPECT_EQ(Loaded(text).Value(), L"default") << "absent";
  for (const Case& c : cases) {
    for (const std::uint32_t type : {kTypeString, kTypeBinary, kTypeDword, 7u}) {
      Put(kKey, L"Text", type, c.bytes);
      EXPECT_EQ(Loaded(text).Value(), c.expected) << c.what << ", type " << type;
    }
  }
}

TEST_P(SettingTest, ASaveWritesChangesAloneAndDeletesWhatIsTheDefaultAgain) {
  DwordSetting number(kKey, L"Number", 1);
  StringSetting text(kKey, L"Text", L"Tahoma");
  Loaded(number);
  Loaded(text);
  Put(kKey, L"Number", 5);
  Put(kKey, L"Text", L"Courier");
  SaveCounted(number);
  SaveCounted(text);
  EXPECT_EQ(metered.CountWrites(), 0) << "unchanged, though the registry differs";

  Loaded(number).Set(1);
  Loaded(text).Set(L"Tahoma");
  for (Setting* setting : std::vector<Setting*>{&number, &text}) {
    SaveCounted(*setting);
    EXPECT_EQ(Deletes(), 1);
    EXPECT_EQ(Sets(), 0);
  }
  EXPECT_EQ(Stored(kKey, L"Number"), std::nullopt);
  EXPECT_EQ(StoredText(kKey, L"Text"), std::nullopt);
}

TEST_P(SettingTest, EverySetCountsAsAChangeAndOutlivesTheSave) {
  DwordSetting number(kKey, L"Number", 1);
  EXPECT_FALSE(Loaded(number).IsChanged());
  EXPECT_EQ(number.Set(1), 1u) << "the previous value";
  EXPECT_TRUE(number.IsChanged()) << "though it is the same";
  EXPECT_EQ(number.Set(9), 1u);
  for (int save = 1; save <= 2; ++save) {
    SaveCounted(number);
    EXPECT_EQ(Sets(), 1) << "save " << save;
    EXPECT_TRUE(number.IsChanged());
  }
  EXPECT_FALSE(Loaded(number).IsChanged());
}

TEST_P(SettingTest, NumbersAreWrittenAsFourBytesAndTextsWithTheirTerminator) {
  DwordSetting number(kKey, L"Number", 1);
  StringSetting text(kKey, L"Text", L"Tahoma");
  Loaded(number).Set(static_cast<std::uint32_t>(-2));
  Loaded(text).Set(L"tahoma");  // not the default: letter case counts
  SaveCounted(number);
  SaveCounted(text);
  const FlushedKey key = KeyOf(kKey);
  std::array<std::byte, 64> bytes{};
  ValueInfo info;
  ASSERT_EQ(key.Get()->Query(L"Number", {}, info), kStatusSuccess);
  EXPECT_EQ(info.type, kTypeDword);
  EXPECT_EQ(Stored(kKey, L"Number"), 0xFFFFFFFEu);
  ASSERT_EQ(key.Get()->Query(L"Text", bytes, info), kStatusSuccess);
  EXPECT_EQ(info.type, kTypeString);
  EXPECT_EQ(TextOfBytes(std::span(bytes).first(info.size)), std::wstring(L"tahoma\0", 7));
}

TEST_P(SettingTest, FlagsAreTakenOnlyAsBinaryOfTheirExactSize) {
  struct Case {
    std::size_t bits, size;
    std::uint32_t type;
    bool isUsed;
  };
  const std::vector<Case> cases = {
      {125, 16, kTypeBinary, true}, {125, 15, kTypeBinary, false},  {125, 17, kTypeBinary, false},
      {125, 0, kTypeBinary, false}, {125, 900, kTypeBinary, false}, {125, 16, kTypeString, false},
      {41, 6, kTypeBinary, true},   {41, 5, kTypeBinary, false},    {8, 1, kTypeBinary, true},
      {9, 2, kTypeBinary, true},    {32, 4, kTypeDword, false},
  };
  for (const FlagFill fill : {FlagFill::kAllClear, FlagFill::kAllSet}) {
    const auto filler = std::byte(fill == FlagFill::kAllSet ? 0xFF : 0);
    for (const Case& c : cases) {
      FlagArraySetting flags(kKey, L"Flags", c.bits, fill);
      Put(kKey, L"Flags", c.type, Bytes(c.size));
      const std::vector<std::byte> unfilled((c.bits + 7) / 8, filler);
      Loaded(flags);
      const std::vector<std::byte> loaded(flags.Bytes().begin(), flags.Bytes().end());
      EXPECT_EQ(loaded, c.isUsed ? Bytes(c.size) : unfilled)
          << c.size << " bytes for " << c.bits << " bits, type " << c.type;
    }
  }
}

TEST_P(SettingTest, AFontIsSixNumbersAndTheFaceAndQualityOfItsTime) {
  scale = ScreenScale(192, 192, false);
  Put(SettingKey::kFonts, L"FontFaceToUse", std::wstring(40, L'f').c_str());
  Put(SettingKey::kFonts, L"ForceClearType", 2);
  Put(SettingKey::kFonts, L"FontMailUnreadlfItalic", 256);
  Put(SettingKey::kFonts, L"FontMailUnreadlfColor", 0x00112233);
  Load();
  FontSetting& font = store.fonts.FontMailUnread;
  const LogFont loaded = font.Font();
  EXPECT_EQ(loaded.height, 24);
  EXPECT_EQ(loaded.weight, 700);
  EXPECT_EQ(loaded.italic, 1);
  EXPECT_EQ(loaded.underline, 0);
  EXPECT_EQ(loaded.strikeOut, 0);
  EXPECT_EQ(loaded.quality, 5);
  EXPECT_EQ(loaded.faceName, std::wstring(31, L'f')) << "as much as the system's structure holds";
  EXPECT_EQ(font.Color(), 0x00112233u);
  EXPECT_EQ(store.fonts.FontCalPast.Font().strikeOut, 1);
  store.fonts.FontFaceToUse.Set(L"Other");
  EXPECT_EQ(font.Font().faceName, loaded.faceName);
}

TEST_P(SettingTest, ASetFontIsSavedMemberByMember) {
  Load();
  FontSetting& font = store.fonts.FontGeneral;
  EXPECT_FALSE(font.IsChanged());
  const LogFont chosen{.height = 12,
                       .weight = 400,
                       .italic = 1,
                       .underline = 0,
                       .strikeOut = 0,
                       .quality = 0,
                       .faceName = L""};
  EXPECT_EQ(font.Set(chosen, 0x00FF00), kNoColor) << "the previous colour";
  EXPECT_TRUE(font.IsChanged());
  SaveCounted(font);

  std::vector<std::wstring> log;
  for (const auto& entry : metered.Meter().Log()) {
    const bool set = entry.kind == RegistryCall::kSet;
    log.push_back((set ? L"set " : L"delete ") + entry.path.substr(entry.path.rfind(L'\\') + 1));
  }
  EXPECT_EQ(log, (std::vector<std::wstring>{
                     L"set FontGenerallfWeight", L"set FontGenerallfItalic",
                     L"delete FontGenerallfUnderline", L"delete FontGenerallfStrikeOut",
                     L"delete FontGenerallfHeight", L"set FontGenerallfColor"}));
}

TEST_P(SettingTest, ASettingUsedAloneOpensFlushesAndClosesItsOwnKey) {
  DwordSetting mode(SettingKey::kRoot, L"MyVgaMode", 0);
  mode.LoadAlone(metered, context);
  EXPECT_EQ(mode.Value(), 0u);
  mode.Set(1);
  mode.SaveAlone(metered);
  EXPECT_EQ(metered.Meter().Paths(RegistryCall::kCreate),
            std::vector<std::wstring>(2, L"HKCU\\Software\\Velmont\\Tidewell"));
  EXPECT_EQ(metered.Count(RegistryCall::kFlush), 2);
  EXPECT_EQ(metered.Count(RegistryCall::kClose), 2);
  EXPECT_EQ(Stored(SettingKey::kRoot, L"MyVgaMode"), 1u);
}

TEST_P(SettingTest, ASettingOfAnUnknownKeyIsItsDefaultAndIsSavedNowhere) {
  for (const int id : {-1, 15, 99}) {
    DwordSetting number(static_cast<SettingKey>(id), L"Number", 6);
    number.LoadAlone(metered, context);
    EXPECT_EQ(number.Value(), 6u);
    number.Set(7);
    number.SaveAlone(metered);
    EXPECT_EQ(metered.CountWrites(), 0);
  }
}

INSTANTIATE_TEST_SUITE_P(On, SettingTest, testing::ValuesIn(RegistryKinds()),
                         testing::PrintToStringParamName());

}  // namespace
}  // namespace tidewell
