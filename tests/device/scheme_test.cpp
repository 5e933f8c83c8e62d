// Schemes on the running program, seen through the system's own reg tool and from the window that
// a Today screen would have; and the program killed while it applies one.
#include <gtest/gtest.h>

#include <filesystem>
#include <random>
#include <string>

#include "device_fixture.h"

namespace tidewell::device {

namespace {

constexpr int kKills = 5;
constexpr int kColorsRow = 8;
enum : int { kName = 1202, kSave, kSchemes, kApply };
// The first line of the list, and the one that follows.
const std::wstring kScheme = std::wstring(kInstallFolder) + L"\\Schemes\\AAA.scm";
const std::wstring kBefore = std::wstring(kInstallFolder) + L"\\Schemes\\Before applying.scm";

class SchemeDeviceTest : public DeviceTest {
 protected:
  SchemeDeviceTest() { RemoveFiles(); }
  ~SchemeDeviceTest() override { RemoveFiles(); }
  static void RemoveFiles() {
    for (const std::wstring& path : {kScheme, kBefore}) DeleteFileW(path.c_str());
  }
  // The page with its schemes.
  static HWND OpenSchemes(DrivenProgram& program) {
    if (!program.WaitForMainWindow()) return nullptr;
    program.Press(VK_DOWN, kColorsRow);
    program.Press(VK_RETURN);
    const HWND page = program.WaitForPopup();
    program.Press(VK_UP);
    program.Press(VK_RIGHT);
    return WaitUntil([&] { return IsWindowVisible(GetDlgItem(page, kSchemes)); }) ? page : nullptr;
  }
  // Answers the message or the question that a button leads to.
  static bool PressAndAnswer(DrivenProgram& program, HWND page, int button, int answer) {
    PostMessageW(GetDlgItem(page, button), BM_CLICK, 0, 0);
    return WaitUntil([&] {
      const HWND box = GetLastActivePopup(program.Main());
      return box != page && IsReady(box) && PostMessageW(box, WM_COMMAND, answer, 0);
    });
  }
  static void Apply(DrivenProgram& program, int line) {
    const HWND page = OpenSchemes(program);
    for (const WPARAM key : {VK_END, VK_HOME, line ? VK_DOWN : VK_HOME}) {
      SendMessageW(GetDlgItem(page, kSchemes), WM_KEYDOWN, key, 1);
    }
    ASSERT_TRUE(PressAndAnswer(program, page, kApply, IDYES));
  }
  // Many values, so that the work on them takes a while. Returns the tree.
  static std::string SetState(int number) {
    const std::string value = "\"=dword:0000000" + std::to_string(number) + '\n';
    std::string text = "[HKEY_CURRENT_USER\\Software\\Velmont\\Tidewell\\Fonts]\n\"FontGnrlSize" +
                       value + "\n[HKEY_CURRENT_USER\\Software\\Velmont\\Tidewell\\Colors]\n";
    for (int i = 0; i < 300; ++i) text += "\"Own" + std::to_string(i * number) + value;
    ForgetProductKeys();
    EXPECT_TRUE(ImportRegistry(text));
    return QueryProductTree();
  }

  std::mt19937 random_{20261122};
};

TEST_F(SchemeDeviceTest, ASavedStateComesBackAndAKilledApplicationCanBeUndone) {
  const std::string saved = SetState(1);
  {
    DrivenProgram program;
    const HWND page = OpenSchemes(program);
    SendMessageW(GetDlgItem(page, kName), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"AAA"));
    ASSERT_TRUE(PressAndAnswer(program, page, kSave, IDOK));
  }
  const std::string present = SetState(2);
  const HMODULE library = LoadLibraryW(HOOK_LIBRARY);
  const HHOOK hook =
      SetWindowsHookExW(WH_CALLWNDPROC,
                        reinterpret_cast<HOOKPROC>(
                            reinterpret_cast<void*>(GetProcAddress(library, "HearTodayScreen"))),
                        library, GetWindowThreadProcessId(GetDesktopWindow(), nullptr));
  {
    DrivenProgram program;
    Apply(program, 0);
    EXPECT_TRUE(program.Ended());
  }
  EXPECT_EQ(QueryProductTree(), saved);
  const UINT asked = RegisterWindowMessageW(L"TidewellTodayScreen");
  ASSERT_TRUE(WaitUntil([&] { return listener_.Count(asked) == 1; }));
  EXPECT_EQ(listener_.messages.back().wParam, 0xF2u);
  UnhookWindowsHookEx(hook);
  for (int i = 0; i < kKills; ++i) {
    ASSERT_EQ(SetState(2), present);
    DeleteFileW(kBefore.c_str());
    {
      DrivenProgram program;
      Apply(program, 0);
      ASSERT_TRUE(WaitUntil([] { return std::filesystem::exists(kBefore); }));
      Sleep(std::uniform_int_distribution<DWORD>(0, 60)(random_));
    }
    DrivenProgram again;
    Apply(again, 1);
    EXPECT_TRUE(again.Ended());
    EXPECT_EQ(QueryProductTree(), present) << i;
  }
}

}  // namespace

}  // namespace tidewell::device
