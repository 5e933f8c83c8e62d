// What single pages do beyond their rows.
#include "pages/page_rules.h"

#include "addons/schemes.h"
#include "pages/calendar_page.h"
#include "pages/colors_page.h"
#include "pages/fonts_page.h"
#include "pages/general_page.h"
#include "pages/pim_page.h"
#include "pages/tasks_page.h"
#include "platform/text.h"
#include "resources/text/text_ids.h"
#include "tests/pages/fake_view.h"
#include "tests/support/test_device.h"
#include "tests/support/utf8.h"

namespace tidewell {
namespace {

using Ids = std::vector<int>;

class Rules : public testing::Test, protected TestDevice {
 protected:
  Rules() { Load(); }
  DwordSetting& program() { return store.customPim.PimSw; }
};

TEST_F(Rules, GreyWhatCannotBeUsed) {
  using namespace general_ids;
  FakeView page(MakeGeneralPage(context));
  EXPECT_EQ(page.Enabled(1206, 1210), Ids{1206});
  page.Tap(kAutoHeight);
  EXPECT_EQ(page.Enabled(1206, 1210), (Ids{1206, 1207, 1208, 1209, 1210}));
  EXPECT_EQ(page.Enabled(1220, 1228), (Ids{1220, 1221, 1222, 1223, 1224, 1227, 1228}));
  page.Choose(kDPadGroup, 1);
  EXPECT_EQ(page.Enabled(1220, 1228), (Ids{1220, 1221, 1222, 1225, 1226, 1228}));
  page.Tap(kDPadEnabled);
  EXPECT_EQ(page.Enabled(1220, 1228), Ids{1220});
  FakeView calendar(MakeCalendarPage(context));
  EXPECT_EQ(calendar.Enabled(1206, 1209), (Ids{1206, 1208, 1209}));
  calendar.Tap(calendar_ids::kHideEmptyGroups);
  EXPECT_EQ(calendar.Enabled(1206, 1209), (Ids{1206, 1207, 1208, 1209}));
  FakeView tasks(MakeTasksPage(context));
  EXPECT_EQ(tasks.Enabled(1212, 1218), Ids{1212});
  tasks.Tap(tasks_ids::kCustomDate);
  EXPECT_EQ(tasks.Enabled(1212, 1218), (Ids{1212, 1213, 1214, 1215, 1216, 1217, 1218}));
}

TEST_F(Rules, StoreTheLanguageOfTheChosenSlot) {
  const std::wstring folder = L"\\Program Files\\Velmont\\Tidewell\\LangRes\\";
  FakeView(MakeGeneralPage(context)).Close();
  EXPECT_EQ(store.root.SelectedLangResFile.Value(), folder + L"TWEngRc.dll") << "none to choose";
  for (const wchar_t* name : {L"TWEngRc.dll", L"TWGerRc.dll"}) {
    files.Put(folder + name, "MZ");
    memory.libraries.Put(folder + name, {{IDS_LANGUAGE_NAME, name}});
  }
  FakeView page(MakeGeneralPage(context));
  EXPECT_EQ(page.State(general_ids::kLanguage).selection, 0);
  page.Choose(general_ids::kLanguage, 1);
  page.Close();
  EXPECT_EQ(store.root.SelectedLangResFile.Value(), folder + L"TWGerRc.dll");
}

TEST_F(Rules, StoreTheFoldersOfTheChosenIconSet) {
  const std::wstring sets = L"\\Program Files\\Velmont\\Tidewell\\IconSets\\";
  for (const wchar_t* path :
       {L"tidewell\\12\\note.png", L"Zebra\\24\\", L"Mono\\Blank\\", L"Read.me"}) {
    files.Put(sets + path);
  }
  IconSetSettings& set = store.iconSet;
  const auto stored = [&] {
    std::wstring folders;
    for (const StringSetting* each :
         {&set.InstallPath12, &set.InstallPath18, &set.InstallPath24, &set.InstallPathBlank}) {
      const bool isSet = each->Value().starts_with(sets);
      folders += (isSet ? each->Value().substr(sets.size()) : each->Value()) + L";";
    }
    return folders;
  };
  // Chooses a line, or leaves the one that is shown.
  const auto visit = [&](int shown, int line) {
    FakeView page(MakeGeneralPage(context));
    EXPECT_EQ(page.ChoicesOf(general_ids::kIconSet).size(), 3u);
    EXPECT_EQ(page.State(general_ids::kIconSet).selection, shown);
    if (line != shown) page.Choose(general_ids::kIconSet, line);
    page.Close();
    return stored();
  };
  EXPECT_EQ(visit(0, 0), L";;;;");
  EXPECT_EQ(visit(0, 1), L"Mono\\12;Mono\\18;Mono\\24;Mono\\Blank;");
  EXPECT_EQ(visit(1, 2), L"Zebra\\12;Zebra\\18;Zebra\\24;;");
  set.InstallPath18.Set(L"\\elsewhere");
  EXPECT_EQ(visit(kNoChoice, kNoChoice), L"Zebra\\12;\\elsewhere;Zebra\\24;;") << "stays";
  EXPECT_EQ(visit(kNoChoice, 0), L";;;;");
}

TEST_F(Rules, StoreAProgramAtOnceAndGreyWhatItDoesNotHave) {
  InstallOtherPrograms();
  FakeView page(MakePimPage(context));
  struct Case {
    int line;
    std::uint32_t stored;
    Ids enabled;
  };
  const Case cases[] = {{2, 1, {1206, 1207, 1209}},
                        {3, 2, {1206, 1207, 1208, 1209}},
                        {4, 3, {1206, 1207, 1209}},
                        {0, 0, {1202, 1203, 1204, 1205}}};
  for (const Case& c : cases) {
    page.Choose(pim_ids::kProgram, c.line);
    EXPECT_EQ(program().Value(), c.stored);
    EXPECT_EQ(page.Enabled(1202, 1209), c.enabled);
  }
}

TEST_F(Rules, TakeTheCompanionOnlyWhereItIs) {
  program().Set(1);  // which is not there any more
  registry.Create(RegistryRoot::kCurrentUser, L"SOFTWARE\\Velmont Calendar");  // no value
  recorded.Calls().Reset();
  FakeView page(MakePimPage(context));
  EXPECT_EQ(page.State(pim_ids::kProgram).selection, 0);
  page.Choose(pim_ids::kProgram, 1);
  EXPECT_EQ(dialogs.shown.size(), 1u);
  EXPECT_EQ(page.State(pim_ids::kProgram).selection, 0);
  EXPECT_EQ(program().Value(), 0u);
  EXPECT_EQ(recorded.Count(RegistryCall::kCreate), 0) << "a probe leaves no trace";
  InstallCompanion();
  page.Choose(pim_ids::kProgram, 1);
  EXPECT_EQ(dialogs.shown.size(), 1u);
  EXPECT_EQ(program().Value(), 4u);
  EXPECT_EQ(page.Enabled(1202, 1209), (Ids{1206, 1207, 1209}));
}

class CalendarRules : public testing::Test, protected TestDevice {
 protected:
  CalendarRules() {
    UseScreen(480, 640, 192);
    InstallOtherPrograms();
  }
  // The one option or row that edits a setting; empty for none.
  Row RowOf(const Setting& setting) {
    for (const PageTab& tab : MakeCalendarPage(context)->Tabs()) {
      for (const Row* row : tab.Rows()) {
        const bool isOrdered = std::ranges::find(row->order, &setting) != row->order.end();
        if (row->number == &setting || isOrdered) return *row;
      }
    }
    return {};
  }
  Choices ChoicesOf(const Setting& setting) { return RowOf(setting).choices; }

  CalendarSettings& s = store.calendar;
};

// Each with the position that shows a stored value, and what that position stores.
TEST_F(CalendarRules, TurnPositionsIntoValues) {
  struct Case {
    DwordSetting* setting;
    std::uint32_t stored;
    int shown;
    std::uint32_t kept;
  };
  const Case cases[] = {
      {&s.dNumOfDays, 7, 6, 7},
      {&s.dNumOfDays, 45, 30, 45},
      {&s.TimelinesLength, 18, 18, 18},
      {&s.TimelinesVertZ, 2, 1, 2},
      {&s.TimelinesHorZ, 1, 0, 1},
      {&s.TimelinesVertZ, 9, kNoChoice, 0},
      {&s.MonthlyPopIconsSize, 12, 0, 12},
      {&s.MonthlyPopIconsSize, 28, 16, 28},
      {&s.MonthlyPopIconsSize, 5, 0, 12},
      {&s.MonthlyStartDay, 6, 6, 6},
      {&s.PopupClrDPadNavigation, 3, kNoChoice, ~0u},
  };
  for (const Case& c : cases) {
    c.setting->Set(c.stored);
    const Row row = RowOf(*c.setting);
    EXPECT_EQ(StateOf(row).selection, c.shown) << Utf8(c.setting->Name()) << c.stored;
    Store(row, StateOf(row));
    EXPECT_EQ(c.setting->Value(), c.kept) << Utf8(c.setting->Name()) << c.stored;
  }
}

TEST_F(CalendarRules, SpeakAsTheUsersLocaleDoes) {
  memory.locale.shortDate = L"dd.MM.yy";
  memory.locale.dayNames[6] = L"Sonntag";
  EXPECT_EQ(ChoicesOf(s.DueDateTsksDateFrmt)[0].text, L"14.03.08");
  EXPECT_EQ(ChoicesOf(s.DueDateTsksDateFrmt)[4].text, L"14/3");
  EXPECT_EQ(ChoicesOf(s.DayTtlFrmt)[0].text, L"Friday, Mar 14 2008");
  EXPECT_EQ(ChoicesOf(s.DayTtlFrmt)[4].text, L"14.03.08");
  EXPECT_EQ(ChoicesOf(s.DayTtlFrmt)[6].text, L"Fri, 14 Mar 2008");
  EXPECT_EQ(ChoicesOf(s.FirstWorkDay)[6].text, L"Sonntag");
  EXPECT_EQ(ChoicesOf(s.TimelinesStart).back().text, L"18:00");
  EXPECT_EQ(ChoicesOf(s.HumanTime).back().text, L"8:00");
  memory.locale.timeStyle = L"0";
  EXPECT_EQ(ChoicesOf(s.TimelinesStart).back().text, L"6:00 PM");
  EXPECT_EQ(ChoicesOf(s.HumanTime).front().text, L"0:00 AM");
  EXPECT_EQ(ChoicesOf(s.WeatehrLayout).size(), 4u);
  files.Remove(kWeatherLibrary);
  EXPECT_EQ(ChoicesOf(s.WeatehrLayout).size(), 0u) << "without the weather program";
}

TEST_F(CalendarRules, StoreAnIconAtOnceAndNothingWhenThePageCloses) {
  s.ApptLeftAlignIcon1.Set(3);  // which no strip offers
  FakeView page(MakeCalendarPage(context));
  page.ChooseIcons(1245, 9);
  EXPECT_EQ(s.ClrApptRightIcons.Value(), 9u);
  EXPECT_EQ(page.repaints, 1);
  s.ClrApptRightIcons.Set(5);
  page.Close();
  EXPECT_EQ(s.ClrApptRightIcons.Value(), 5u);
  EXPECT_EQ(s.ApptLeftAlignIcon1.Value(), 3u);
}

TEST_F(CalendarRules, PinTheCalendarOnlyWhereTheItemMayBeHighEnough) {
  ControlState ticked;
  ticked.checked = true;
  FakeView page(MakeCalendarPage(context));
  struct Case {
    std::uint32_t height, pinned;
    std::size_t messages;
  };
  for (const Case& c : {Case{400, 1, 0}, Case{399, 0, 1}}) {
    store.root.dHeightLimit.Set(c.height);
    page.Edit(calendar_ids::kMonthOptions, 9, ticked);
    EXPECT_EQ(s.PinnedMonthlyClr.Value(), c.pinned);
    EXPECT_EQ(dialogs.shown.size(), c.messages);
  }
}

TEST_F(CalendarRules, ReplaceAForeignTitleByThatOfItsPlace) {
  s.CalTitlesOrder1.Set(9);
  s.CalTitlesOrder2.Set(5);
  const Row row = RowOf(s.CalTitlesOrder1);
  Store(row, StateOf(row));
  EXPECT_EQ(s.CalTitlesOrder1.Value(), 1u);
  EXPECT_EQ(s.CalTitlesOrder2.Value(), 5u);
}

TEST_F(Rules, StoreAColorAtOnceUnlessItsDialogIsCancelled) {
  using namespace colors_ids;
  FakeView page(MakeColorsPage(context));
  DwordSetting& color = store.colors.HighlightBgClr;
  EXPECT_EQ(page.Enabled(kChoose, kColors), Ids{kColors});
  page.Select(kColors, 3);
  page.Tap(kChoose);
  EXPECT_FALSE(color.IsChanged());
  for (const std::uint32_t chosen : {0x0000FFu, kNoColor}) {
    dialogs.chosenColor = chosen;
    page.Select(kColors, 3, PageEventKind::kActivated);
    EXPECT_EQ(color.Value(), chosen);
    EXPECT_EQ(page.looks[3].swatch, chosen);
  }
  EXPECT_TRUE(color.IsChanged());
}

// Each step with the numbers of the texts that it shows.
TEST_F(Rules, SayWhatBecomesOfASchemeAndEndTheProgramWhenItIsApplied) {
  using namespace colors_ids;
  MemoryLibraries::Texts texts;
  for (const int id : {863, 865, 867, 869, 871, 873, 875, 877, 2005, 2250}) {
    texts[id] = FormatDecimal(id);
  }
  memory.libraries.Put(L"Numbers", texts);
  language.Load(memory.libraries, L"Numbers", {});
  const std::wstring folder = L"\\Program Files\\Velmont\\Tidewell\\Schemes\\";
  files.Put(folder);
  int ends = 0;
  context.endForScheme = [&] { ++ends; };
  FakeView page(MakeColorsPage(context));
  const auto press = [&](std::initializer_list<int> buttons) {
    dialogs.shown.clear();
    for (const int button : buttons) page.Tap(button);
    std::wstring said;
    for (const std::wstring& each : dialogs.shown) said += each;
    return Utf8(said);
  };
  const auto save = [&](const wchar_t* name) {
    page.SetState(kName, ControlState::OfText(name));
    return press({kSave});
  };
  EXPECT_EQ(press({kApply, kDelete, kSave}), ": 863: 863: 867");
  EXPECT_EQ(save(L"..\\x"), ": 2005");
  recordedFiles.Calls().FailEvery(FileCall::kClose);
  EXPECT_EQ(save(L"Mine"), ": 2250");
  recordedFiles.Calls().Reset();
  EXPECT_EQ(save(L"Mine"), ": 871");
  EXPECT_EQ(save(L"mine"), ": 869");
  page.Select(kSchemes, 0);
  EXPECT_EQ(press({kApply, kDelete}), ": 873 [no]: 865 [no]");
  dialogs.agrees = true;
  EXPECT_EQ(press({kApply}), ": 873 [no]");
  EXPECT_EQ(ends, 1);
  files.Put(folder + L"Mine.scm", "no text");
  EXPECT_EQ(press({kApply}), ": 873 [no]: 877");
  page.Select(kSchemes, 0);
  EXPECT_EQ(press({kDelete}), ": 865 [no]");
  EXPECT_EQ(page.Lines(kSchemes), std::vector<ListLine>{{kBeforeApplying}});
  page.Select(kSchemes, 0);
  files.Remove(folder + kBeforeApplying);
  EXPECT_EQ(press({kApply}), ": 873 [no]: 875");
  EXPECT_EQ(ends, 1);
}

TEST_F(Rules, StoreAFontAtOnceAndAColorEvenWhenTheRestIsCancelled) {
  using namespace fonts_ids;
  store.fonts.FontFaceToUse.Set(L"Gone");
  FakeView page(MakeFontsPage(context));
  std::wstring faces;
  for (const Choice& face : page.ChoicesOf(kFace)) faces += face.text + L";";
  EXPECT_EQ(faces, L"Tahoma;Gone;Arial;Courier New;");
  EXPECT_EQ(page.Enabled(kFonts, kChange), Ids{});
  page.Tap(kOwnFonts);
  page.Select(kFonts, 1);
  EXPECT_EQ(page.Enabled(kFonts, kChange), (Ids{kFonts, kChange}));
  FontSetting& font = store.fonts.FontCalDayTitles;
  for (const bool confirms : {false, true}) {
    dialogs.editFont = [=](LogFont& edited, Color& color) {
      edited.height = 30;
      color = confirms ? kWhite : kRed;
      return confirms;
    };
    page.Tap(kChange);
    EXPECT_EQ(font.Color(), confirms ? kWhite : kRed);
    EXPECT_EQ(font.Font().height == 30, confirms);
  }
  EXPECT_NE(page.looks[1].paper, kNoColor) << "white can be read all the same";
  page.Close();
  EXPECT_EQ(store.fonts.FontFaceToUse.Value(), L"Gone");
  for (const wchar_t* face : {L"", L"tahoma"}) {
    store.fonts.FontFaceToUse.Set(face);
    FakeView(MakeFontsPage(context)).Close();
    EXPECT_EQ(store.fonts.FontFaceToUse.Value(), face);
  }
}

}  // namespace
}  // namespace tidewell
