#include "platform/desktop/menu_bar.h"

#include <aygshell.h>
#include <commctrl.h>
#include <gtest/gtest.h>

#include "platform/desktop/shell_look.h"
#include "tests/support/window_support.h"

namespace tidewell {
namespace {

constexpr UINT kSampleBar = 100;
constexpr UINT kBrokenBar = 103;
constexpr UINT kMenuOnly = 104;

class MenuBarTest : public testing::Test {
 protected:
  HWND CreateBar(UINT id, DWORD flags = 0) {
    SHMENUBARINFO info{};
    info.cbSize = sizeof info;
    info.hwndParent = window.Get();
    info.nToolBarId = id;
    info.hInstRes = GetModuleHandleW(nullptr);
    info.dwFlags = flags;
    return SHCreateMenuBar(&info) ? info.hwndMB : nullptr;
  }

  // The command that a tap on the left key sends; 0 for none.
  int TapKey(HWND bar) {
    Tap(bar, {5, 5});
    const std::vector<int> commands = window.TakeCommands();
    return commands.empty() ? 0 : commands.front();
  }

  TestWindow window{0x90000800, static_cast<DWORD>(WS_EX_CAPTIONOKBTN), {0, 60, 200, 200}};
};

TEST_F(MenuBarTest, TheLeftKeyComesFromTheResourceOrAMenu) {
  EXPECT_EQ(TapKey(CreateBar(kSampleBar)), 11);
  EXPECT_EQ(TapKey(CreateBar(kMenuOnly, SHCMBF_HMENU)), 31);
  EXPECT_EQ(TapKey(CreateBar(kSampleBar, SHCMBF_EMPTYBAR)), 0);
  EXPECT_EQ(TapKey(CreateBar(kBrokenBar)), 0);
}

TEST_F(MenuBarTest, KeysAreChangedByAToolbarsMessages) {
  const HWND bar = CreateBar(kSampleBar);
  EXPECT_TRUE(SendMessageW(bar, TB_ENABLEBUTTON, 11, FALSE));
  EXPECT_FALSE(SendMessageW(bar, TB_ISBUTTONENABLED, 11, 0));
  EXPECT_EQ(TapKey(bar), 0);

  TBBUTTONINFOW info{
      sizeof info, TBIF_COMMAND | TBIF_STATE, 15, 0, TBSTATE_ENABLED, 0, 0, 0, nullptr, 0};
  EXPECT_TRUE(SendMessageW(bar, TB_SETBUTTONINFOW, 11, reinterpret_cast<LPARAM>(&info)));
  EXPECT_EQ(TapKey(bar), 15);
}

TEST_F(MenuBarTest, LiesAtTheBottomOfTheScreenHidesWithItsWindowAndEndsWithIt) {
  const TestWindow full(0x14000800, static_cast<DWORD>(WS_EX_CAPTIONOKBTN), kDefaultPlace);
  const HWND bar = CreateBar(kSampleBar);
  RECT wanted = WindowRect(full.Get());
  wanted.top = wanted.bottom - ShellScale().ScaleY(26);
  const RECT place = WindowRect(bar);
  EXPECT_TRUE(EqualRect(&place, &wanted));
  EXPECT_TRUE(IsWindowVisible(bar));
  EXPECT_EQ(SHFindMenuBar(window.Get()), bar);
  ShowWindow(window.Get(), SW_HIDE);
  EXPECT_FALSE(IsWindowVisible(bar));
  DestroyWindow(window.Get());
  EXPECT_FALSE(IsWindow(bar));
}

}  // namespace
}  // namespace tidewell
