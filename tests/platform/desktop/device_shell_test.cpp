#include "platform/desktop/device_shell.h"

#include <aygshell.h>
#include <gtest/gtest.h>

#include "platform/desktop/device_room.h"
#include "platform/desktop/shell_look.h"
#include "tests/support/window_support.h"

namespace tidewell {
namespace {

constexpr wchar_t kTitleStrip[] = L"DeviceTitleStrip";
constexpr DWORD kCaptionOk = static_cast<DWORD>(WS_EX_CAPTIONOKBTN);

int StripHeight() {
  return ShellScale().ScaleY(kStripHeight);
}

void ExpectSame(const RECT& found, const RECT& wanted) {
  EXPECT_TRUE(EqualRect(&found, &wanted))
      << found.left << " " << found.top << " " << found.right << " " << found.bottom;
}

TEST(DeviceRoom, IsTheWholeOfADeviceScreenAndAPartOfALargerDesktop) {
  const struct {
    RECT workArea;
    bool turned;
    RECT room;
  } cases[] = {
      {{0, 0, 640, 480}, false, {0, 0, 640, 480}},
      {{0, 0, 480, 640}, true, {0, 140, 480, 500}},
      {{0, 0, 1920, 1040}, false, {720, 200, 1200, 840}},
      {{0, 0, 1920, 1040}, true, {640, 280, 1280, 760}},
  };
  for (const auto& c : cases) ExpectSame(DeviceRoom(c.workArea, c.turned), c.room);
}

class DeviceShellTest : public testing::Test {
 protected:
  void ExpectStripAbove(const RECT& place) {
    ExpectSame(WindowRect(strip), {place.left, place.top - StripHeight(), place.right, place.top});
  }

  // A program's main window, as a device's programs make it.
  TestWindow window{0x14000800, kCaptionOk, kDefaultPlace};
  HWND strip = FindOwnWindow(kTitleStrip, window.Get());
  POINT ok{ClientArea(strip).right - ClientArea(strip).bottom / 2, ClientArea(strip).bottom / 2};
};

TEST_F(DeviceShellTest, ATapOnTheTitlesButtonSendsItsCommand) {
  Tap(strip, ok);
  Tap(strip, {5, 5});
  EnableWindow(window.Get(), FALSE);
  Tap(strip, ok);
  EnableWindow(window.Get(), TRUE);
  SHDoneButton(window.Get(), SHDB_SHOWCANCEL);
  Tap(strip, ok);
  EXPECT_EQ(window.TakeCommands(), (std::vector<int>{IDOK, IDCANCEL}));
}

TEST_F(DeviceShellTest, TheStripFollowsItsWindowAndShowsItsCaption) {
  ExpectStripAbove(WindowRect(window.Get()));
  SHDoneButton(window.Get(), SHDB_HIDE);
  for (const wchar_t* caption : {L"", L"A caption"}) {
    SetWindowTextW(window.Get(), caption);
    PumpMessages();
    EXPECT_EQ(Screenshot(strip).FirstDrawnRow(0) < StripHeight(), *caption != 0);
  }
  MoveWindow(window.Get(), 20, 90, 100, 80, TRUE);
  ExpectStripAbove({20, 90, 120, 170});
  ShowWindow(window.Get(), SW_HIDE);
  EXPECT_FALSE(IsWindowVisible(strip));
  DestroyWindow(window.Get());
  EXPECT_FALSE(IsWindow(strip));
}

TEST_F(DeviceShellTest, TurningTheScreenTellsEveryWindowAndMovesIt) {
  const TestWindow page(0x90000800, kCaptionOk, WindowRect(window.Get()), window.Get());
  // The window's height, title strip and all, less its width.
  const auto heightOverWidth = [&] {
    const RECT client = ClientArea(window.Get());
    return client.bottom + StripHeight() - client.right;
  };
  const LONG before = heightOverWidth();
  window.messages.clear();
  TurnScreen();
  EXPECT_LE(heightOverWidth() * before, 0) << "a square screen stays square";
  ExpectStripAbove(WindowRect(window.Get()));
  ExpectSame(WindowRect(page.Get()), WindowRect(window.Get()));
  EXPECT_EQ(window.Count(WM_SETTINGCHANGE), 1);
  TurnScreen();
  PumpMessages();
}

TEST_F(DeviceShellTest, ActivationGoesToThePopupAndFocusToWhereItWas) {
  const HWND edit = CreateWindowExW(0, L"edit", L"", WS_CHILD | WS_VISIBLE, 0, 0, 50, 20,
                                    window.Get(), nullptr, nullptr, nullptr);
  SHACTIVATEINFO info{};
  info.cbSize = sizeof info;
  SetFocus(edit);
  SHHandleWMActivate(window.Get(), WA_INACTIVE, 0, &info, 0);
  SetFocus(window.Get());
  SHHandleWMActivate(window.Get(), WA_ACTIVE, 0, &info, 0);
  EXPECT_EQ(GetFocus(), edit);

  const TestWindow page(0x90000800, kCaptionOk, WindowRect(window.Get()), window.Get());
  SetActiveWindow(window.Get());
  PumpMessages();
  EXPECT_EQ(GetActiveWindow(), page.Get());
}

// What its keys do, the dialogs' tests tell.
TEST_F(DeviceShellTest, AMenuBarLiesAtTheBottomHidesWithItsWindowAndEndsWithIt) {
  RECT wanted = WindowRect(window.Get());
  wanted.top = wanted.bottom - ShellScale().ScaleY(26);
  MoveWindow(window.Get(), 0, 60, 200, 140, FALSE);
  SHMENUBARINFO info{sizeof info, window.Get(), SHCMBF_EMPTYBAR, 0, nullptr, 0, 0, nullptr, 0};
  ASSERT_TRUE(SHCreateMenuBar(&info));
  ExpectSame(WindowRect(info.hwndMB), wanted);
  EXPECT_TRUE(IsWindowVisible(info.hwndMB));
  EXPECT_EQ(SHFindMenuBar(window.Get()), info.hwndMB);
  ShowWindow(window.Get(), SW_HIDE);
  EXPECT_FALSE(IsWindowVisible(info.hwndMB));
  DestroyWindow(window.Get());
  EXPECT_FALSE(IsWindow(info.hwndMB));
}

TEST_F(DeviceShellTest, ADialogFillsTheScreenAsItAsksTo) {
  const struct {
    DLGTEMPLATE header{WS_POPUP | WS_VISIBLE | WS_CAPTION, 0, 0, 0, 0, 10, 10};
    WORD menuClassTitle[3]{};
  } dialogTemplate;
  for (const bool hasBar : {false, true}) {
    SCOPED_TRACE(hasBar);
    const HWND dialog = CreateDialogIndirectParamW(
        nullptr, &dialogTemplate.header, window.Get(),
        [](HWND, UINT, WPARAM, LPARAM) -> INT_PTR { return FALSE; }, 0);
    const DWORD flags =
        hasBar ? SHIDIF_SIZEDLGFULLSCREEN | SHIDIF_EMPTYMENU : SHIDIF_FULLSCREENNOMENUBAR;
    SHINITDLGINFO info{SHIDIM_FLAGS, dialog, SHIDIF_DONEBUTTON | flags};
    EXPECT_TRUE(SHInitDialog(&info));
    RECT wanted = WindowRect(window.Get());
    if (hasBar) wanted.bottom -= StripHeight();
    ExpectSame(WindowRect(dialog), wanted);
    EXPECT_NE(FindOwnWindow(kTitleStrip, dialog), nullptr);
    EXPECT_EQ(SHFindMenuBar(dialog) != nullptr, hasBar);
    DestroyWindow(dialog);
  }
}

}  // namespace
}  // namespace tidewell
