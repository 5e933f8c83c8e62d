// The pages' own tables.
#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "pages/page_list.h"
#include "platform/text.h"
#include "tests/pages/page_fixture.h"
#include "tests/support/setting_lines.h"
#include "tests/support/utf8.h"

namespace tidewell {
namespace {

class Tables : public PageFixture {
 protected:
  // Of every page there is.
  std::vector<Row> AllRows() {
    std::vector<Row> rows;
    for (const PageEntry& page : kPages) {
      if (!page.make) continue;
      for (const PageTab& tab : page.make(context)->Tabs()) {
        for (const Row* row : tab.Rows()) rows.push_back(*row);
      }
    }
    return rows;
  }
};

const Setting* SettingOf(const Row& row) {
  if (row.number) return row.number;
  return row.text;
}

// What is saved and on no page, because the user shall not edit it...
const std::set<std::wstring> kNotForTheUser = {L"FirstTimeSettingsMsg"};
// ... or because its page is yet to come.
const std::set<SettingKey> kPagesToCome = {
    SettingKey::kCalendar, SettingKey::kTasks,  SettingKey::kNotes,       SettingKey::kContacts,
    SettingKey::kFonts,    SettingKey::kColors, SettingKey::kTabSettings, SettingKey::kCategories,
};

TEST_F(Tables, HaveEverySavedSettingOnOnePage) {
  std::map<const Setting*, int> pages;
  for (const Row& row : AllRows()) ++pages[SettingOf(row)];
  for (const Setting* setting : SettingLines(store).all) {
    if (setting->IsReadOnly()) continue;
    const bool exempt =
        kPagesToCome.contains(setting->Key()) || kNotForTheUser.contains(setting->Name());
    EXPECT_EQ(pages[setting], exempt ? 0 : 1) << Utf8(setting->Name());
  }
}

TEST_F(Tables, LeaveOutTheRowsThatTheDeviceCannotUse) {
  struct Case {
    int width;
    SystemVersion version;
    bool wide, modern;
  };
  const Case cases[] = {{480, {5, 1}, true, true},
                        {479, {4, 21}, false, true},
                        {640, {4, 20}, true, false},
                        {240, {3, 0}, false, false}};
  for (const Case& c : cases) {
    machine.system.screen.width = c.width;
    machine.system.version = c.version;
    std::set<int> textIds;
    for (const Row& row : AllRows()) textIds.insert(row.textId);
    EXPECT_EQ(textIds.contains(1029), c.wide) << c.width;
    EXPECT_EQ(textIds.contains(1033), c.wide) << c.width;
    EXPECT_EQ(textIds.contains(1251), c.modern) << c.version.major;
  }
}

// ---- The listing of all rows

std::wstring ChoicesOf(const Row& row) {
  std::wstring listed;
  for (const Choice& choice : row.choices) {
    listed += (listed.empty() ? L" | " : L", ") + choice.text;
    if (choice.textId) listed += L"#" + FormatDecimal(choice.textId);
    if (row.stored == Stored::kData) {
      listed += L"=" + FormatDecimal(static_cast<std::int32_t>(choice.data));
    }
  }
  return listed;
}

std::wstring LineOf(const Row& row) {
  static constexpr const wchar_t* kKinds[] = {
      // as Stored has them
      L"check",  L"list", L"number beside the line", L"name",
      L"number", L"path", L"filled by the page",     L"not stored"};
  std::wstring line = std::wstring(L"    ") + kKinds[static_cast<std::size_t>(row.stored)];
  for (const int id : {row.labelId, row.controlId, row.clearId, row.browseId}) {
    if (id) line += L" " + FormatDecimal(id);
  }
  line += L" | " + FormatDecimal(row.textId);
  if (const Setting* setting = SettingOf(row)) {
    const std::wstring key = LocationOf(setting->Key()).path;
    line += L" | " + key.substr(key.rfind(L'\\') + 1) + L"\\" + setting->Name();
  }
  line += ChoicesOf(row);
  if (row.otherwise != kNoChoice) line += L" | else line " + FormatDecimal(row.otherwise);
  if (row.ofNoChoice == 0) line += L" | without one 0";
  if (row.reducedSpacing) line += L" | closer by " + FormatDecimal(row.reducedSpacing);
  return line + L"\n";
}

TEST_F(Tables, SayWhatTheirListingSays) {
  InstallOtherPrograms();
  std::wstring listing;
  for (const PageEntry& page : kPages) {
    if (!page.make) continue;
    listing += page.className + (L" " + FormatDecimal(page.captionId)) + L"\n";
    for (const PageTab& tab : page.make(context)->Tabs()) {
      listing += L"  tab " + FormatDecimal(tab.titleId) + L", " +
                 FormatDecimal(tab.ControlIds().front()) + L" to " +
                 FormatDecimal(tab.ControlIds().back()) + L"\n";
      for (const Row* row : tab.Rows()) listing += LineOf(*row);
    }
  }
  std::ifstream file(TIDEWELL_PAGES_EXPECTED, std::ios::binary);
  std::ostringstream expected;
  expected << file.rdbuf();
  EXPECT_EQ(Utf8(listing), expected.str());
}

}  // namespace
}  // namespace tidewell
