// Loading and saving as a whole: the order of the keys, computed defaults, repairs, and what a
// save costs.
#include "settings/settings_store.h"

#include <gtest/gtest.h>

#include "tests/support/setting_lines.h"
#include "tests/support/test_device.h"
#include "tests/support/utf8.h"

namespace tidewell {
namespace {

using Texts = std::vector<std::wstring>;

class SettingsStoreTest : public testing::Test, protected TestDevice {
 protected:
  static constexpr RegistryRoot kMachine = RegistryRoot::kLocalMachine;
  static constexpr auto kToday = L"Software\\Microsoft\\today\\items\\Tidewell";
};

TEST_F(SettingsStoreTest, EachKeyIsOpenedOnceInOrderAndWhatChangedSinceTheLoadIsWritten) {
  const std::wstring product = L"HKCU\\Software\\Velmont\\Tidewell";
  Texts keys = {product};
  for (const wchar_t* name :
       {L"Calendar", L"Tasks", L"Notes", L"Contacts", L"Messages", L"SEvents", L"Fonts", L"Colors",
        L"CustomPIM", L"TabSettings", L"Categories", L"IconSet"}) {
    keys.push_back(product + L"\\" + name);
  }
  registry.Create(kMachine, kToday);
  registry.Create(kMachine, L"SOFTWARE\\Microsoft\\Color");
  store.root.OnClick.Set(5);
  Save();
  EXPECT_TRUE(recorded.Calls().Paths(RegistryCall::kCreate).empty()) << "nothing was loaded yet";
  Load();
  EXPECT_EQ(recorded.Calls().Paths(RegistryCall::kOpen),
            (Texts{L"HKLM\\" + std::wstring(kToday), L"HKLM\\SOFTWARE\\Microsoft\\Color"}));
  Texts created = keys;
  created.insert(created.begin(), {L"HKCU\\Software\\WebIS\\PocketInformant",
                                   L"HKLM\\SOFTWARE\\Developer One, Inc.\\Agenda Fusion"});
  EXPECT_EQ(recorded.Calls().Paths(RegistryCall::kCreate), created);
  EXPECT_EQ(recorded.Count(RegistryCall::kClose), 17);
  EXPECT_EQ(recorded.Count(RegistryCall::kFlush), 16) << "all but the theme's key";
  EXPECT_EQ(recorded.Count(RegistryCall::kCountValues), 13) << "a key of a few is asked for each";
  EXPECT_EQ(recorded.Count(RegistryCall::kEnumValue), 13) << "no key holds anything";
  EXPECT_EQ(recorded.Count(RegistryCall::kQuery), 2 + 2 + 6 + 1)
      << "the keys of few values, six theme colours and the size of their table";
  EXPECT_EQ(recorded.CountWrites(), 0);

  Save();
  EXPECT_EQ(recorded.CountWrites(), 0);
  EXPECT_EQ(recorded.Calls().Paths(RegistryCall::kCreate), keys);
  EXPECT_EQ(recorded.Count(RegistryCall::kQuery), 0);
  EXPECT_EQ(recorded.Count(RegistryCall::kFlush), 13);
  EXPECT_EQ(recorded.Count(RegistryCall::kClose), 13);
  store.root.OnClick.Set(5);
  store.categories.AdditionalIconsFolder.Set(L"");
  Save();
  EXPECT_EQ(Sets(), 1);
  EXPECT_EQ(Deletes(), 1);
}

TEST_F(SettingsStoreTest, DefaultsFollowTheScreenAndTheLocale) {
  memory.locale.firstDayOfWeek = L"6";
  for (const auto& [screen, height, font] : {std::tuple(ScreenScale(192, 192, false), 320u, 24u),
                                             {ScreenScale(131, 128, false), 213u, 16u}}) {
    scale = screen;
    Load();
    EXPECT_EQ(store.root.dHeightLimit.Value(), height) << "vertical";
    EXPECT_EQ(store.fonts.FontSEFilter4.height.Value(), font) << "horizontal";
    EXPECT_EQ(store.calendar.MonthlyStartDay.Value(), 6u);
    EXPECT_EQ(store.calendar.FirstWorkDay.Value(), 6u);
  }
  for (const auto& [timeStyle, isTwelveHours] :
       {std::pair(L"0", true), {L"1", false}, {L"49", false}, {L"48", true}, {L"", true}}) {
    memory.locale.timeStyle = timeStyle;
    Load();
    EXPECT_EQ(store.twelveHourClock, isTwelveHours) << Utf8(timeStyle);
  }
}

TEST_F(SettingsStoreTest, FoldersFollowTheKeysThatNameThem) {
  Load();
  EXPECT_EQ(store.installFolder, L"\\Program Files\\Velmont\\Tidewell");
  EXPECT_EQ(store.todayItemFolder, store.installFolder);
  EXPECT_EQ(store.pocketInformant.PIVOL.Value(), L"My Documents\\WebIS\\PocketInformant.vol");
  EXPECT_FALSE(registry.Open(kMachine, kToday)) << "the key is not ours";

  Put(SettingKey::kTodayItem, L"ProgramFiles", L"\\Card");
  Load();
  EXPECT_EQ(store.todayItemFolder, L"\\Card\\Velmont\\Tidewell");
  EXPECT_EQ(store.root.TWFiltersFileFolder.Value(), L"\\Card\\Velmont\\Tidewell");
  EXPECT_EQ(store.root.TWIconsFolder.Value(), L"\\Card\\Velmont\\Tidewell\\CategoryIcons");
  Put(SettingKey::kTodayItem, L"InstallPath", L"\\Other");
  Load();
  EXPECT_EQ(store.installFolder, L"\\Card\\Velmont\\Tidewell");
  EXPECT_EQ(store.todayItemFolder, L"\\Other\\Velmont\\Tidewell");
}

TEST_F(SettingsStoreTest, TheChosenLanguageLibraryReplacesTheOldOneElseTheEnglishOneDoes) {
  const wchar_t* english = L"\\Program Files\\Velmont\\Tidewell\\LangRes\\TWEngRc.dll";
  Put(SettingKey::kRoot, L"SelectedLangResFile", L"\\LangRes\\German.dll");
  Load();
  EXPECT_EQ(language.Text(1436, L"none"), L"none") << "neither is there";
  for (const auto& [path, caption] :
       {std::pair(english, L"Calendar"), {L"\\LangRes\\German.dll", L"Kalender"}}) {
    memory.libraries.Put(path, {{1436, caption}});
    Load();
    EXPECT_EQ(store.tabs.front().caption, caption);
    EXPECT_EQ(memory.libraries.LoadedCount(), 1) << "the old one is freed";
  }
}

TEST_F(SettingsStoreTest, ValuesThatCannotBeAreRepairedAtLoadAndTheRepairIsSaved) {
  constexpr SettingKey kCalendar = SettingKey::kCalendar;
  // What is stored, and what is then loaded that differs from its default.
  for (const auto& [stored, expected] :
       {std::pair("dNumOfDays=0", ""),
        {"dNumOfDays=121", ""},
        {"dNumOfDays=1", "dNumOfDays=1 "},
        {"dNumOfDays=120", "dNumOfDays=120 "},
        // The default length with any start reaches past midnight.
        {"TimelinesStart=10", "TimelinesStart=10 TimelinesLength=8 "},
        {"TimelinesStart=10 TimelinesLength=8", "TimelinesStart=10 TimelinesLength=8 "},
        {"TimelinesStart=10 TimelinesLength=9", "TimelinesStart=10 TimelinesLength=8 "},
        {"TimelinesStart=2147483647 TimelinesLength=2147483647",
         "TimelinesStart=2147483647 TimelinesLength=-2147483629 "},
        {"CalTitlesOrder5=4", ""},
        {"CalTitlesOrder0=6", ""},
        {"CalTitlesOrder0=1 CalTitlesOrder1=0", "CalTitlesOrder0=1 CalTitlesOrder1=0 "}}) {
    Delete(kCalendar);
    PutNumbers(kCalendar, stored);
    Load();
    Save();
    std::string loaded;
    for (const DwordSetting* setting : SettingLines(store.calendar).dwords) {
      const std::uint32_t value = setting->Value();
      EXPECT_EQ(Stored(kCalendar, setting->Name()).value_or(setting->Default()), value);
      if (value == setting->Default()) continue;
      loaded += Utf8(setting->Name()) + "=" + std::to_string(setting->Signed()) + " ";
    }
    EXPECT_EQ(loaded, expected) << stored;
  }
}

TEST_F(SettingsStoreTest, HeightsAreSavedWithinTheirRangesAndAMonthIsPinnedWhereThereIsRoom) {
  for (const std::uint32_t limit : {59u, 60u, 500u, 501u, 0xFFFFFFFFu}) {
    Put(SettingKey::kRoot, L"dHeightLimitLandscape", limit);
    Load();
    Save();
    EXPECT_EQ(Stored(SettingKey::kRoot, L"dHeightLimitLandscape").has_value(),
              limit >= 60 && limit <= 500)
        << limit << ", though nobody touched it";
  }
  scale = ScreenScale(192, 192, false);
  for (const auto& [pinned, height, isKept] :
       {std::tuple(1u, 399u, false), {1u, 400u, true}, {2u, 150u, true}}) {
    Load();
    store.calendar.PinnedMonthlyClr.Set(pinned);
    store.root.dHeightLimit.Set(height);
    Save();
    EXPECT_EQ(Stored(SettingKey::kCalendar, L"PinnedMonthlyClr").has_value(), isKept) << height;
  }
}

}  // namespace
}  // namespace tidewell
