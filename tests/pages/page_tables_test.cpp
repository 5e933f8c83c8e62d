// What holds for the tables of all pages.
#include <gtest/gtest.h>

#include <map>
#include <set>

#include "pages/page_list.h"
#include "pages/settings_without_row.h"
#include "tests/support/setting_lines.h"
#include "tests/support/test_device.h"
#include "tests/support/utf8.h"

namespace tidewell {
namespace {

class Tables : public testing::Test, protected TestDevice {
 protected:
  // Has every row.
  Tables() {
    UseScreen(480, 640, 192);
    InstallOtherPrograms();
  }
  // Of every page there is.
  std::vector<Row> AllRows() {
    std::vector<Row> rows;
    for (const PageEntry& page : kPages) {
      for (const PageTab& tab : page.make(context)->Tabs()) {
        for (const Row* row : tab.Rows()) rows.push_back(*row);
      }
    }
    return rows;
  }
};

TEST_F(Tables, HaveEverySavedSettingOnOnePage) {
  std::map<const Setting*, int> pages;
  for (const PageEntry& page : kPages) {
    std::set<const Setting*> settings;
    for (const PageTab& tab : page.make(context)->Tabs()) settings.merge(tab.Settings());
    for (const Setting* setting : settings) ++pages[setting];
  }
  for (const Setting* setting : SettingLines(store).all) {
    if (setting->IsReadOnly()) continue;
    const bool exempt = WhyNoRow(*setting) != NoRow::kNotKnown;
    EXPECT_EQ(pages[setting], exempt ? 0 : 1) << Utf8(setting->Name());
  }
}

TEST_F(Tables, LeaveOutTheRowsThatTheDeviceCannotUse) {
  struct Case {
    int width;
    SystemVersion version;
    bool wide, modern;
  };
  const Case cases[] = {
      {480, {5, 1}, true, true}, {479, {4, 21}, false, true}, {640, {4, 20}, true, false}};
  for (const Case& c : cases) {
    memory.system.screen.width = c.width;
    memory.system.version = c.version;
    std::set<int> textIds;
    for (const Row& row : AllRows()) textIds.insert(row.textId);
    EXPECT_EQ(textIds.contains(1029), c.wide) << c.width;
    EXPECT_EQ(textIds.contains(1033), c.wide) << c.width;
    EXPECT_EQ(textIds.contains(1251), c.modern) << c.version.major;
  }
}

// Each control is shown with one tab.
TEST_F(Tables, GiveAControlToOneTab) {
  for (const PageEntry& page : kPages) {
    std::map<int, int> tabs;
    for (const PageTab& tab : page.make(context)->Tabs()) {
      for (const int id : tab.ControlIds()) EXPECT_EQ(++tabs[id], 1) << id;
    }
  }
}

}  // namespace
}  // namespace tidewell
