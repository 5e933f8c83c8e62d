// The tab list: built-in and hosted tabs, their order, the active one, and what is saved of them.
#include "settings/tab_list.h"

#include "settings/hosted_plugins.h"
#include "tests/settings/store_fixture.h"
#include "tests/support/registry_support.h"
#include "tests/support/utf8.h"

namespace tidewell {
namespace {

constexpr SettingKey kTabs = SettingKey::kTabSettings;
const std::wstring kTabsPath = L"Software\\Velmont\\Tidewell\\TabSettings";

class TabsTest : public StoreFixture {
 protected:
  void PutHosted(const std::wstring& name, std::optional<std::uint32_t> order = {},
                 const wchar_t* dll = L"") {
    const std::wstring path = kTabsPath + L"\\" + name;
    const auto key = registry->Create(RegistryRoot::kCurrentUser, path);
    if (order) WriteDword(key.get(), L"Order", *order);
    WriteDword(key.get(), L"Enabled", 1);
    if (*dll) WriteString(key.get(), L"DLL", dll);
  }
  std::string DumpTabs() { return DumpTree(*registry, RegistryRoot::kCurrentUser, kTabsPath); }
  // "1 calendar, 2 tasks ...", built-in tabs by the captions below.
  std::string Strip() {
    std::wstring text;
    for (const TabEntry& entry : store.tabs) {
      if (!text.empty()) text += L", ";
      text += FormatDecimal(entry.order) + L" " + entry.caption;
    }
    return Utf8(text);
  }
  void SetUp() override {
    machine.libraries.Put(L"\\Program Files\\Velmont\\Tidewell\\LangRes\\TWEngRc.dll",
                          {{1436, L"calendar"},
                           {1416, L"tasks"},
                           {1417, L"notes"},
                           {1418, L"contacts"},
                           {1419, L"mail"},
                           {1420, L"events"}});
  }
};

TEST_P(TabsTest, TheListHoldsTheTabsByTheirOrdersAndNumbersThemAnew) {
  struct Case {
    std::vector<std::pair<const wchar_t*, std::uint32_t>> stored;
    const char* expected;
  };
  const std::vector<Case> cases = {
      {{}, "1 calendar, 2 tasks, 3 notes, 4 contacts, 5 mail, 6 events"},
      {{{L"CalendarTabOrder", 10}}, "1 tasks, 2 notes, 3 contacts, 4 mail, 5 events, 6 calendar"},
      {{{L"NotesTabOrder", 2}}, "1 calendar, 2 tasks, 3 notes, 4 contacts, 5 mail, 6 events"},
      {{{L"SEventsTabOrder", 1}, {L"MailTabOrder", 1}},
       "1 calendar, 2 mail, 3 events, 4 tasks, 5 notes, 6 contacts"},
      {{{L"MailTabOrder", 0xFFFFFFFF}},
       "1 mail, 2 calendar, 3 tasks, 4 notes, 5 contacts, 6 events"},
  };
  for (const Case& c : cases) {
    registry->DeleteTree(RegistryRoot::kCurrentUser, kTabsPath);
    for (const auto& [name, order] : c.stored) Put(kTabs, name, order);
    Load();
    EXPECT_EQ(Strip(), c.expected);
    Save();
    Load();
    EXPECT_EQ(Strip(), c.expected) << "loaded again";
    Save();
    EXPECT_EQ(metered.CountWrites(), 0) << "numbered once";
  }
}

TEST_P(TabsTest, HostedTabsStandAtTheirOrdersBehindEqualOnes) {
  PutHosted(L"Weather", 2);
  PutHosted(L"Contacts", 1);  // a built-in tab's
  PutHosted(L"Clock");
  Load();
  EXPECT_EQ(Strip(),
            "1 calendar, 2 tasks, 3 Weather, 4 notes, 5 contacts, 6 mail, 7 events, 8 Clock");
}

TEST_P(TabsTest, AHostedTabIsReadWithItsDefaults) {
  registry->Create(RegistryRoot::kCurrentUser, kTabsPath + L"\\Bare");
  PutHosted(L"Full", 3, L"\\Windows\\full.dll");
  const auto full = registry->Create(RegistryRoot::kCurrentUser, kTabsPath + L"\\Full");
  WriteString(full.get(), L"InstallPath", L"\\Full");
  WriteString(full.get(), L"CustomIconName", L"full.ico");
  WriteDword(full.get(), L"Type", 77);

  TabList tabs;
  ReadHostedPlugins(*registry, *KeyOf(kTabs).Get(), tabs);
  ASSERT_EQ(tabs.size(), 2u);
  const TabEntry& first = tabs.front();
  EXPECT_EQ(first.type, TabType::kHosted) << "whatever is stored as its type";
  EXPECT_EQ(first.order, 3);
  EXPECT_EQ(first.enabled, 1u);
  EXPECT_EQ(first.caption, L"Full");
  EXPECT_EQ(first.dll, L"\\Windows\\full.dll");
  EXPECT_EQ(first.installPath, L"\\Full");
  EXPECT_EQ(first.customIconName, L"full.ico");
  const TabEntry& bare = tabs.back();
  EXPECT_EQ(bare.order, 9);
  EXPECT_EQ(bare.enabled, 0u);
  EXPECT_EQ(bare.caption, L"Bare");
  EXPECT_EQ(bare.dll + bare.installPath + bare.customIconName, L"");
}

TEST_P(TabsTest, TheSaveDeletesHostedSubkeysAndWritesThemFromTheList) {
  PutHosted(L"Weather", 2, L"weather.dll");
  PutHosted(L"contacts", 8);  // its case makes it a plug-in's
  PutHosted(L"Gone", 9);
  Put(kTabs, L"TabsStyle", 2);
  Load();
  store.tabs.remove_if([](const TabEntry& entry) { return entry.caption == L"Gone"; });
  InsertByOrder(store.tabs, {.type = TabType::kHosted,
                             .order = 9,
                             .enabled = 0,
                             .caption = L"New",
                             .dll = L"",
                             .installPath = L"\\New",
                             .customIconName = L"new.ico"});
  Save();
  EXPECT_EQ(DumpTabs(),
            "[Software\\Velmont\\Tidewell\\TabSettings]\n"
            "ContactsTabOrder = 5\n"
            "MailTabOrder = 6\n"
            "NotesTabOrder = 4\n"
            "SEventsTabOrder = 7\n"
            "TabsStyle = 2\n"
            "[Software\\Velmont\\Tidewell\\TabSettings\\contacts]\n"
            "Enabled = 1\n"
            "Order = 8\n"
            "Type = 1\n"
            "[Software\\Velmont\\Tidewell\\TabSettings\\New]\n"
            "CustomIconName = \"new.ico\"\n"
            "InstallPath = \"\\New\"\n"
            "Type = 1\n"
            "[Software\\Velmont\\Tidewell\\TabSettings\\Weather]\n"
            "DLL = \"weather.dll\"\n"
            "Enabled = 1\n"
            "Order = 3\n"
            "Type = 1\n");
}

TEST_P(TabsTest, TheSubkeyContactsIsKeptAsItIs) {
  PutHosted(L"Contacts", 4, L"x.dll");
  PutHosted(L"Contacts\\Alphabets", 1);
  const std::string before = DumpTabs();
  Load();
  EXPECT_EQ(store.tabs.size(), 6u);
  Save();
  EXPECT_EQ(DumpTabs(), before);
  EXPECT_EQ(metered.CountWrites(), 0);
}

TEST_P(TabsTest, MovedAndDisabledTabsAreWrittenBackEnabledFirst) {
  Load();
  store.tabs.front().enabled = 0;
  store.tabs.reverse();
  Renumber(store.tabs);
  Save();
  std::string written;
  for (const std::wstring& path : metered.Meter().Paths(RegistryCall::kSet)) {
    written += Utf8(path.substr(path.rfind(L'\\') + 1)) + " ";
  }
  EXPECT_EQ(written,
            "CalendarTabEnabled CalendarTabOrder TasksTabOrder NotesTabOrder ContactsTabOrder "
            "MailTabOrder SEventsTabOrder ");
  Load();
  EXPECT_EQ(Strip(), "1 events, 2 mail, 3 contacts, 4 notes, 5 tasks, 6 calendar");
  EXPECT_EQ(store.tabs.back().enabled, 0u);
}

TEST_P(TabsTest, TheActiveTabIsAnEnabledBuiltInOneOrTheDefaultTab) {
  using Values = std::vector<std::pair<const wchar_t*, std::uint32_t>>;
  struct Case {
    std::uint32_t active;
    Values tabs;
    std::uint32_t expected;
  };
  const std::vector<Case> cases = {
      {3, {}, 3},
      {0, {}, 1},
      {8, {}, 1},
      {0xFFFFFFFF, {}, 1},
      {7, {}, 1},  // the hosted tab
      {3, {{L"NotesTabEnabled", 0}}, 1},
      {3, {{L"NotesTabEnabled", 2}}, 1},  // only 1 is enabled
      {1, {{L"CalendarTabEnabled", 0}}, 1},
      {3, {{L"DfltTabOnStartup", 1}}, 1},
      {3, {{L"DfltTabOnStartup", 1}, {L"DfltTab", 3}}, 4},
      {3, {{L"DfltTabOnStartup", 1}, {L"DfltTab", 4}}, 5},
      {3, {{L"DfltTabOnStartup", 1}, {L"DfltTab", 5}}, 6},
      {3, {{L"DfltTabOnStartup", 1}, {L"DfltTab", 6}}, 3},
      {3, {{L"DfltTabOnStartup", 1}, {L"DfltTab", 0xFFFFFFFF}}, 3},
      {3, {{L"DfltTabOnStartup", 2}, {L"DfltTab", 5}}, 3},
      {3, {{L"DfltTabOnStartup", 0}, {L"DfltTab", 5}}, 3},
      {1, {{L"DfltTabOnStartup", 1}, {L"DfltTab", 1}, {L"TasksTabOrder", 50}}, 7},
  };
  for (const Case& c : cases) {
    registry->DeleteTree(RegistryRoot::kCurrentUser, kTabsPath);
    PutHosted(L"Weather");
    Put(SettingKey::kRoot, L"ActiveTab", c.active);
    for (const auto& [name, value] : c.tabs) Put(kTabs, name, value);
    Load();
    EXPECT_EQ(store.root.ActiveTab.Value(), c.expected) << c.active << ": " << DumpTabs();
  }
}

TEST_P(TabsTest, FiveHundredHostedTabsSurviveTheRoundTrip) {
  for (int i = 0; i < 500; ++i) {
    PutHosted(L"Plug-in " + FormatDecimal(i), static_cast<std::uint32_t>(100 + i));
  }
  Load();
  EXPECT_EQ(store.tabs.size(), 506u);
  EXPECT_EQ(store.tabs.back().caption, L"Plug-in 499");
  EXPECT_EQ(store.tabs.back().order, 506);
  Save();
  EXPECT_EQ(metered.Count(RegistryCall::kDeleteTree), 500);
  Load();
  EXPECT_EQ(store.tabs.size(), 506u);
  EXPECT_EQ(store.tabs.back().caption, L"Plug-in 499");
}

TEST_P(TabsTest, ARefusedDeletionEndsAndHarmsNothing) {
  PutHosted(L"One", 7);
  PutHosted(L"Two", 8);
  Load();
  const std::string before = DumpTabs();
  metered.Meter().FailEvery(RegistryCall::kDeleteTree);
  store.Save(metered, scale);
  EXPECT_EQ(metered.Count(RegistryCall::kDeleteTree), 2);
  Load();
  EXPECT_EQ(store.tabs.size(), 8u) << before;
}

INSTANTIATE_TEST_SUITE_P(On, TabsTest, testing::ValuesIn(RegistryKinds()),
                         testing::PrintToStringParamName());

}  // namespace
}  // namespace tidewell
