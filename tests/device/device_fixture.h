// A device whose product keys are gone before and after each test, and a listener on its desktop;
// the same with a folder of documents, for the program's export and import.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "driven_program.h"
#include "system_registry.h"
#include "tests/support/window_support.h"

namespace tidewell::device {

inline int CountMainWindows() {
  int count = 0;
  for (HWND window = nullptr; (window = FindWindowExW(nullptr, window, kMainClass, nullptr));) {
    ++count;
  }
  return count;
}

class DeviceTest : public testing::Test {
 protected:
  void SetUp() override {
    SetCursorPos(0, 0);  // a list that opens below the pointer would choose the line there
    ForgetProductKeys();
    ASSERT_EQ(CountMainWindows(), 0) << "a program is left over from before";
  }
  void TearDown() override { ForgetProductKeys(); }

  // What programs that have ended told the Today item since the last call.
  int Broadcasts() {
    PumpMessages();
    const int count = listener_.Count(RegisterWindowMessageW(L"VelmontTidewellSettingsChanged"));
    listener_.messages.clear();
    return count;
  }

  TestWindow listener_{WS_POPUP, 0};
};

inline constexpr wchar_t kDocuments[] = L"C:\\My Documents";
inline constexpr wchar_t kBackup[] = L"C:\\My Documents\\device_test.twsb";
inline constexpr wchar_t kFiltersFile[] = L"C:\\Program Files\\Velmont\\Tidewell\\TWFilters.txt";

enum class Tool { kExport = 0, kImport = 1 };  // their rows

class BackupDeviceTest : public DeviceTest {
 protected:
  void SetUp() override {
    DeviceTest::SetUp();
    CreateDirectoryW(kDocuments, nullptr);
    RemoveFiles();
  }
  void TearDown() override {
    RemoveFiles();
    DeviceTest::TearDown();
  }

  // The tool's dialog, with the backup's name in its field; null when it never came.
  static HWND OpenDialog(DrivenProgram& program, Tool tool,
                         const std::wstring& name = L"device_test") {
    if (!program.WaitForMainWindow()) return nullptr;
    program.TapRightButton();
    program.Press(VK_DOWN, static_cast<int>(tool));
    PostMessageW(program.Main(), WM_KEYDOWN, VK_RETURN, 1);
    const HWND dialog = program.WaitForPopup();
    const HWND field = FindWindowExW(dialog, nullptr, L"Edit", nullptr);
    SendMessageW(field, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(name.c_str()));
    return dialog;
  }
  // The text of the message that follows on the confirmed dialog; the message is answered.
  static bool RunTool(DrivenProgram& program, Tool tool,
                      const std::wstring& name = L"device_test") {
    const HWND dialog = OpenDialog(program, tool, name);
    if (!dialog) return false;
    PostMessageW(dialog, WM_COMMAND, IDOK, 0);
    return WaitUntil([&] {
      const HWND message = GetLastActivePopup(program.Main());
      return message != dialog && message != program.Main() && IsReady(message) &&
             PostMessageW(message, WM_COMMAND, IDOK, 0);
    });
  }
  // An export from beginning to end; the backup's bytes.
  static std::string Export() {
    DrivenProgram program;
    EXPECT_TRUE(RunTool(program, Tool::kExport));
    EXPECT_TRUE(program.WaitForPopupToGo());
    program.GetProcess().Kill();
    return ReadFileBytes(kBackup);
  }
  // An import from beginning to end of the backup of that name.
  static bool Import(const std::wstring& name = L"device_test") {
    DrivenProgram program;
    return RunTool(program, Tool::kImport, name) && program.Ended();
  }

  static void RemoveFiles() {
    for (const wchar_t* path : {kBackup, kFiltersFile}) DeleteFileW(path);
    RemoveCopies();
  }
  static void RemoveCopies() {
    for (const auto& path : Documents("TW_BeforeImport_", ".twsb")) std::filesystem::remove(path);
  }
  static std::vector<std::filesystem::path> Documents(const char* start, const char* end) {
    std::vector<std::filesystem::path> paths;
    for (const auto& entry : std::filesystem::directory_iterator(kDocuments)) {
      const std::string name = entry.path().filename().string();
      if (name.starts_with(start) && name.ends_with(end)) paths.push_back(entry.path());
    }
    return paths;
  }
};

}  // namespace tidewell::device
