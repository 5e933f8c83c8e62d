// The kinds of settings, each on its own.
#include <algorithm>

#include <gtest/gtest.h>

#include "platform/text.h"
#include "tests/support/test_device.h"
#include "tests/support/utf8.h"

namespace tidewell {
namespace {

constexpr SettingKey kKey = SettingKey::kNotes;

class SettingTest : public testing::Test, protected TestDevice {
 protected:
  // Loads through a shared key, as the store does.
  template <typename Kind>
  Kind& Loaded(Kind& setting) {
    setting.Load(KeyOf(setting.Key()).Get(), {});
    return setting;
  }
  void Save(Setting& setting) {
    FlushedKey key = CreateSettingKey(recorded, setting.Key());
    recorded.Calls().Reset();
    setting.Save(key.Get());
  }
};

TEST_F(SettingTest, ATextIsItsBytesUpToTheFirstZeroWhateverTheirType) {
  using namespace std::string_literals;
  const std::wstring text255(255, L'q');  // just within one query
  const std::pair<std::wstring, std::wstring> cases[] = {
      {L"abc", L"abc"},
      {L"", L""},
      {L"\0"s, L""},
      {L"one\0two\0\0"s, L"one"},
      {text255 + L'\0', text255},
      {text255 + L'q', text255 + L'q'},
      {L"\xD83D\0"s, L"\xD83D"},
  };
  StringSetting text(kKey, L"Text", L"default");
  EXPECT_EQ(Loaded(text).Value(), L"default") << "absent";
  for (const auto& [stored, expected] : cases) {
    for (const std::uint32_t type : {kTypeString, kTypeBinary}) {
      KeyOf(kKey).Get()->Set(L"Text", type, BytesOf(stored));
      EXPECT_EQ(Loaded(text).Value(), expected) << Utf8(stored) << ", type " << type;
    }
  }
  text.Set(L"Default");
  Save(text);
  EXPECT_EQ(Sets(), 1) << "letter case counts";
}

TEST_F(SettingTest, ASaveWritesWhatWasSetAndDeletesWhatIsTheDefault) {
  constexpr std::uint32_t kDefault = 1;
  constexpr std::uint32_t kBehindOurBack = 7;
  using Number = std::optional<std::uint32_t>;
  for (const auto& [set, left, sets, deletes] : {std::tuple(Number(), Number(kBehindOurBack), 0, 0),
                                                 {5, 5, 1, 0},  // the same is written too
                                                 {9, 9, 1, 0},
                                                 {kDefault, {}, 0, 1}}) {
    DwordSetting number(kKey, L"Number", kDefault);
    Put(kKey, L"Number", 5);
    Loaded(number);
    Put(kKey, L"Number", kBehindOurBack);
    if (set) number.Set(*set);
    for (int save = 1; save <= 2; ++save) {
      EXPECT_EQ(number.IsChanged(), set.has_value()) << "once saved as well";
      Save(number);
      EXPECT_EQ(Stored(kKey, L"Number"), left);
      EXPECT_EQ(Sets(), sets);
      EXPECT_EQ(Deletes(), deletes);
    }
    EXPECT_FALSE(Loaded(number).IsChanged());
  }
}

TEST_F(SettingTest, FlagsAreRoundedUpToBytesAndFilledWhenAbsent) {
  FlagArraySetting clear(kKey, L"Flags", 8, FlagFill::kAllClear);
  FlagArraySetting set(kKey, L"Flags", 9, FlagFill::kAllSet);
  EXPECT_TRUE(std::ranges::equal(Loaded(clear).Bytes(), std::vector(1, std::byte(0))));
  EXPECT_TRUE(std::ranges::equal(Loaded(set).Bytes(), std::vector(2, std::byte(0xFF))));
}

TEST_F(SettingTest, AFontIsSixNumbersAndTheFaceAndQualityOfItsTime) {
  constexpr SettingKey kFonts = SettingKey::kFonts;
  scale = ScreenScale(192, 192, false);
  Put(kFonts, L"FontFaceToUse", std::wstring(40, L'f'));
  PutNumbers(kFonts, "ForceClearType=2 FontMailUnreadlfItalic=256 FontMailUnreadlfColor=1122867");
  Load();
  FontSetting& font = store.fonts.FontMailUnread;
  store.fonts.FontFaceToUse.Set(L"Other");
  const LogFont loaded = font.Font();
  EXPECT_EQ(loaded.height, 24);
  EXPECT_EQ(loaded.weight, 700);
  EXPECT_EQ(loaded.italic, 1) << "any number but 0";
  EXPECT_EQ(loaded.quality, 5);
  EXPECT_EQ(loaded.faceName, std::wstring(31, L'f')) << "as much as the system's structure holds";
  EXPECT_FALSE(font.IsChanged());

  EXPECT_EQ(font.Set({24, 400, 0, 1, 1, 0, L""}, 0x00FF00), 0x112233u) << "the previous colour";
  Delete(kFonts);
  Save(font);
  EXPECT_EQ(Dump(kFonts),
            "[Software\\Velmont\\Tidewell\\Fonts]\n"
            "FontMailUnreadlfColor = 65280\nFontMailUnreadlfStrikeOut = 1\n"
            "FontMailUnreadlfUnderline = 1\nFontMailUnreadlfWeight = 400\n");
  EXPECT_EQ(Deletes(), 2) << "height and slant";
}

}  // namespace
}  // namespace tidewell
