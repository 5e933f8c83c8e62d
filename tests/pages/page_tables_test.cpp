// The pages' own tables and rules.
#include <algorithm>
#include <map>
#include <set>

#include "pages/general_table.h"
#include "pages/messages_table.h"
#include "pages/page_list.h"
#include "pages/pim_table.h"
#include "pages/special_events_table.h"
#include "platform/text.h"
#include "tests/pages/page_fixture.h"

namespace tidewell {
namespace {

class Tables : public PageFixture {};

// Every saved setting of the catalogue that no page edits, and why.
struct Exemption {
  SettingKey key;
  const wchar_t* name;  // null: all of the key
  const char* reason;
};
const Exemption kExemptions[] = {
    {SettingKey::kRoot, L"FirstTimeSettingsMsg",
     "not for the user: a mark that a message was seen"},
    {SettingKey::kCalendar, nullptr, "the Calendar page is not built yet"},
    {SettingKey::kTasks, nullptr, "the Tasks page is not built yet"},
    {SettingKey::kNotes, nullptr, "the Notes page is not built yet"},
    {SettingKey::kContacts, nullptr, "the Contacts page is not built yet"},
    {SettingKey::kFonts, nullptr, "the Fonts page is not built yet"},
    {SettingKey::kColors, nullptr, "the Colors page is not built yet"},
    {SettingKey::kTabSettings, nullptr, "the Tabs page is not built yet"},
    {SettingKey::kCategories, nullptr, "the Categories page is not built yet"},
};

class SavedSettings final : public SettingVisitor {
 public:
  using SettingVisitor::Visit;
  void Visit(DwordSetting& setting) override { Add(setting); }
  void Visit(StringSetting& setting) override { Add(setting); }
  void Visit(FlagArraySetting& setting) override { Add(setting); }

  std::vector<const Setting*> all;

 private:
  void Add(const Setting& setting) {
    if (!setting.IsReadOnly()) all.push_back(&setting);
  }
};

TEST_F(Tables, HaveEverySavedSettingOnOnePage) {
  Load();
  std::map<const Setting*, int> pages;
  for (const PageEntry& page : kPages) {
    if (!page.table) continue;
    for (const PageTab& tab : page.table(context)) {
      for (const Row& row : tab.rows) {
        if (row.number) ++pages[row.number];
        if (row.text) ++pages[row.text];
      }
    }
  }
  SavedSettings saved;
  for (SettingGroup* group : store.Groups()) group->Accept(saved);
  std::set<const Exemption*> used;
  for (const Setting* setting : saved.all) {
    const auto exemption =
        std::find_if(std::begin(kExemptions), std::end(kExemptions), [&](const Exemption& e) {
          return e.key == setting->Key() && (!e.name || setting->Name() == e.name);
        });
    const bool exempt = exemption != std::end(kExemptions);
    if (exempt) used.insert(exemption);
    const std::string name(setting->Name().begin(), setting->Name().end());
    EXPECT_EQ(pages[setting], exempt ? 0 : 1) << name << (exempt ? exemption->reason : "");
  }
  EXPECT_EQ(used.size(), std::size(kExemptions)) << "an exemption is no longer needed";
}

TEST_F(Tables, NumberTheirControlsInOneStretchPerTab) {
  Load();
  for (const PageEntry& page : kPages) {
    if (!page.table) continue;
    int next = 1200;
    for (const PageTab& tab : page.table(context)) {
      EXPECT_EQ(tab.firstId, next);
      std::set<int> ids;
      for (const Row& row : tab.rows) {
        for (const int id : {row.labelId, row.controlId, row.clearId, row.browseId}) {
          if (id == 0) continue;
          EXPECT_TRUE(ids.insert(id).second) << id << " is there twice";
          EXPECT_TRUE(id >= tab.firstId && id <= tab.lastId) << id;
        }
      }
      next = tab.lastId + 1;
    }
  }
}

std::vector<std::uint32_t> DataOf(const Row& row) {
  std::vector<std::uint32_t> data;
  for (const Choice& choice : row.choices) data.push_back(choice.data);
  return data;
}

TEST_F(Tables, LeaveOutTheRowsThatTheDeviceCannotUse) {
  Load();
  const auto has = [&](int id) {
    for (const PageTab& tab : GeneralTable(context)) {
      for (const Row& row : tab.rows) {
        if (row.controlId == id) return true;
      }
    }
    return false;
  };
  machine.system.screen.width = 480;
  EXPECT_TRUE(has(1231) && has(1232));
  machine.system.screen.width = 479;
  EXPECT_FALSE(has(1231) || has(1232));
  struct Case {
    SystemVersion version;
    bool exclusive;
  };
  const Case cases[] = {{{5, 1}, true}, {{4, 21}, true}, {{4, 20}, false}, {{3, 0}, false}};
  for (const Case& c : cases) {
    machine.system.version = c.version;
    EXPECT_EQ(has(general_ids::kExclusive), c.exclusive) << c.version.major << c.version.minor;
  }
}

TEST_F(Tables, ShowTodayInFourFormats) {
  Load();
  machine.locale.now = {2008, 3, 14, 9, 5};
  std::vector<std::wstring> texts;
  const PageTable table = SpecialEventsTable(context);
  for (const Choice& choice : RowOf(table, 1205).choices) {
    texts.push_back(choice.TextIn(nullptr));
  }
  EXPECT_EQ(texts, (std::vector<std::wstring>{L"", L"03/14", L"03/14/08", L"14/03", L"14/03/08"}));
}

TEST_F(Tables, OfferTheCategoriesAfterNone) {
  Load();
  store.specialEvents.AdditionalFilterCat3.Set(L"FAMILY");
  const PageTable table = SpecialEventsTable(context);
  EXPECT_EQ(StateOf(RowOf(table, 1217)).selection, 2);
  store.specialEvents.AdditionalFilterCat3.Set(L"Gone");
  EXPECT_EQ(StateOf(RowOf(table, 1217)).selection, 0);
}

TEST_F(Tables, OfferTheProgramsThatAreThere) {
  Load();
  using List = std::vector<std::uint32_t>;
  const auto programs = [&] { return DataOf(RowOf(PimTable(context), pim_ids::kProgram)); };
  EXPECT_EQ(programs(), (List{0, 4}));
  Install(RegistryRoot::kCurrentUser, L"Software\\WebIS\\PocketInformant", L"version");
  EXPECT_EQ(programs(), (List{0, 4, 1}));
  Install(RegistryRoot::kCurrentUser, L"SOFTWARE\\Developer One\\Agenda One", L"InstallPath");
  EXPECT_EQ(programs(), (List{0, 4, 1, 3}));
  Install(RegistryRoot::kLocalMachine, L"SOFTWARE\\Developer One, Inc.\\Agenda Fusion",
          L"VerMajor");
  EXPECT_EQ(programs(), (List{0, 4, 1, 2, 3}));
}

TEST_F(Tables, OfferRemindersAsMinutesAndAsTheTimeOfDay) {
  Load();
  machine.locale.timeStyle = L"0";
  const PageTable table = PimTable(context);
  EXPECT_EQ(DataOf(RowOf(table, pim_ids::kAppointmentReminder)),
            (std::vector<std::uint32_t>{949998, 0, 5, 10, 15, 30, 45, 60, 120, 240, 480, 1440}));
  const Row& tasks = RowOf(table, pim_ids::kTaskReminder);
  ASSERT_EQ(tasks.choices.size(), 49u);
  EXPECT_EQ(tasks.choices[1].text, L"12:00 AM");
  EXPECT_EQ(tasks.choices[48].text, L"11:30 PM");
  EXPECT_EQ(tasks.choices[48].data, 1410u);
  EXPECT_EQ(StateOf(tasks).selection, 17);  // 8:00
  store.customPim.DefaultReminderAppts.Set(20);
  EXPECT_EQ(StateOf(RowOf(table, pim_ids::kAppointmentReminder)).selection, 0);
}

template <typename Rule>
std::vector<int> Usable(const Rule& rule) {
  std::vector<int> ids;
  for (const Enabling& control : rule) {
    if (control.enabled) ids.push_back(control.id);
  }
  return ids;
}

TEST(Rules, SayWhichControlsCanBeUsed) {
  using Ids = std::vector<int>;
  EXPECT_EQ(Usable(HeightRule(true)), Ids());
  EXPECT_EQ(Usable(HeightRule(false)), (Ids{1207, 1208, 1209, 1210}));
  EXPECT_EQ(Usable(DPadRule(false, 0)), Ids());
  EXPECT_EQ(Usable(DPadRule(false, 1)), Ids());
  EXPECT_EQ(Usable(DPadRule(true, 0)), (Ids{1221, 1222, 1223, 1224, 1227, 1228}));
  EXPECT_EQ(Usable(DPadRule(true, 1)), (Ids{1221, 1222, 1225, 1226, 1228}));
  EXPECT_EQ(Usable(PimRule(0)), (Ids{1202, 1203, 1204, 1205}));
  EXPECT_EQ(Usable(PimRule(2)), (Ids{1206, 1207, 1208, 1209}));
  for (const std::uint32_t other : {1u, 3u, 4u, 99u}) {
    EXPECT_EQ(Usable(PimRule(other)), (Ids{1206, 1207, 1209})) << other;
  }
}

}  // namespace
}  // namespace tidewell
