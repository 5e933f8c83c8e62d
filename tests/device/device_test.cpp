// The installed program as its owner meets it: started, driven and watched from this process.
#include <gtest/gtest.h>
#include <windows.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "device_fixture.h"

namespace tidewell::device {

namespace {

// Renames a file of the installed program and gives it its name back, whatever has it by then.
class HiddenFile {
 public:
  explicit HiddenFile(const std::wstring& name)
      : path_(std::wstring(kInstallFolder) + L"\\" + name), hidden_(path_ + L".hidden") {
    EXPECT_TRUE(MoveFileW(path_.c_str(), hidden_.c_str())) << "not installed";
  }
  ~HiddenFile() { MoveFileExW(hidden_.c_str(), path_.c_str(), MOVEFILE_REPLACE_EXISTING); }

 private:
  std::wstring path_;
  std::wstring hidden_;
};

// By keys alone: the registry has what changed and nothing else, and the next start reads it.
TEST_F(DeviceTest, KeysOpenAPageAndWorkItAndWhatTheyChangedIsStored) {
  const auto open = [](DrivenProgram& program) {
    EXPECT_TRUE(program.WaitForMainWindow());
    program.Press(VK_RETURN);
    const HWND page = program.WaitForPopup();
    program.Press(VK_UP);  // to its tabs
    return page;
  };
  ASSERT_TRUE(AddValue(L"", L"AutoHeight", L"REG_DWORD", L"0"));
  {
    DrivenProgram program;
    ASSERT_TRUE(open(program));
    const struct {
      int tabs, down;  // steps of the D-pad
      std::vector<WPARAM> keys;
    } changes[] = {{0, 1, {VK_RIGHT}},
                   {0, 2, {VK_RETURN, VK_DOWN, VK_RETURN}},
                   {0, 4, {'2', '3', '4'}},
                   {1, 4, {VK_RIGHT}},
                   {0, 5, {VK_RIGHT}},
                   {0, 6, {VK_SPACE}},
                   {1, 3, {VK_LEFT, VK_RETURN, VK_ESCAPE}}};
    for (const auto& change : changes) {
      program.Press(VK_RIGHT, change.tabs);
      program.Press(VK_DOWN, change.down);
      for (const WPARAM key : change.keys) program.Press(key);
      program.Press(VK_UP, change.down);
    }
    program.PressOk();
    ASSERT_TRUE(program.WaitForPopupToGo());
    program.Press(VK_F1);  // Done
    EXPECT_TRUE(program.Ended());
  }
  EXPECT_EQ(Broadcasts(), 1);
  EXPECT_EQ(QueryProductTree(), R"([]
    AutoHeight = REG_DWORD 0x0
    dHeightLimit = REG_DWORD 0xea
    DPadCompleteAction = REG_DWORD 0x1
    EnableSoundEffect = REG_DWORD 0x0
    OnClick = REG_DWORD 0x1
    OnDoubleClick = REG_DWORD 0x1
    SelectedLangResFile = REG_SZ \Program Files\Velmont\Tidewell\LangRes\TWGerRc.dll
[\IconSet]
    InstallPath12 = REG_SZ \Program Files\Velmont\Tidewell\IconSets\Mono\12
    InstallPath18 = REG_SZ \Program Files\Velmont\Tidewell\IconSets\Mono\18
    InstallPath24 = REG_SZ \Program Files\Velmont\Tidewell\IconSets\Mono\24
)");

  DrivenProgram program;
  EXPECT_EQ(CaptionOf(open(program)), L"Allgemein");
}

// No other value than those comes into the registry.
TEST_F(DeviceTest, KeysChangeOneThingOnEachTabOfAPage) {
  // From the row of tabs: a step of the D-pad each, a for its action key, t for Tab, s for Space, e
  // for End, k for the left soft key.
  const struct {
    int page, tab;
    std::string_view keys;
  } changes[] = {{1, 0, "ddr"},
                 {1, 1, "dr"},
                 {1, 2, "dts"},
                 {1, 3, "ddddtds"},
                 {1, 4, "ddds"},
                 {1, 5, "dddddtds"},
                 {1, 6, "dtds"},
                 {1, 7, "dr"},
                 {1, 8, "dtds"},
                 {2, 0, "ds"},
                 {2, 1, "dr"},
                 {2, 2, "dr"},
                 {2, 3, "ddds"},
                 {3, 0, "ddl"},
                 {3, 1, "dr"},
                 {3, 2, "ds"},
                 {3, 3, "ddadk"},
                 // The last line of the search bar leads to the alphabets and to its first line.
                 {4, 0, "daeaeak"},
                 {4, 1, "dr"},
                 {4, 2, "ddr"},
                 {10, 0, "dl"},
                 {10, 1, "dstttaa"},
                 {10, 2, "dr"},
                 {11, 0, "dddadk"},
                 {11, 1, "ds"},
                 {11, 2, "dds"}};
  constexpr wchar_t kFirstFolder[] = L"C:\\A folder of notes";
  CreateDirectoryW(kFirstFolder, nullptr);
  ASSERT_TRUE(ImportRegistry(R"(
[HKEY_CURRENT_USER\SOFTWARE\Velmont Weather]
"UtilityLibrary"="C:\\Program Files\\Velmont\\Tidewell\\LowDpiRes.dll"
)"));
  const std::map<char, WPARAM> named = {{'d', VK_DOWN}, {'l', VK_LEFT},  {'r', VK_RIGHT},
                                        {'t', VK_TAB},  {'s', VK_SPACE}, {'a', VK_RETURN},
                                        {'e', VK_END},  {'k', VK_F1}};
  DrivenProgram program;
  ASSERT_TRUE(program.WaitForMainWindow());
  int page = 0;
  for (const auto& change : changes) {
    program.Press(VK_DOWN, change.page - std::exchange(page, change.page));
    program.Press(VK_RETURN);
    ASSERT_TRUE(program.WaitForPopup());
    program.Press(VK_UP);  // to its tabs
    program.Press(VK_RIGHT, change.tab);
    for (const char key : change.keys) program.Press(named.at(key));
    program.PressOk();
    ASSERT_TRUE(program.WaitForPopupToGo());
  }
  program.Press(VK_F1);  // Done
  EXPECT_TRUE(program.Ended());
  RemoveDirectoryW(kFirstFolder);
  const std::wstring filtersPath = std::wstring(kInstallFolder) + L"\\TWFilters.txt";
  std::string filters = ReadFileBytes(filtersPath.c_str());
  std::erase(filters, '\0');
  EXPECT_LT(filters.find("\"Visible\"=dword:0"), filters.find("[FILTER1]"));
  DeleteFileW(filtersPath.c_str());
  EXPECT_EQ(QueryProductTree(), R"([\Calendar]
    ClrApptRightIcons = REG_DWORD 0x1de
    dAppoPassedToday = REG_DWORD 0x1
    FirstWeekInYear = REG_DWORD 0x1
    Force2DigitsTImeFrmt = REG_DWORD 0x1
    IncldTasksInCR = REG_DWORD 0x0
    IncludeMainOnCal = REG_DWORD 0x1
    MonthlyPopWithWeekNum = REG_DWORD 0x1
    ShowTomorrowTtl = REG_DWORD 0x0
    WeatehrLayout = REG_DWORD 0x2
[\Categories]
    AdditionalIconsFolder = REG_SZ \A folder of notes
    CatFilter.Birthdays = REG_DWORD 0x1
[\Contacts]
    CntctsActiveLanguages = REG_DWORD 0x11
    CntctsActiveSearchBar = REG_DWORD 0x0
    CntctsBreakLineStyle = REG_DWORD 0x2
    CntctsPhoneColumnWidth = REG_DWORD 0x5f
[\Contacts\Alphabets]
    Thai = REG_DWORD 0x1
[\Notes]
    NotesBreakLineStyle = REG_DWORD 0x2
    NotesPreviewNotesState = REG_DWORD 0x1
    NotesScannedFileTypes = REG_DWORD 0x33e
[\Notes\Folders]
    0 = REG_SZ \A folder of notes
[\TabSettings]
    DfltTabTimeOut = REG_DWORD 0x1
    TabsPosition = REG_DWORD 0x2
    TasksTabEnabled = REG_DWORD 0x0
[\TabSettings\Moon phases]
    DLL = REG_SZ \Program Files\Moon phases\moon.dll
    Enabled = REG_DWORD 0x1
    Order = REG_DWORD 0x7
    Type = REG_DWORD 0x1
[\Tasks]
    HideCompletedTasks = REG_DWORD 0x1
    TasksRightIcons = REG_DWORD 0x17e
    TsksDateFrmt = REG_DWORD 0x4
    TsksLineBreaker = REG_DWORD 0x2
)");
}

TEST_F(DeviceTest, ASecondStartBringsTheFirstForwardAndEndsWithZero) {
  ShowWindow(listener_.Get(), SW_SHOW);
  for (const wchar_t* firstCommandLine : {L"", L"About"}) {
    SCOPED_TRACE(testing::PrintToString(std::wstring(firstCommandLine)));
    DrivenProgram first(firstCommandLine);
    ASSERT_TRUE(first.WaitForMainWindow());
    first.Settle();
    SetForegroundWindow(listener_.Get());
    ASSERT_TRUE(WaitUntil([&] { return GetForegroundWindow() == listener_.Get(); }));

    DrivenProgram second;
    EXPECT_TRUE(second.Ended());
    const HWND front = GetLastActivePopup(first.Main());
    EXPECT_TRUE(WaitUntil([&] { return GetForegroundWindow() == front; }));
    EXPECT_EQ(CountMainWindows(), 1);
  }
}

TEST_F(DeviceTest, FiftyStartsAtOnceLeaveOneWindow) {
  constexpr std::size_t kStarts = 50;
  std::vector<DrivenProgram> programs(kStarts);
  std::size_t ended = 0;
  const auto countEnded = [&] {
    ended = 0;
    for (DrivenProgram& program : programs) {
      if (const auto code = program.GetProcess().WaitForExit(0)) {
        EXPECT_EQ(*code, 0u);
        ++ended;
      }
    }
    return ended >= kStarts - 1;
  };
  WaitUntil(countEnded, 120'000);
  EXPECT_EQ(ended, kStarts - 1);
  EXPECT_EQ(CountMainWindows(), 1);
}

TEST_F(DeviceTest, OnlyTheExactWordAboutOpensTheAboutBox) {
  const std::pair<const wchar_t*, bool> cases[] = {
      {L"", false},       {L"About", true},      {L"about", false},     {L"ABOUT", false},
      {L"About ", false}, {L"\"About\"", false}, {L"About box", false}, {L"/About", false},
  };
  for (const auto& [commandLine, opens] : cases) {
    SCOPED_TRACE(testing::PrintToString(std::wstring(commandLine)));
    DrivenProgram program(commandLine);
    ASSERT_TRUE(program.WaitForMainWindow());
    program.Settle();
    const HWND front = GetLastActivePopup(program.Main());
    EXPECT_EQ(front != program.Main(), opens);
    program.TapOk();
    if (opens) {
      EXPECT_TRUE(program.WaitForPopupToGo());
      program.TapOk();
    }
    EXPECT_TRUE(program.Ended());
  }
}

TEST_F(DeviceTest, MissingLibrariesLeaveAUsableProgram) {
  const std::vector<std::wstring> cases[] = {
      {L"LangRes\\TWEngRc.dll"},
      {L"LowDpiRes.dll", L"HighDpiRes.dll"},
      {L"LangRes\\TWEngRc.dll", L"LangRes\\TWGerRc.dll", L"LowDpiRes.dll", L"HighDpiRes.dll"},
  };
  for (const std::vector<std::wstring>& names : cases) {
    SCOPED_TRACE(testing::PrintToString(names));
    ForgetProductKeys();
    ASSERT_TRUE(AddValue(L"\\Calendar", L"dNumOfDays", L"REG_DWORD", L"121"));
    std::vector<std::unique_ptr<HiddenFile>> hidden;
    for (const std::wstring& name : names) hidden.push_back(std::make_unique<HiddenFile>(name));

    DrivenProgram program;
    ASSERT_TRUE(program.WaitForMainWindow());
    program.TapRightButton();
    program.Press(VK_DOWN, 2);
    program.Press(VK_RETURN);  // the question whether to exit
    ASSERT_TRUE(program.WaitForPopup());
    program.Press(VK_RIGHT);
    program.Press(VK_RETURN);
    ASSERT_TRUE(program.WaitForPopupToGo());
    program.TapRightButton();  // back to the groups
    program.TapLeftButton();
    EXPECT_TRUE(program.Ended());
    EXPECT_EQ(QueryProductTree(), "");
  }
}

}  // namespace

}  // namespace tidewell::device
