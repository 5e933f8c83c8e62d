#include <aygshell.h>
#include <gtest/gtest.h>

#include "platform/desktop/shell_look.h"
#include "tests/support/window_support.h"

namespace tidewell {
namespace {

constexpr DWORD kCaptionOk = static_cast<DWORD>(WS_EX_CAPTIONOKBTN);

// What its keys do, the dialogs' tests tell.
TEST(MenuBarTest, LiesAtTheBottomOfTheScreenHidesWithItsWindowAndEndsWithIt) {
  const TestWindow full(0x14000800, kCaptionOk, kDefaultPlace);
  const TestWindow window(0x90000800, kCaptionOk, {0, 60, 200, 200});
  SHMENUBARINFO info{};
  info.cbSize = sizeof info;
  info.hwndParent = window.Get();
  info.dwFlags = SHCMBF_EMPTYBAR;
  ASSERT_TRUE(SHCreateMenuBar(&info));
  RECT wanted = WindowRect(full.Get());
  wanted.top = wanted.bottom - ShellScale().ScaleY(26);
  const RECT place = WindowRect(info.hwndMB);
  EXPECT_TRUE(EqualRect(&place, &wanted));
  EXPECT_TRUE(IsWindowVisible(info.hwndMB));
  EXPECT_EQ(SHFindMenuBar(window.Get()), info.hwndMB);
  ShowWindow(window.Get(), SW_HIDE);
  EXPECT_FALSE(IsWindowVisible(info.hwndMB));
  DestroyWindow(window.Get());
  EXPECT_FALSE(IsWindow(info.hwndMB));
}

}  // namespace
}  // namespace tidewell
