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

  // The command that a tap on a key has sent since the last call; 0 for none.
  int TapKey(HWND bar, bool right) {
    window.messages.clear();
    const RECT client = ClientRect(bar);
    Tap(bar, {right ? client.right * 3 / 4 : client.right / 4, client.bottom / 2});
    for (const auto& message : window.messages) {
      if (message.id == WM_COMMAND) return LOWORD(message.wParam);
    }
    return 0;
  }

  TestWindow window{0x90000800, static_cast<DWORD>(WS_EX_CAPTIONOKBTN), {0, 60, 200, 200}};
};

TEST_F(MenuBarTest, LiesAlongTheBottomOfTheScreen) {
  const TestWindow full(0x14000800, static_cast<DWORD>(WS_EX_CAPTIONOKBTN),
                        {CW_USEDEFAULT, CW_USEDEFAULT, 0, 0});
  const HWND bar = CreateBar(0, SHCMBF_EMPTYBAR);
  const RECT place = WindowRect(bar);
  const RECT screen = WindowRect(full.Get());
  EXPECT_EQ(place.left, screen.left);
  EXPECT_EQ(place.right, screen.right);
  EXPECT_EQ(place.bottom, screen.bottom);
  EXPECT_EQ(place.bottom - place.top, ShellScale().ScaleY(26));
  EXPECT_TRUE(IsWindowVisible(bar));
  EXPECT_EQ(SHFindMenuBar(window.Get()), bar);
}

TEST_F(MenuBarTest, KeysComeFromTheResource) {
  const HWND bar = CreateBar(kSampleBar);
  EXPECT_EQ(TapKey(bar, false), 11);
  const auto popup = reinterpret_cast<HMENU>(SendMessageW(bar, SHCMBM_GETSUBMENU, 0, 12));
  ASSERT_EQ(GetMenuItemCount(popup), 2);
  EXPECT_EQ(GetMenuItemID(popup, 1), 22u);
}

TEST_F(MenuBarTest, ABarMayBeAMenu) {
  const HWND bar = CreateBar(kMenuOnly, SHCMBF_HMENU);
  EXPECT_EQ(TapKey(bar, false), 31);
  EXPECT_EQ(GetMenuItemCount(reinterpret_cast<HMENU>(SendMessageW(bar, SHCMBM_GETMENU, 0, 0))), 2);
}

TEST_F(MenuBarTest, BarsWithoutKeysSendNothing) {
  const struct {
    UINT id;
    DWORD flags;
  } cases[] = {{kSampleBar, SHCMBF_EMPTYBAR}, {kBrokenBar, 0}, {9999, 0}, {9999, SHCMBF_HMENU}};
  for (const auto& c : cases) {
    const HWND bar = CreateBar(c.id, c.flags);
    ASSERT_NE(bar, nullptr) << c.id;
    EXPECT_EQ(TapKey(bar, false), 0) << c.id;
    EXPECT_EQ(TapKey(bar, true), 0) << c.id;
  }
}

TEST_F(MenuBarTest, KeysAreChangedByAToolbarsMessages) {
  const HWND bar = CreateBar(kSampleBar);
  EXPECT_TRUE(SendMessageW(bar, TB_ENABLEBUTTON, 11, FALSE));
  EXPECT_FALSE(SendMessageW(bar, TB_ISBUTTONENABLED, 11, 0));
  EXPECT_EQ(TapKey(bar, false), 0);
  EXPECT_FALSE(SendMessageW(bar, TB_ENABLEBUTTON, 77, TRUE));

  TBBUTTONINFOW info{};
  info.cbSize = sizeof info;
  info.dwMask = TBIF_COMMAND | TBIF_STATE;
  info.idCommand = 15;
  info.fsState = TBSTATE_ENABLED;
  EXPECT_TRUE(SendMessageW(bar, TB_SETBUTTONINFOW, 11, reinterpret_cast<LPARAM>(&info)));
  EXPECT_EQ(TapKey(bar, false), 15);
}

TEST_F(MenuBarTest, AKeyOpensItsMenuAndTheChoiceIsACommand) {
  const HWND bar = CreateBar(kSampleBar);
  bool opened = false;
  const InModalLoop choose([&] {
    const HWND menu = FindOwnWindow(L"#32768");
    opened = menu != nullptr;
    PostMessageW(window.Get(), WM_KEYDOWN, VK_DOWN, 1);
    PostMessageW(window.Get(), WM_KEYDOWN, VK_RETURN, 1);
  });
  EXPECT_EQ(TapKey(bar, true), 21);
  EXPECT_TRUE(opened);
  EXPECT_EQ(window.Count(WM_INITMENUPOPUP), 1);
}

TEST_F(MenuBarTest, HidesWithItsWindowAndEndsWithIt) {
  const HWND bar = CreateBar(kSampleBar);
  ShowWindow(window.Get(), SW_HIDE);
  EXPECT_FALSE(IsWindowVisible(bar));
  DestroyWindow(window.Get());
  EXPECT_FALSE(IsWindow(bar));
}

}  // namespace

}  // namespace tidewell
