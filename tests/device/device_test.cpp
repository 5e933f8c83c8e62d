// The installed program as its owner meets it: started, driven and watched from this process.
#include <gtest/gtest.h>
#include <windows.h>

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
