// The tab list: built-in and hosted tabs, their order, the active one, and what is saved of them.
#include "settings/tab_list.h"

#include <gtest/gtest.h>

#include "tests/support/test_device.h"
#include "tests/support/utf8.h"

namespace tidewell {
namespace {

constexpr SettingKey kTabs = SettingKey::kTabSettings;
const std::wstring kTabsPath = L"Software\\Velmont\\Tidewell\\TabSettings";

class TabsTest : public testing::Test, protected TestDevice {
 protected:
  void PutHosted(const std::wstring& name, std::uint32_t order, const std::wstring& dll = L"") {
    Put(kTabsPath + L"\\" + name, L"Order", order);
    Put(kTabsPath + L"\\" + name, L"Enabled", 1);
    if (!dll.empty()) Put(kTabsPath + L"\\" + name, L"DLL", dll);
  }
  // The captions in order, the built-in tabs' as below.
  std::string Strip() {
    std::string text;
    std::int32_t order = 0;
    for (const TabEntry& entry : store.tabs) {
      EXPECT_EQ(entry.order, ++order);
      text += (text.empty() ? "" : " ") + Utf8(entry.caption);
    }
    return text;
  }
  void SetUp() override {
    memory.libraries.Put(L"\\Program Files\\Velmont\\Tidewell\\LangRes\\TWEngRc.dll",
                         {{1436, L"calendar"},
                          {1416, L"tasks"},
                          {1417, L"notes"},
                          {1418, L"contacts"},
                          {1419, L"mail"},
                          {1420, L"events"}});
  }
};

TEST_F(TabsTest, TheListHoldsTheTabsByTheirOrdersAndNumbersThemAnew) {
  for (const auto& [orders, expected] :
       {std::pair("", "calendar tasks notes contacts mail events"),
        {"CalendarTabOrder=10", "tasks notes contacts mail events calendar"},
        {"SEventsTabOrder=1 MailTabOrder=1", "calendar mail events tasks notes contacts"},
        {"MailTabOrder=-1", "mail calendar tasks notes contacts events"}}) {
    Delete(kTabs);
    PutNumbers(kTabs, orders);
    Load();
    EXPECT_EQ(Strip(), expected);
    Save();
    Load();
    EXPECT_EQ(Strip(), expected) << "loaded again";
    Save();
    EXPECT_EQ(recorded.CountWrites(), 0) << "numbered once";
  }
  store.tabs.front().enabled = 0;
  store.tabs.reverse();
  Renumber(store.tabs);
  Save();
  Load();
  EXPECT_EQ(Strip(), "events contacts notes tasks calendar mail");
  EXPECT_EQ(store.tabs.back().enabled, 0u);
}

TEST_F(TabsTest, HostedTabsStandBehindEqualOrdersAndTheirSubkeysHoldTheListAndNothingElse) {
  PutHosted(L"Weather", 2, L"weather.dll");
  const std::wstring weather = kTabsPath + L"\\Weather";
  Put(weather, L"InstallPath", L"\\Weather");
  Put(weather, L"CustomIconName", L"weather.ico");
  Put(weather, L"Type", 77);
  PutBytes(weather, L"Enabled", {1, 0, 0, 0});
  PutHosted(L"contacts", 8);  // its case makes it a plug-in's
  PutHosted(L"Again", 1);
  PutHosted(L"Gone", 1);
  const std::wstring bare = kTabsPath + L"\\Bare";
  Put(bare, L"DLL", L"");  // a default
  Put(bare, std::wstring(300, L'n'), std::wstring(60'000, L's'));
  PutHosted(L"Bare\\Subkey\\Subkey", 1);
  Load();
  EXPECT_EQ(Strip(), "calendar Again Gone tasks Weather notes contacts mail events contacts Bare");
  const auto removed = [](const TabEntry& entry) {
    return entry.caption == L"Gone" || entry.caption == L"Again";
  };
  store.tabs.remove_if(removed);
  store.tabs.push_back({TabType::kHosted, kHostedOrder, 0, L"AGAIN", L"again.dll", L"", L""});
  Renumber(store.tabs);
  PutHosted(L"Since", 1);  // of whoever made it
  Save();
  const std::wstring deleted = L"HKCU\\" + kTabsPath + L"\\";
  EXPECT_EQ(recorded.Calls().Paths(RegistryCall::kDeleteTree),
            (std::vector{deleted + L"Again", deleted + L"Bare\\Subkey", deleted + L"Gone"}));
  EXPECT_EQ(Dump(kTabs),
            "[Software\\Velmont\\Tidewell\\TabSettings]\n"
            "ContactsTabOrder = 5\nMailTabOrder = 6\nNotesTabOrder = 4\nSEventsTabOrder = 7\n"
            "[Software\\Velmont\\Tidewell\\TabSettings\\AGAIN]\n"
            "DLL = \"again.dll\"\nOrder = 10\nType = 1\n"
            "[Software\\Velmont\\Tidewell\\TabSettings\\Bare]\n"
            "Type = 1\n"
            "[Software\\Velmont\\Tidewell\\TabSettings\\contacts]\n"
            "Enabled = 1\nOrder = 8\nType = 1\n"
            "[Software\\Velmont\\Tidewell\\TabSettings\\Since]\n"
            "Enabled = 1\nOrder = 1\n"
            "[Software\\Velmont\\Tidewell\\TabSettings\\Weather]\n"
            "CustomIconName = \"weather.ico\"\nDLL = \"weather.dll\"\nEnabled = 1\n"
            "InstallPath = \"\\Weather\"\nOrder = 3\nType = 1\n");
  for (const bool isNew : {true, false}) {
    Load();
    Save();
    EXPECT_EQ(recorded.CountWrites() > 0, isNew) << "once for the one that has come since";
  }
}

TEST_F(TabsTest, TheSubkeyContactsIsKeptAsItIs) {
  PutHosted(L"Contacts", 4, L"x.dll");
  PutHosted(L"Contacts\\Alphabets", 1);
  const std::string before = Dump(kTabs);
  Load();
  EXPECT_EQ(store.tabs.size(), 6u);
  Save();
  EXPECT_EQ(Dump(kTabs), before);
}

TEST_F(TabsTest, TheActiveTabIsAnEnabledBuiltInOneOrTheDefaultTab) {
  for (const auto& [active, tabs, expected] :
       {std::tuple(3, "", 3u),
        {8, "", 1u},
        {-1, "", 1u},
        {7, "", 1u},                   // the hosted tab
        {3, "NotesTabEnabled=2", 1u},  // only 1 is enabled
        {3, "DfltTabOnStartup=1", 1u},
        {3, "DfltTabOnStartup=1 DfltTab=5", 6u},
        {3, "DfltTabOnStartup=1 DfltTab=6", 3u},
        {3, "DfltTabOnStartup=2 DfltTab=5", 3u},
        {1, "DfltTabOnStartup=1 DfltTab=1 TasksTabOrder=50", 7u}}) {
    Delete(kTabs);
    PutHosted(L"Weather", 9);
    Put(SettingKey::kRoot, L"ActiveTab", static_cast<std::uint32_t>(active));
    PutNumbers(kTabs, tabs);
    Load();
    EXPECT_EQ(store.root.ActiveTab.Value(), expected) << active << ": " << tabs;
  }
}

}  // namespace
}  // namespace tidewell
