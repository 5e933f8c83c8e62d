#include "platform/desktop/device_shell.h"

#include <aygshell.h>
#include <gtest/gtest.h>

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

class DeviceShellTest : public testing::Test {
 protected:
  void ExpectStripAbove(const RECT& place) {
    ExpectSame(WindowRect(strip), {place.left, place.top - StripHeight(), place.right, place.top});
  }
  void ExpectTapOnOkSends(const std::vector<int>& commands) {
    Tap(strip, ok);
    EXPECT_EQ(window.TakeCommands(), commands);
  }
  // Taller than wide, title strip and all; nothing for a square screen.
  std::optional<bool> IsPortrait() {
    const RECT place = WindowRect(window.Get());
    const LONG height = place.bottom - place.top + StripHeight();
    if (height == place.right - place.left) return std::nullopt;
    return height > place.right - place.left;
  }

  // A program's main window, as a device's programs make it.
  TestWindow window{0x14000800, kCaptionOk, kDefaultPlace};
  HWND strip = FindStrip(window.Get(), kTitleStrip);
  POINT ok{ClientRect(strip).right - ClientRect(strip).bottom / 2, ClientRect(strip).bottom / 2};
};

TEST_F(DeviceShellTest, AWindowOfDefaultPositionFillsTheScreenBelowItsTitleWithoutAFrame) {
  ASSERT_NE(strip, nullptr);
  EXPECT_TRUE(IsWindowVisible(strip));
  const RECT place = WindowRect(window.Get());
  ExpectStripAbove(place);
  RECT screen;
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &screen, 0);
  screen.top += StripHeight();
  ExpectSame(place, screen);
  ExpectSame(ClientRect(window.Get()), {0, 0, screen.right, screen.bottom - screen.top});
  EXPECT_EQ(GetWindowLongW(window.Get(), GWL_STYLE) & (WS_CAPTION | WS_THICKFRAME), 0);

  const TestWindow plain(WS_POPUP | WS_VISIBLE, 0, {10, 10, 60, 60});
  EXPECT_EQ(FindStrip(plain.Get(), kTitleStrip), nullptr);
  ExpectSame(WindowRect(plain.Get()), {10, 10, 60, 60});
}

TEST_F(DeviceShellTest, ATapOnTheTitlesButtonSendsItsCommand) {
  ExpectTapOnOkSends({IDOK});
  Tap(strip, {5, 5});
  PostMessageW(strip, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(ok.x, ok.y));
  PostMessageW(strip, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
  PumpMessages();
  EXPECT_TRUE(window.TakeCommands().empty()) << "beside it, or a press that slid off";
  EnableWindow(window.Get(), FALSE);
  ExpectTapOnOkSends({});
  EnableWindow(window.Get(), TRUE);
  EXPECT_TRUE(SHDoneButton(window.Get(), SHDB_HIDE));
  ExpectTapOnOkSends({});
  EXPECT_TRUE(SHDoneButton(window.Get(), SHDB_SHOWCANCEL));
  ExpectTapOnOkSends({IDCANCEL});
}

TEST_F(DeviceShellTest, TheStripFollowsItsWindow) {
  MoveWindow(window.Get(), 20, 90, 100, 80, TRUE);
  ExpectStripAbove({20, 90, 120, 170});
  ShowWindow(window.Get(), SW_HIDE);
  EXPECT_FALSE(IsWindowVisible(strip));
  ShowWindow(window.Get(), SW_SHOW);
  EXPECT_TRUE(IsWindowVisible(strip));
  DestroyWindow(window.Get());
  EXPECT_FALSE(IsWindow(strip));
}

TEST_F(DeviceShellTest, TheStripShowsTheCaption) {
  PumpMessages();
  SetWindowTextW(window.Get(), L"");
  PumpMessages();
  const Screenshot empty(strip);
  SetWindowTextW(window.Get(), L"A caption");
  PumpMessages();
  const Screenshot shown(strip);
  bool changed = false;
  for (int y = 0; y < empty.Height(); ++y) {
    for (int x = 0; x < empty.Width() / 2; ++x) changed |= empty.At(x, y) != shown.At(x, y);
  }
  EXPECT_TRUE(changed);
}

TEST_F(DeviceShellTest, TurningTheScreenTellsEveryWindowAndMovesIt) {
  const TestWindow page(0x90000800, kCaptionOk, WindowRect(window.Get()), window.Get());
  const std::optional<bool> wasPortrait = IsPortrait();
  if (!wasPortrait) GTEST_SKIP() << "a square screen looks the same when it is turned";
  window.messages.clear();

  TurnScreen();
  EXPECT_EQ(IsPortrait(), !*wasPortrait);
  ExpectStripAbove(WindowRect(window.Get()));
  ExpectSame(WindowRect(page.Get()), WindowRect(window.Get()));
  EXPECT_EQ(window.Count(WM_SIZE), 1);
  int resets = 0;
  for (const auto& message : window.messages) {
    resets += message.id == WM_SETTINGCHANGE && message.wParam == SETTINGCHANGE_RESET;
  }
  EXPECT_EQ(resets, 1);
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

INT_PTR CALLBACK NoDialogProc(HWND, UINT, WPARAM, LPARAM) {
  return FALSE;
}

TEST_F(DeviceShellTest, ADialogFillsTheScreenAsItAsksTo) {
  const struct {
    DLGTEMPLATE header{WS_POPUP | WS_VISIBLE | WS_CAPTION, 0, 0, 0, 0, 10, 10};
    WORD menuClassTitle[3]{};
  } dialogTemplate;
  for (const bool hasBar : {false, true}) {
    SCOPED_TRACE(hasBar);
    const HWND dialog =
        CreateDialogIndirectParamW(nullptr, &dialogTemplate.header, window.Get(), NoDialogProc, 0);
    const DWORD flags =
        hasBar ? SHIDIF_SIZEDLGFULLSCREEN | SHIDIF_EMPTYMENU : SHIDIF_FULLSCREENNOMENUBAR;
    SHINITDLGINFO info{SHIDIM_FLAGS, dialog, SHIDIF_DONEBUTTON | flags};
    EXPECT_TRUE(SHInitDialog(&info));
    RECT wanted = WindowRect(window.Get());
    if (hasBar) wanted.bottom -= StripHeight();
    ExpectSame(WindowRect(dialog), wanted);
    EXPECT_EQ(ClientRect(dialog).right, wanted.right - wanted.left) << "no frame";
    EXPECT_NE(FindStrip(dialog, kTitleStrip), nullptr);
    EXPECT_EQ(SHFindMenuBar(dialog) != nullptr, hasBar);
    DestroyWindow(dialog);
  }
}

}  // namespace

}  // namespace tidewell
