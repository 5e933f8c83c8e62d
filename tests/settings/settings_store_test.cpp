// Loading and saving as a whole: the order of the keys, computed defaults, repairs, and what a
// save costs.
#include "settings/settings_store.h"

#include "tests/settings/store_fixture.h"
#include "tests/support/utf8.h"

namespace tidewell {
namespace {

using Texts = std::vector<std::wstring>;

const std::wstring kTree = L"HKCU\\Software\\Velmont\\Tidewell";

class SettingsStoreTest : public StoreFixture {
 protected:
  int Sets() const { return metered.Count(RegistryCall::kSet); }
  int Deletes() const { return metered.Count(RegistryCall::kDeleteValue); }
};

TEST_P(SettingsStoreTest, ARegistryWithoutOurValuesLoadsEveryDefaultAndSavingAtOnceWritesNothing) {
  Load();
  SettingLines lines(store);
  for (DwordSetting* setting : lines.dwords) {
    EXPECT_EQ(setting->Value(), setting->Default()) << Utf8(setting->Name());
  }
  for (StringSetting* setting : lines.strings) {
    EXPECT_EQ(setting->Value(), setting->Default()) << Utf8(setting->Name());
  }
  for (FlagArraySetting* setting : lines.flags) {
    for (const std::byte byte : setting->Bytes()) EXPECT_EQ(byte, std::byte(0));
  }
  for (Setting* setting : lines.all) EXPECT_FALSE(setting->IsChanged()) << Utf8(setting->Name());
  Save();
  EXPECT_EQ(metered.CountWrites(), 0);
}

TEST_P(SettingsStoreTest, TheLoadOpensEachKeyOnceInOrderAndClosesIt) {
  registry->Create(RegistryRoot::kLocalMachine, L"Software\\Microsoft\\today\\items\\Tidewell");
  registry->Create(RegistryRoot::kLocalMachine, L"SOFTWARE\\Microsoft\\Color");
  Load();
  EXPECT_EQ(metered.Meter().Paths(RegistryCall::kOpen),
            (Texts{L"HKLM\\Software\\Microsoft\\today\\items\\Tidewell",
                   L"HKLM\\SOFTWARE\\Microsoft\\Color"}));
  EXPECT_EQ(
      metered.Meter().Paths(RegistryCall::kCreate),
      (Texts{L"HKCU\\Software\\WebIS\\PocketInformant",
             L"HKLM\\SOFTWARE\\Developer One, Inc.\\Agenda Fusion", kTree, kTree + L"\\Calendar",
             kTree + L"\\Tasks", kTree + L"\\Notes", kTree + L"\\Contacts", kTree + L"\\Messages",
             kTree + L"\\SEvents", kTree + L"\\Fonts", kTree + L"\\Colors", kTree + L"\\CustomPIM",
             kTree + L"\\TabSettings", kTree + L"\\Categories"}));
  EXPECT_EQ(metered.Count(RegistryCall::kClose), 16);
  EXPECT_EQ(metered.Count(RegistryCall::kFlush), 15) << "all but the theme's key";
  EXPECT_EQ(metered.Count(RegistryCall::kQuery),
            static_cast<int>(SettingLines(store).all.size()) + 6 + 1)
      << "each value once, six theme colours and the size of their table";
  EXPECT_EQ(metered.CountWrites(), 0);
}

TEST_P(SettingsStoreTest, TheSaveOpensEachKeyOnceInOrderFlushesAndClosesIt) {
  Load();
  Save();
  EXPECT_EQ(metered.Meter().Paths(RegistryCall::kCreate),
            (Texts{kTree, kTree + L"\\Calendar", kTree + L"\\Tasks", kTree + L"\\Notes",
                   kTree + L"\\Contacts", kTree + L"\\Messages", kTree + L"\\SEvents",
                   kTree + L"\\Fonts", kTree + L"\\Colors", kTree + L"\\CustomPIM",
                   kTree + L"\\TabSettings", kTree + L"\\Categories"}));
  EXPECT_EQ(metered.Count(RegistryCall::kOpen), 0);
  EXPECT_EQ(metered.Count(RegistryCall::kQuery), 0);
  EXPECT_EQ(metered.Count(RegistryCall::kFlush), 12);
  EXPECT_EQ(metered.Count(RegistryCall::kClose), 12);
}

TEST_P(SettingsStoreTest, AChangedValueCostsOneWriteAndOneSetBackOneDelete) {
  for (SettingGroup* group : store.Groups()) {
    for (DwordSetting* setting : SettingLines(*group).dwords) {
      if (setting->IsReadOnly()) continue;
      Load();
      setting->Set(5);
      Save();
      EXPECT_EQ(Sets(), 1) << Utf8(setting->Name());
      EXPECT_EQ(Deletes(), 0);
      setting->Set(setting->Default());
      Save();
      EXPECT_EQ(Sets(), 0) << Utf8(setting->Name());
      EXPECT_EQ(Deletes(), 1);
      break;  // one of each key; the walk through the catalogue does them all
    }
  }
}

TEST_P(SettingsStoreTest, DefaultsFollowTheScreen) {
  struct Case {
    ScreenScale scale;
    std::uint32_t heightLimit, iconSize, fontHeight;
  };
  for (const Case& c : std::vector<Case>{{{96, 96, false}, 160, 6, 12},
                                         {{192, 192, false}, 320, 12, 24},
                                         {{131, 128, false}, 213, 8, 16},
                                         {{96, 96, true}, 320, 12, 24}}) {
    scale = c.scale;
    Load();
    EXPECT_EQ(store.root.dHeightLimit.Value(), c.heightLimit);
    EXPECT_EQ(store.calendar.MonthlyPopIconsSize.Value(), c.iconSize);
    EXPECT_EQ(store.fonts.FontGnrlSize.Value(), c.fontHeight);
    EXPECT_EQ(store.fonts.FontSEFilter4.height.Value(), c.fontHeight);
  }
}

TEST_P(SettingsStoreTest, TheLocaleDecidesTheClockAndTheFirstDayOfTheWeek) {
  struct Case {
    const wchar_t *timeStyle, *firstDay;
    bool twelveHours;
    std::uint32_t day;
  };
  for (const Case& c : std::vector<Case>{{L"0", L"0", true, 0},
                                         {L"1", L"6", false, 6},
                                         {L"10", L"3", false, 3},
                                         {L"49", L"x", false, 0},
                                         {L"4", L"", true, 0},
                                         {L"48", L"1", true, 1},
                                         {L"", L"2", true, 2}}) {
    machine.locale.timeStyle = c.timeStyle;
    machine.locale.firstDayOfWeek = c.firstDay;
    Load();
    EXPECT_EQ(store.twelveHourClock, c.twelveHours) << Utf8(c.timeStyle);
    EXPECT_EQ(store.calendar.MonthlyStartDay.Value(), c.day) << Utf8(c.firstDay);
    EXPECT_EQ(store.calendar.FirstWorkDay.Value(), c.day) << Utf8(c.firstDay);
  }
}

TEST_P(SettingsStoreTest, FoldersFollowTheKeysThatNameThem) {
  const RegistryRoot machineRoot = RegistryRoot::kLocalMachine;
  const std::wstring path = L"Software\\Microsoft\\today\\items\\Tidewell";
  Load();
  EXPECT_EQ(store.installFolder, L"\\Program Files\\Velmont\\Tidewell");
  EXPECT_EQ(store.todayItemFolder, L"\\Program Files\\Velmont\\Tidewell");
  EXPECT_FALSE(registry->Open(machineRoot, path)) << "the key is not ours to make";

  WriteString(registry->Create(machineRoot, path).get(), L"ProgramFiles", L"\\Card");
  Load();
  EXPECT_EQ(store.installFolder, L"\\Card\\Velmont\\Tidewell");
  EXPECT_EQ(store.todayItemFolder, L"\\Card\\Velmont\\Tidewell");
  EXPECT_EQ(store.root.TWFiltersFileFolder.Value(), L"\\Card\\Velmont\\Tidewell");
  EXPECT_EQ(store.root.TWIconsFolder.Value(), L"\\Card\\Velmont\\Tidewell\\CategoryIcons");

  WriteString(registry->Create(machineRoot, path).get(), L"InstallPath", L"\\Other");
  Load();
  EXPECT_EQ(store.installFolder, L"\\Card\\Velmont\\Tidewell");
  EXPECT_EQ(store.todayItemFolder, L"\\Other\\Velmont\\Tidewell");

  EXPECT_EQ(store.pocketInformant.PIVOL.Value(), L"My Documents\\WebIS\\PocketInformant.vol");
  Put(SettingKey::kPocketInformant, L"WebIS_Folder", L"Card");
  Load();
  EXPECT_EQ(store.pocketInformant.PIVOL.Value(), L"Card\\WebIS\\PocketInformant.vol");
}

TEST_P(SettingsStoreTest, TheChosenLanguageLibraryReplacesTheOldOneElseTheEnglishOneDoes) {
  const std::wstring english = L"\\Program Files\\Velmont\\Tidewell\\LangRes\\TWEngRc.dll";
  Put(SettingKey::kRoot, L"SelectedLangResFile", L"\\LangRes\\German.dll");
  Load();
  EXPECT_EQ(language, nullptr) << "neither is there";
  EXPECT_EQ(store.tabs.front().caption, L"");

  machine.libraries.Put(english, {{1436, L"Calendar"}});
  Load();
  EXPECT_EQ(store.tabs.front().caption, L"Calendar");

  machine.libraries.Put(L"\\LangRes\\German.dll", {{1436, L"Kalender"}, {1420, L"Ereignisse"}});
  Load();
  EXPECT_EQ(store.tabs.front().caption, L"Kalender");
  EXPECT_EQ(store.tabs.back().caption, L"Ereignisse");
  EXPECT_EQ(machine.libraries.LoadedCount(), 1) << "the old one is freed";
}

TEST_P(SettingsStoreTest, ValuesThatCannotBeAreRepairedAtLoadAndTheRepairIsSaved) {
  using Values = std::vector<std::pair<const wchar_t*, std::int64_t>>;
  struct Case {
    Values stored, loaded, saved;  // a saved -1 stands for an absent value
  };
  constexpr std::int64_t kGone = -1;
  const std::vector<Case> cases = {
      {{{L"dNumOfDays", 0}}, {{L"dNumOfDays", 7}}, {{L"dNumOfDays", kGone}}},
      {{{L"dNumOfDays", 121}}, {{L"dNumOfDays", 7}}, {{L"dNumOfDays", kGone}}},
      {{{L"dNumOfDays", 0xFFFFFFFF}}, {{L"dNumOfDays", 7}}, {{L"dNumOfDays", kGone}}},
      {{{L"dNumOfDays", 1}}, {{L"dNumOfDays", 1}}, {{L"dNumOfDays", 1}}},
      {{{L"dNumOfDays", 120}}, {{L"dNumOfDays", 120}}, {{L"dNumOfDays", 120}}},
      // The default length with any start reaches past midnight.
      {{{L"TimelinesStart", 10}}, {{L"TimelinesLength", 8}}, {{L"TimelinesLength", 8}}},
      {{{L"TimelinesStart", 10}, {L"TimelinesLength", 18}},
       {{L"TimelinesStart", 10}, {L"TimelinesLength", 8}},
       {{L"TimelinesStart", 10}, {L"TimelinesLength", 8}}},
      {{{L"TimelinesStart", 10}, {L"TimelinesLength", 8}},
       {{L"TimelinesLength", 8}},
       {{L"TimelinesLength", 8}}},
      {{{L"TimelinesStart", 0x7FFFFFFF}, {L"TimelinesLength", 0x7FFFFFFF}},
       {{L"TimelinesLength", 0x80000013}},
       {{L"TimelinesLength", 0x80000013}}},
      {{{L"CalTitlesOrder5", 4}},
       {{L"CalTitlesOrder4", 4}, {L"CalTitlesOrder5", 5}},
       {{L"CalTitlesOrder5", kGone}}},
      {{{L"CalTitlesOrder0", 6}}, {{L"CalTitlesOrder0", 0}}, {{L"CalTitlesOrder0", kGone}}},
      {{{L"CalTitlesOrder0", 0xFFFFFFFF}, {L"CalTitlesOrder1", 0}},
       {{L"CalTitlesOrder0", 0}, {L"CalTitlesOrder1", 1}},
       {{L"CalTitlesOrder0", kGone}, {L"CalTitlesOrder1", kGone}}},
      {{{L"CalTitlesOrder0", 5},
        {L"CalTitlesOrder1", 4},
        {L"CalTitlesOrder2", 3},
        {L"CalTitlesOrder3", 2},
        {L"CalTitlesOrder4", 1},
        {L"CalTitlesOrder5", 0}},
       {{L"CalTitlesOrder0", 5}, {L"CalTitlesOrder5", 0}},
       {{L"CalTitlesOrder0", 5}, {L"CalTitlesOrder5", 0}}},
  };
  int number = 0;
  for (const Case& c : cases) {
    SCOPED_TRACE(++number);
    registry = MakeTestRegistry(GetParam());
    MeteredRegistry fresh(*registry);
    for (const auto& [name, value] : c.stored) {
      Put(SettingKey::kCalendar, name, static_cast<std::uint32_t>(value));
    }
    Machine door{fresh, machine.files, machine.locale, machine.libraries, machine.system};
    store.Load(door, scale, language);
    for (const auto& [name, value] : c.loaded) {
      for (DwordSetting* setting : SettingLines(store.calendar).dwords) {
        if (setting->Name() != name) continue;
        EXPECT_EQ(setting->Value(), value) << Utf8(name);
      }
    }
    store.Save(fresh, scale);
    for (const auto& [name, value] : c.saved) {
      EXPECT_EQ(Stored(SettingKey::kCalendar, name).value_or(0xFFFFFFFF),
                static_cast<std::uint32_t>(value))
          << Utf8(name);
    }
  }
}

TEST_P(SettingsStoreTest, TheLandscapeLimitIsSavedOnlyWithinItsRange) {
  for (const auto& [value, kept] : std::vector<std::pair<std::uint32_t, bool>>{
           {59, false}, {60, true}, {500, true}, {501, false}, {0xFFFFFFFF, false}}) {
    Load();
    store.root.dHeightLimitLandscape.Set(value);
    Save();
    EXPECT_EQ(Stored(SettingKey::kRoot, L"dHeightLimitLandscape"),
              kept ? std::optional(value) : std::nullopt);
  }
  Put(SettingKey::kRoot, L"dHeightLimitLandscape", 59);
  Load();
  Save();
  EXPECT_EQ(Stored(SettingKey::kRoot, L"dHeightLimitLandscape"), std::nullopt)
      << "a stored one out of range goes though nobody touched it";
}

TEST_P(SettingsStoreTest, AMonthIsPinnedOnlyWhereTheItemIsHighEnough) {
  struct Case {
    int dpi;
    std::uint32_t pinned, height;
    std::optional<std::uint32_t> saved;
  };
  for (const Case& c : std::vector<Case>{{96, 1, 150, {}},
                                         {96, 1, 199, {}},
                                         {96, 1, 200, 1},
                                         {192, 1, 399, {}},
                                         {192, 1, 400, 1},
                                         {96, 2, 150, 2}}) {
    scale = ScreenScale(c.dpi, c.dpi, false);
    Load();
    store.calendar.PinnedMonthlyClr.Set(c.pinned);
    store.root.dHeightLimit.Set(c.height);
    Save();
    EXPECT_EQ(Stored(SettingKey::kCalendar, L"PinnedMonthlyClr"), c.saved)
        << c.height << " at " << c.dpi;
  }
}

TEST_P(SettingsStoreTest, LoadingAgainForgetsChangesAndBuildsTheTabsAnew) {
  Load();
  store.root.OnClick.Set(9);
  store.tabs.front().caption = L"changed";
  Load();
  EXPECT_EQ(store.root.OnClick.Value(), 0u);
  EXPECT_FALSE(store.root.OnClick.IsChanged());
  EXPECT_EQ(store.tabs.size(), 6u);
  Save();
  EXPECT_EQ(metered.CountWrites(), 0);
}

INSTANTIATE_TEST_SUITE_P(On, SettingsStoreTest, testing::ValuesIn(RegistryKinds()),
                         testing::PrintToStringParamName());

}  // namespace
}  // namespace tidewell
