// Loading and saving as a whole: the order of the keys, computed defaults, repairs, and what a
// save costs.
#include "settings/settings_store.h"

#include "tests/settings/store_fixture.h"

namespace tidewell {
namespace {

using Texts = std::vector<std::wstring>;

class SettingsStoreTest : public StoreFixture {
 protected:
  static constexpr auto kToday = L"Software\\Microsoft\\today\\items\\Tidewell";

  // The product's keys, in load and save order.
  static Texts ProductKeys() {
    Texts paths = {L"",           L"\\Calendar",  L"\\Tasks",       L"\\Notes",
                   L"\\Contacts", L"\\Messages",  L"\\SEvents",     L"\\Fonts",
                   L"\\Colors",   L"\\CustomPIM", L"\\TabSettings", L"\\Categories"};
    for (std::wstring& path : paths) path.insert(0, L"HKCU\\Software\\Velmont\\Tidewell");
    return paths;
  }
};

TEST_P(SettingsStoreTest, TheLoadOpensEachKeyOnceInOrderAndClosesIt) {
  registry->Create(RegistryRoot::kLocalMachine, kToday);
  registry->Create(RegistryRoot::kLocalMachine, L"SOFTWARE\\Microsoft\\Color");
  Load();
  EXPECT_EQ(metered.Meter().Paths(RegistryCall::kOpen),
            (Texts{L"HKLM\\" + std::wstring(kToday), L"HKLM\\SOFTWARE\\Microsoft\\Color"}));
  Texts created = ProductKeys();
  created.insert(created.begin(), {L"HKCU\\Software\\WebIS\\PocketInformant",
                                   L"HKLM\\SOFTWARE\\Developer One, Inc.\\Agenda Fusion"});
  EXPECT_EQ(metered.Meter().Paths(RegistryCall::kCreate), created);
  EXPECT_EQ(metered.Count(RegistryCall::kClose), 16);
  EXPECT_EQ(metered.Count(RegistryCall::kFlush), 15) << "all but the theme's key";
  EXPECT_EQ(metered.Count(RegistryCall::kQuery),
            static_cast<int>(SettingLines(store).all.size()) + 6 + 1)
      << "each value once, six theme colours and the size of their table";
  EXPECT_EQ(metered.CountWrites(), 0);
}

TEST_P(SettingsStoreTest, TheSaveOpensEachKeyOnceInOrderAndWritesWhatChangedSinceTheLoad) {
  Load();
  store.root.OnClick.Set(5);
  store.tabs.clear();
  Load();
  EXPECT_EQ(store.tabs.size(), 6u);
  Save();
  EXPECT_EQ(metered.CountWrites(), 0);
  EXPECT_EQ(metered.Meter().Paths(RegistryCall::kCreate), ProductKeys());
  EXPECT_EQ(metered.Count(RegistryCall::kOpen), 0);
  EXPECT_EQ(metered.Count(RegistryCall::kQuery), 0);
  EXPECT_EQ(metered.Count(RegistryCall::kFlush), 12);
  EXPECT_EQ(metered.Count(RegistryCall::kClose), 12);
  store.root.OnClick.Set(5);
  store.categories.AdditionalIconsFolder.Set(L"");
  Save();
  EXPECT_EQ(Sets(), 1);
  EXPECT_EQ(Deletes(), 1);
}

TEST_P(SettingsStoreTest, DefaultsFollowTheScreen) {
  for (const auto& [screen, height, font] : {std::tuple(ScreenScale(96, 96, false), 160u, 12u),
                                             {ScreenScale(192, 192, false), 320u, 24u},
                                             {ScreenScale(131, 128, false), 213u, 16u},
                                             {ScreenScale(96, 96, true), 320u, 24u}}) {
    scale = screen;
    Load();
    EXPECT_EQ(store.root.dHeightLimit.Value(), height) << "vertical";
    EXPECT_EQ(store.fonts.FontSEFilter4.height.Value(), font) << "horizontal";
  }
}

TEST_P(SettingsStoreTest, TheLocaleDecidesTheClockAndTheFirstDayOfTheWeek) {
  for (const auto& [timeStyle, isTwelveHours] : {std::pair(L"0", true),
                                                 {L"1", false},
                                                 {L"10", false},
                                                 {L"49", false},
                                                 {L"4", true},
                                                 {L"48", true},
                                                 {L"", true}}) {
    machine.locale.timeStyle = timeStyle;
    Load();
    EXPECT_EQ(store.twelveHourClock, isTwelveHours) << Utf8(timeStyle);
  }
  for (const auto& [firstDay, day] : {std::pair(L"0", 0u), {L"6", 6u}, {L"x", 0u}, {L"", 0u}}) {
    machine.locale.firstDayOfWeek = firstDay;
    Load();
    EXPECT_EQ(store.calendar.MonthlyStartDay.Value(), day) << Utf8(firstDay);
    EXPECT_EQ(store.calendar.FirstWorkDay.Value(), day) << Utf8(firstDay);
  }
}

TEST_P(SettingsStoreTest, FoldersFollowTheKeysThatNameThem) {
  const auto expectFolders = [&](const std::wstring& install, const std::wstring& todayItem) {
    Load();
    EXPECT_EQ(store.installFolder, install + L"\\Velmont\\Tidewell");
    EXPECT_EQ(store.todayItemFolder, todayItem + L"\\Velmont\\Tidewell");
    EXPECT_EQ(store.root.TWFiltersFileFolder.Value(), store.installFolder);
    EXPECT_EQ(store.root.TWIconsFolder.Value(), store.installFolder + L"\\CategoryIcons");
  };
  expectFolders(L"\\Program Files", L"\\Program Files");
  EXPECT_FALSE(registry->Open(RegistryRoot::kLocalMachine, kToday)) << "the key is not ours";
  SetString(*registry, RegistryRoot::kLocalMachine, kToday, L"ProgramFiles", L"\\Card");
  expectFolders(L"\\Card", L"\\Card");
  SetString(*registry, RegistryRoot::kLocalMachine, kToday, L"InstallPath", L"\\Other");
  expectFolders(L"\\Card", L"\\Other");

  EXPECT_EQ(store.pocketInformant.PIVOL.Value(), L"My Documents\\WebIS\\PocketInformant.vol");
  Put(SettingKey::kPocketInformant, L"WebIS_Folder", L"Card");
  Load();
  EXPECT_EQ(store.pocketInformant.PIVOL.Value(), L"Card\\WebIS\\PocketInformant.vol");
}

TEST_P(SettingsStoreTest, TheChosenLanguageLibraryReplacesTheOldOneElseTheEnglishOneDoes) {
  Put(SettingKey::kRoot, L"SelectedLangResFile", L"\\LangRes\\German.dll");
  Load();
  EXPECT_EQ(language, nullptr) << "neither is there";
  EXPECT_EQ(store.tabs.front().caption, L"");

  machine.libraries.Put(L"\\Program Files\\Velmont\\Tidewell\\LangRes\\TWEngRc.dll",
                        {{1436, L"Calendar"}});
  Load();
  EXPECT_EQ(store.tabs.front().caption, L"Calendar");

  machine.libraries.Put(L"\\LangRes\\German.dll", {{1436, L"Kalender"}});
  Load();
  EXPECT_EQ(store.tabs.front().caption, L"Kalender");
  EXPECT_EQ(machine.libraries.LoadedCount(), 1) << "the old one is freed";
}

TEST_P(SettingsStoreTest, ValuesThatCannotBeAreRepairedAtLoadAndTheRepairIsSaved) {
  struct Case {
    const char *stored, *loaded;  // the loaded ones are all that differ from their default
  };
  constexpr SettingKey kCalendar = SettingKey::kCalendar;
  for (const Case& c :
       {Case{"dNumOfDays=0", ""},
        {"dNumOfDays=121", ""},
        {"dNumOfDays=-1", ""},
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
        {"CalTitlesOrder0=-1 CalTitlesOrder1=0", ""},
        {"CalTitlesOrder0=1 CalTitlesOrder1=0", "CalTitlesOrder0=1 CalTitlesOrder1=0 "}}) {
    DeleteKey(kCalendar);
    PutNumbers(kCalendar, c.stored);
    Load();
    std::string loaded;
    const SettingLines lines(store.calendar);
    for (const DwordSetting* setting : lines.dwords) {
      if (setting->Value() == setting->Default()) continue;
      loaded += Utf8(setting->Name()) + "=" + std::to_string(setting->Signed()) + " ";
    }
    EXPECT_EQ(loaded, c.loaded) << c.stored;
    Save();
    for (const DwordSetting* setting : lines.dwords) {
      EXPECT_EQ(Stored(kCalendar, setting->Name()).value_or(setting->Default()), setting->Value())
          << Utf8(setting->Name());
    }
  }
}

TEST_P(SettingsStoreTest, TheLandscapeLimitIsSavedOnlyWithinItsRange) {
  for (const std::uint32_t limit : {59u, 60u, 500u, 501u, 0xFFFFFFFFu}) {
    Put(SettingKey::kRoot, L"dHeightLimitLandscape", limit);
    Load();
    Save();
    EXPECT_EQ(Stored(SettingKey::kRoot, L"dHeightLimitLandscape").has_value(),
              limit >= 60 && limit <= 500)
        << limit << ", though nobody touched it";
  }
}

TEST_P(SettingsStoreTest, AMonthIsPinnedOnlyWhereTheItemIsHighEnough) {
  for (const auto& [dpi, pinned, height, isKept] : {std::tuple(96, 1u, 199u, false),
                                                    {96, 1u, 200u, true},
                                                    {96, 2u, 150u, true},
                                                    {192, 1u, 399u, false},
                                                    {192, 1u, 400u, true}}) {
    scale = ScreenScale(dpi, dpi, false);
    Load();
    store.calendar.PinnedMonthlyClr.Set(pinned);
    store.root.dHeightLimit.Set(height);
    Save();
    EXPECT_EQ(Stored(SettingKey::kCalendar, L"PinnedMonthlyClr").has_value(), isKept)
        << height << " at " << dpi;
  }
}

INSTANTIATE_TEST_SUITE_P(On, SettingsStoreTest, testing::ValuesIn(RegistryKinds()),
                         testing::PrintToStringParamName());

}  // namespace
}  // namespace tidewell
