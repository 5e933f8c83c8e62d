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
  EXPECT_EQ(metered.CountWrites(), 0);
}

TEST_P(SettingsStoreTest, TheLoadAsksForEveryValueOnceAndForNothingElse) {
  Load();
  SettingLines lines(store);
  // The Today item's own key and the theme's are absent, and are not made.
  const auto absent = SettingLines(store.today).all.size();
  EXPECT_EQ(static_cast<std::size_t>(metered.Count(RegistryCall::kQuery)),
            lines.all.size() - absent);
  EXPECT_EQ(metered.Count(RegistryCall::kEnumSubkey), 1);
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
  const std::vector<DwordSetting*> settings = {&store.root.OnClick,
                                               &store.calendar.dNumOfDays,
                                               &store.tasks.TsksDateFrmt,
                                               &store.notes.NotesBreakLineStyle,
                                               &store.contacts.ContactsLayout,
                                               &store.messages.MsgsOpenOnClick,
                                               &store.specialEvents.SEventDays,
                                               &store.fonts.FontGeneral.height,
                                               &store.colors.TimeLinesBgClr,
                                               &store.customPim.PimSw,
                                               &store.tabSettings.TabsStyle};
  for (DwordSetting* setting : settings) {
    Load();
    setting->Set(5);
    Save();
    EXPECT_EQ(Sets(), 1) << Utf8(setting->Name());
    EXPECT_EQ(Deletes(), 0);
    Load();
    EXPECT_EQ(setting->Value(), 5u);
    Save();
    EXPECT_EQ(metered.CountWrites(), 0);
    setting->Set(setting->Default());
    Save();
    EXPECT_EQ(Sets(), 0) << Utf8(setting->Name());
    EXPECT_EQ(Deletes(), 1);
    EXPECT_EQ(Stored(setting->Key(), setting->Name()), std::nullopt);
  }
}

TEST_P(SettingsStoreTest, WhatTheTodayItemWritesItselfIsNeverSaved) {
  Load();
  store.root.ActiveTab.Set(3);
  store.root.NoteZoom.Set(50);
  store.root.TWFiltersFileFolder.Set(L"\\Elsewhere");
  store.calendar.CalendarSelFilter.Set(2);
  store.tasks.FoldStateCategory.Set(L"x");
  store.messages.MsgsShowEmptyAccounts.Set(1);
  store.today.ProgramFiles.Set(L"\\Storage Card");
  Save();
  EXPECT_EQ(metered.CountWrites(), 0);
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

TEST_P(SettingsStoreTest, DefaultsFollowTheLocale) {
  for (const auto& [text, day] : std::vector<std::pair<const wchar_t*, std::uint32_t>>{
           {L"0", 0}, {L"6", 6}, {L"", 0}, {L"x", 0}}) {
    machine.locale.firstDayOfWeek = text;
    Load();
    EXPECT_EQ(store.calendar.MonthlyStartDay.Value(), day) << Utf8(text);
    EXPECT_EQ(store.calendar.FirstWorkDay.Value(), day) << Utf8(text);
  }
}

TEST_P(SettingsStoreTest, TimesAreShownWithAmAndPmUnlessTheLocaleSaysOtherwise) {
  for (const auto& [style, twelve] : std::vector<std::pair<const wchar_t*, bool>>{{L"0", true},
                                                                                  {L"1", false},
                                                                                  {L"", true},
                                                                                  {L"49", false},
                                                                                  {L"4", true},
                                                                                  {L"48", true},
                                                                                  {L"10", false},
                                                                                  {L"9", true}}) {
    machine.locale.timeStyle = style;
    Load();
    EXPECT_EQ(store.twelveHourClock, twelve) << Utf8(style);
  }
}

TEST_P(SettingsStoreTest, TheInstallFoldersFollowTheTodayItemsOwnKey) {
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
}

TEST_P(SettingsStoreTest, PocketInformantsDatabaseFollowsItsFolder) {
  Load();
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
