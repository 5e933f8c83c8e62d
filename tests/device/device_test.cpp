// The installed program as its owner meets it: started, driven and watched from this process.
#include <gtest/gtest.h>
#include <windows.h>

#include <string>
#include <utility>
#include <vector>

#include "categories/filters_file.h"
#include "device_fixture.h"

namespace tidewell::device {

namespace {

constexpr int kExitRow = 2;  // of the tools list

// Renames a file of the installed program and gives it its name back, whatever has it by then.
class HiddenFile {
 public:
  explicit HiddenFile(const std::wstring& name)
      : path_(std::wstring(kInstallFolder) + L"\\" + name), hidden_(path_ + L".hidden") {
    EXPECT_TRUE(MoveFileW(path_.c_str(), hidden_.c_str())) << "not installed";
  }
  ~HiddenFile() { MoveFileExW(hidden_.c_str(), path_.c_str(), MOVEFILE_REPLACE_EXISTING); }

  const std::wstring& Path() const { return path_; }
  std::string Bytes() const { return ReadFileBytes(hidden_.c_str()); }

 private:
  std::wstring path_;
  std::wstring hidden_;
};

// The program asks whether to exit, and is answered.
void AnswerExit(DrivenProgram& program, WPARAM answer) {
  program.TapRightButton();
  program.Press(VK_DOWN, kExitRow);
  program.Press(VK_RETURN);
  const HWND question = program.WaitForPopup();
  ASSERT_TRUE(question);
  PostMessageW(question, WM_COMMAND, answer, 0);
}

TEST_F(DeviceTest, DoneStoresTheRepairsOfWhatTheRegToolFilledIn) {
  ASSERT_TRUE(ImportRegistry(R"(
[HKEY_CURRENT_USER\Software\Velmont\Tidewell]
"OnClick"=dword:00000003
"dHeightLimitLandscape"=dword:0000003b
"ActiveTab"=dword:00000009
"NotOurs"="kept"

[HKEY_CURRENT_USER\Software\Velmont\Tidewell\Calendar]
"dNumOfDays"=dword:00000079
"TimelinesStart"=dword:0000000a
"TimelinesLength"=dword:00000012
"CalTitlesOrder0"=dword:00000000
"CalTitlesOrder1"=dword:00000001
"CalTitlesOrder2"=dword:00000002
"CalTitlesOrder3"=dword:00000003
"CalTitlesOrder4"=dword:00000004
"CalTitlesOrder5"=dword:00000004

[HKEY_CURRENT_USER\Software\Velmont\Tidewell\TabSettings\Weather]
"Enabled"=dword:00000001
"Order"=dword:0000000a
"DLL"="\\Windows\\weather.dll"
"Left"="over"

[HKEY_CURRENT_USER\Software\Velmont\Tidewell\TabSettings\Contacts]
"NotOurs"="kept"
)"));
  ASSERT_TRUE(AddValue(L"\\Notes", L"SearchMode", L"REG_DWORD", L"2"));

  DrivenProgram program;
  ASSERT_TRUE(program.WaitForMainWindow());
  program.TapLeftButton();
  EXPECT_TRUE(program.Ended());
  EXPECT_EQ(QueryProductTree(), R"([]
    ActiveTab = REG_DWORD 0x9
    NotOurs = REG_SZ kept
    OnClick = REG_DWORD 0x3
[\Calendar]
    TimelinesLength = REG_DWORD 0x8
    TimelinesStart = REG_DWORD 0xa
[\Notes]
    SearchMode = REG_DWORD 0x2
[\TabSettings\Contacts]
    NotOurs = REG_SZ kept
[\TabSettings\Weather]
    DLL = REG_SZ \Windows\weather.dll
    Enabled = REG_DWORD 0x1
    Order = REG_DWORD 0x7
    Type = REG_DWORD 0x1
)");
}

TEST_F(DeviceTest, ASecondStartBringsTheFirstForwardAndEndsWithZero) {
  ShowWindow(listener_.Window(), SW_SHOW);
  for (const wchar_t* firstCommandLine : {L"", L"About"}) {
    SCOPED_TRACE(testing::PrintToString(std::wstring(firstCommandLine)));
    DrivenProgram first(firstCommandLine);
    ASSERT_TRUE(first.WaitForMainWindow());
    first.Settle();
    SetForegroundWindow(listener_.Window());
    ASSERT_TRUE(WaitUntil([&] { return GetForegroundWindow() == listener_.Window(); }));

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

TEST_F(DeviceTest, DoneTellsTheTodayItemOnce) {
  DrivenProgram program;
  ASSERT_TRUE(program.WaitForMainWindow());
  program.TapOk();
  EXPECT_TRUE(program.Ended());
  listener_.HearAllPosted();
  EXPECT_EQ(listener_.heard, kOnce);
}

TEST_F(DeviceTest, ExitAnsweredYesWritesAndTellsNothing) {
  ASSERT_TRUE(AddValue(L"\\Calendar", L"dNumOfDays", L"REG_DWORD", L"121"));
  const std::string before = QueryProductTree();
  ASSERT_NE(before, "");
  DrivenProgram program;
  ASSERT_TRUE(program.WaitForMainWindow());
  AnswerExit(program, IDYES);
  EXPECT_TRUE(program.Ended());
  listener_.HearAllPosted();
  EXPECT_TRUE(listener_.heard.empty());
  EXPECT_EQ(QueryProductTree(), before);
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
    AnswerExit(program, IDNO);
    ASSERT_TRUE(program.WaitForPopupToGo());
    program.TapRightButton();  // back to the groups
    program.TapLeftButton();
    EXPECT_TRUE(program.Ended());
    EXPECT_EQ(QueryProductTree(), "");
  }
}

// 64 by 64 points of 24 bits need 12,342 bytes.
std::string BitmapCutAt4000() {
  std::string bytes("BM\x36\x30\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\x40\0\0\0\x40\0\0\0\1\0\x18", 29);
  bytes.resize(4000);
  return bytes;
}

TEST_F(DeviceTest, DamagedFilesCountAsMissingAndCostNothing) {
  constexpr wchar_t kFilters[] = L"C:\\Program Files\\Velmont\\Tidewell\\TWFilters.txt";
  FilterSet filters = DefaultFilters();
  filters[31].title = L"Last";
  const std::wstring text = FormatFilters(filters);
  const std::string filtersBytes(reinterpret_cast<const char*>(text.data()), 2 * text.size());
  WriteFileBytes(kFilters, filtersBytes);
  ASSERT_TRUE(ImportRegistry(R"(
[HKEY_CURRENT_USER\Software\Velmont\Tidewell]
"OnClick"=dword:00000001

[HKEY_CURRENT_USER\Software\Velmont\Tidewell\Categories]
"CatColor.Holiday"=dword:000000ff
"CatFilter.Home"=dword:00000005

[HKEY_CURRENT_USER\Software\Velmont\Tidewell\TabSettings\Weather]
"DLL"="\\Windows\\weather.dll"
"Enabled"=dword:00000001
"Order"=dword:00000007
"Type"=dword:00000001
)"));
  const struct {
    const wchar_t* name;
    std::size_t size;  // that is left; 0 for the bitmap
    bool isGerman;     // else English, and the page is opened that lists every language
  } cases[] = {{L"LangRes\\TWGerRc.dll", 8192, false},
               {L"CategoryIcons\\Holiday.bmp", 0, true},
               {L"LangRes\\TWGerRc.dll", 4096, true},
               {L"LangRes\\TWGerRc.dll", 8192, true}};
  const auto german = L"\"" + std::wstring(kInstallFolder).substr(2) + L"\\LangRes\\TWGerRc.dll\"";
  for (const auto& c : cases) {
    SCOPED_TRACE(testing::PrintToString(std::wstring(c.name)) + " " + std::to_string(c.size));
    if (c.isGerman) {
      ASSERT_TRUE(AddValue(L"", L"SelectedLangResFile", L"REG_SZ", german));
    }
    const std::string before = QueryProductTree();
    const HiddenFile whole(c.name);
    const std::string bytes = c.size ? whole.Bytes().substr(0, c.size) : BitmapCutAt4000();
    WriteFileBytes(whole.Path().c_str(), bytes);
    DrivenProgram program;
    ASSERT_TRUE(program.WaitForMainWindow());
    if (!c.isGerman) {
      program.Press(VK_RETURN);
      program.TapOk();
    }
    program.TapOk();
    EXPECT_TRUE(program.Ended());
    EXPECT_EQ(QueryProductTree(), before);
    EXPECT_TRUE(ReadFileBytes(kFilters) == filtersBytes);
  }
  DeleteFileW(kFilters);
}

TEST_F(DeviceTest, TheMainWindowFillsTheScreenBelowItsTitleStripAndHasNoFrame) {
  DrivenProgram program;
  const HWND window = program.WaitForMainWindow();
  ASSERT_TRUE(window);
  EXPECT_EQ(FindWindowW(kMainClass, kMainCaption), window);
  const auto style = static_cast<DWORD>(GetWindowLongW(window, GWL_STYLE));
  EXPECT_EQ(style & (0x14000800 | WS_CAPTION | WS_THICKFRAME | WS_DISABLED), 0x14000800u);
  EXPECT_NE(static_cast<DWORD>(GetWindowLongW(window, GWL_EXSTYLE)) & 0x80000000, 0u);

  RECT screen;
  RECT place;
  RECT client;
  RECT above;
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &screen, 0);
  GetWindowRect(window, &place);
  GetClientRect(window, &client);
  const HWND strip = WindowFromPoint({screen.right / 2, screen.top});
  EXPECT_EQ(GetWindow(strip, GW_OWNER), window);
  ASSERT_TRUE(GetWindowRect(strip, &above));
  const RECT below{screen.left, above.bottom, screen.right, screen.bottom};
  const RECT top{screen.left, screen.top, screen.right, above.bottom};
  EXPECT_TRUE(EqualRect(&place, &below));
  EXPECT_TRUE(EqualRect(&above, &top));
  EXPECT_EQ(client.right, place.right - place.left) << "no frame of its own";
  EXPECT_EQ(client.bottom, place.bottom - place.top);
}

}  // namespace

}  // namespace tidewell::device
