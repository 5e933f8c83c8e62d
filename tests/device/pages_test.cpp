// The settings pages, opened, worked and left by keys alone; what they stored is read with the
// system's own reg tool.
#include <gmock/gmock.h>

#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "device_fixture.h"

namespace tidewell::device {

namespace {

// Some values that the cases below change, some that pages only show, some that no page has.
constexpr char kBefore[] = R"(
[HKEY_CURRENT_USER\Software\Velmont\Tidewell]
"OnDoubleClick"=dword:00000002
"SkinPath"="\\Storage Card\\Skin"
"LoadingDelay"=dword:00000004
"NotOurs"="kept"

[HKEY_CURRENT_USER\Software\Velmont\Tidewell\Messages]
"MsgsIncldCounters"=dword:00000000
"MessagesSort"=dword:00000003

[HKEY_CURRENT_USER\Software\Velmont\Tidewell\SEvents]
"SEApptsDaySpan"=dword:0000000f

[HKEY_CURRENT_USER\Software\Velmont\Tidewell\CustomPIM]
"DefaultReminderTasks"=dword:0000021c

[HKEY_CURRENT_USER\Software\Velmont Calendar]
"ExecutablePath"="\\Windows\\Calendar.exe"
)";

// What keys do to one control, and how the registry differs for it.
struct Change {
  int page;  // its row in the list of groups
  int tab;
  int down;  // so many steps of the D-pad below the row of tabs
  std::vector<WPARAM> keys;
  const char* difference;
};

const Change kChanges[] = {
    {0, 0, 1, {VK_RIGHT}, "OnClick: none -> REG_DWORD 0x1"},
    {0, 0, 2, {VK_LEFT}, "OnDoubleClick: REG_DWORD 0x2 -> REG_DWORD 0x1"},
    {0, 0, 3, {VK_SPACE}, "AutoHeight: none -> REG_DWORD 0x0"},
    {0, 0, 4, {'2', '3', '4'}, "dHeightLimit: none -> REG_DWORD 0xea"},
    {0, 1, 2, {VK_RETURN}, "SkinPath: REG_SZ \\Storage Card\\Skin -> none"},
    {0, 1, 5, {VK_RETURN}, "EnableSoundEffect: none -> REG_DWORD 0x0"},
    {0, 2, 3, {VK_LEFT, VK_RETURN, VK_ESCAPE}, "DPadCompleteAction: none -> REG_DWORD 0x1"},
    {0, 3, 2, {VK_SPACE}, "UseFullScrollings: none -> REG_DWORD 0x0"},
    {5, 0, 2, {VK_SPACE}, "\\Messages MsgsOpenOnClick: none -> REG_DWORD 0x1"},
    {5,
     1,
     1,
     {VK_RETURN, VK_DOWN, VK_RETURN},
     "\\Messages MsgsBreakLineStyle: none -> REG_DWORD 0x2"},
    {5, 1, 2, {VK_SPACE}, "\\Messages MsgsIncldCounters: REG_DWORD 0x0 -> none"},
    {6, 0, 2, {VK_RIGHT, VK_RIGHT}, "\\SEvents SEAlertBeforeDays: none -> REG_DWORD 0x2"},
    {6, 0, 4, {VK_SPACE, VK_DOWN, VK_SPACE}, "\\SEvents SEContactFormat: none -> REG_DWORD 0x1"},
    {6, 1, 1, {'6'}, "\\SEvents SEApptsDaySpan: REG_DWORD 0xf -> REG_DWORD 0x3c"},
    {6, 2, 3, {VK_SPACE}, "\\SEvents IncldCounters: none -> REG_DWORD 0x0"},
    {9, 0, 2, {VK_RIGHT}, "\\CustomPIM DefaultReminderAppts: none -> REG_DWORD 0x1e"},
    {9, 0, 1, {VK_RIGHT}, "\\CustomPIM PimSw: none -> REG_DWORD 0x4"},
    {9, 1, 1, {VK_SPACE}, "\\CustomPIM OverridePimCatIcons: none -> REG_DWORD 0x1"},
};

// Each value's type and data by its key and name.
std::map<std::string, std::string> ValuesOf(const std::string& tree) {
  std::map<std::string, std::string> values;
  std::istringstream lines(tree);
  std::string key;
  for (std::string line; std::getline(lines, line);) {
    if (line.front() == '[') {
      key = line.substr(1, line.size() - 2);
      continue;
    }
    const std::string name = line.substr(4, line.find(" = ") - 4);
    values[key.empty() ? name : key + " " + name] = line.substr(line.find(" = ") + 3);
  }
  return values;
}

std::vector<std::string> Differences(const std::string& before, const std::string& after) {
  std::map<std::string, std::string> was = ValuesOf(before);
  std::map<std::string, std::string> is = ValuesOf(after);
  for (const auto& [name, value] : is) was.try_emplace(name, "none");
  std::vector<std::string> differences;
  for (const auto& [name, value] : was) {
    const std::string now = is.contains(name) ? is[name] : "none";
    if (now != value) differences.push_back(name + ": " + value + " -> " + now);
  }
  return differences;
}

class PagesDeviceTest : public DeviceTest {
 protected:
  void TearDown() override {
    RegDeleteTreeW(HKEY_CURRENT_USER, L"Software\\Velmont Calendar");
    DeviceTest::TearDown();
  }

  // Opens the page of a row; the focus is on its tabs then.
  static HWND OpenPage(DrivenProgram& program, int row) {
    if (!program.WaitForMainWindow()) return nullptr;
    program.Press(VK_DOWN, row);
    program.Press(VK_RETURN);
    const HWND page = program.WaitForPopup();
    program.Press(VK_UP);
    return page;
  }
  static void Work(DrivenProgram& program, int down, const std::vector<WPARAM>& keys) {
    program.Press(VK_DOWN, down);
    for (const WPARAM key : keys) program.Press(key);
    program.Press(VK_UP, down);
  }
  static void LeaveByKeys(DrivenProgram& program) {
    program.PressOk();
    ASSERT_TRUE(program.WaitForPopupToGo());
    program.Press(VK_F1);  // Done
    EXPECT_TRUE(program.Ended());
  }
};

TEST_F(PagesDeviceTest, StoreWhatKeysChangedAndNothingElse) {
  for (const int page : {0, 5, 6, 9}) {
    SCOPED_TRACE(page);
    ForgetProductKeys();
    ASSERT_TRUE(ImportRegistry(kBefore));
    const std::string before = QueryProductTree();
    DrivenProgram program;
    ASSERT_TRUE(OpenPage(program, page));
    std::vector<std::string> differences;
    int tab = 0;
    for (const Change& change : kChanges) {
      if (change.page != page) continue;
      program.Press(VK_RIGHT, change.tab - tab);
      tab = change.tab;
      Work(program, change.down, change.keys);
      differences.push_back(change.difference);
    }
    LeaveByKeys(program);
    EXPECT_THAT(Differences(before, QueryProductTree()),
                testing::UnorderedElementsAreArray(differences));
  }
}

TEST_F(PagesDeviceTest, GermanOnceChosenIsTheNextStartsLanguage) {
  {
    DrivenProgram program;
    ASSERT_TRUE(OpenPage(program, 0));
    program.Press(VK_RIGHT);
    Work(program, 4, {VK_RIGHT});
    LeaveByKeys(program);
  }
  listener_.HearAllPosted();
  EXPECT_EQ(listener_.heard, kOnce);
  EXPECT_EQ(QueryProductTree(),
            "[]\n    SelectedLangResFile = REG_SZ "
            "\\Program Files\\Velmont\\Tidewell\\LangRes\\TWGerRc.dll\n");

  DrivenProgram program;
  const HWND page = OpenPage(program, 0);
  wchar_t caption[32] = {};
  wchar_t label[32] = {};
  GetWindowTextW(page, caption, 32);
  SendDlgItemMessageW(page, 1200, WM_GETTEXT, 32, reinterpret_cast<LPARAM>(label));
  EXPECT_STREQ(caption, L"Allgemein");
  EXPECT_STREQ(label, L"Beim Tippen");
}

}  // namespace

}  // namespace tidewell::device
