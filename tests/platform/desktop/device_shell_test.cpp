#include "platform/desktop/device_shell.h"

#include <aygshell.h>
#include <gtest/gtest.h>

#include <tuple>

#include "platform/desktop/shell_look.h"
#include "tests/support/window_support.h"

namespace tidewell {

namespace {

constexpr wchar_t kTitleStrip[] = L"DeviceTitleStrip";
constexpr DWORD kCaptionOk = static_cast<DWORD>(WS_EX_CAPTIONOKBTN);
constexpr RECT kDefaultPlace{CW_USEDEFAULT, CW_USEDEFAULT, 0, 0};

int StripHeight() {
  return ShellScale().ScaleY(kStripHeight);
}
LONG Width(const RECT& rect) {
  return rect.right - rect.left;
}
LONG Height(const RECT& rect) {
  return rect.bottom - rect.top;
}
auto Edges(const RECT& rect) {
  return std::tuple(rect.left, rect.top, rect.right, rect.bottom);
}

RECT RightAbove(const RECT& rect) {
  return {rect.left, rect.top - StripHeight(), rect.right, rect.top};
}

POINT OkButton(HWND strip) {
  const RECT client = ClientRect(strip);
  return {client.right - client.bottom / 2, client.bottom / 2};
}

class DeviceShellTest : public testing::Test {
 protected:
  std::vector<int> Commands() const {
    std::vector<int> commands;
    for (const auto& message : window.messages) {
      if (message.id == WM_COMMAND) commands.push_back(LOWORD(message.wParam));
    }
    return commands;
  }

  // A program's main window, as a device's programs make it.
  TestWindow window{0x14000800, kCaptionOk, kDefaultPlace};
  HWND strip = FindStrip(window.Get(), kTitleStrip);
};

TEST_F(DeviceShellTest, AWindowOfDefaultPositionFillsTheScreenBelowItsTitle) {
  const RECT place = WindowRect(window.Get());
  ASSERT_NE(strip, nullptr);
  EXPECT_TRUE(IsWindowVisible(strip));
  EXPECT_EQ(Edges(WindowRect(strip)), Edges(RightAbove(place)));
  RECT screen;
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &screen, 0);
  if (Width(screen) <= 640 && Height(screen) <= 640) {
    screen.top += StripHeight();
    EXPECT_EQ(Edges(place), Edges(screen));
  } else {
    EXPECT_EQ(Width(place), 480);
    EXPECT_EQ(Height(place) + StripHeight(), 640);
  }
}

TEST_F(DeviceShellTest, NoFrameOfTheDesktopIsLeft) {
  EXPECT_EQ(Width(ClientRect(window.Get())), Width(WindowRect(window.Get())));
  EXPECT_EQ(Height(ClientRect(window.Get())), Height(WindowRect(window.Get())));
  EXPECT_EQ(GetWindowLongW(window.Get(), GWL_STYLE) & (WS_CAPTION | WS_THICKFRAME), 0);
}

TEST_F(DeviceShellTest, ATapOnOkSendsTheCommand) {
  Tap(strip, OkButton(strip));
  Tap(strip, {5, 5});
  EXPECT_EQ(Commands(), std::vector{IDOK});
}

TEST_F(DeviceShellTest, APressThatSlidesOffOkSendsNothing) {
  PostMessageW(strip, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(OkButton(strip).x, OkButton(strip).y));
  PostMessageW(strip, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
  PumpMessages();
  EXPECT_TRUE(Commands().empty());
}

TEST_F(DeviceShellTest, ADisabledWindowHearsNoOk) {
  EnableWindow(window.Get(), FALSE);
  Tap(strip, OkButton(strip));
  EXPECT_TRUE(Commands().empty());
}

TEST_F(DeviceShellTest, TheStripFollowsItsWindow) {
  RECT smaller = WindowRect(window.Get());
  InflateRect(&smaller, -20, -60);
  MoveWindow(window.Get(), smaller.left, smaller.top, Width(smaller), Height(smaller), TRUE);
  EXPECT_EQ(Edges(WindowRect(strip)), Edges(RightAbove(smaller)));
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
  const int middle = empty.Width() / 2;
  bool changed = false;
  for (int y = 0; y < empty.Height(); ++y) {
    for (int x = 0; x < middle; ++x) changed |= empty.At(x, y) != shown.At(x, y);
  }
  EXPECT_TRUE(changed);
}

TEST_F(DeviceShellTest, AWindowWithoutTheStyleIsLeftAlone) {
  const TestWindow plain(WS_POPUP | WS_VISIBLE, 0, {10, 10, 60, 60});
  EXPECT_EQ(FindStrip(plain.Get(), kTitleStrip), nullptr);
  EXPECT_EQ(Edges(WindowRect(plain.Get())), Edges({10, 10, 60, 60}));
}

TEST_F(DeviceShellTest, TurningTheScreenTellsEveryWindowAndMovesIt) {
  const RECT place = WindowRect(window.Get());
  const TestWindow page(0x90000800, kCaptionOk, place, window.Get());
  const LONG height = Height(place) + StripHeight();
  if (height == Width(place)) GTEST_SKIP() << "a square screen looks the same when it is turned";
  const bool wasPortrait = height > Width(place);
  window.messages.clear();

  TurnScreen();
  const RECT turned = WindowRect(window.Get());
  const bool isPortrait = Height(turned) + StripHeight() > Width(turned);
  EXPECT_NE(isPortrait, wasPortrait);
  EXPECT_EQ(Edges(WindowRect(strip)), Edges(RightAbove(turned)));
  EXPECT_EQ(Edges(WindowRect(page.Get())), Edges(turned));
  EXPECT_EQ(window.Count(WM_SIZE), 1);
  int resets = 0;
  for (const auto& message : window.messages) {
    resets += message.id == WM_SETTINGCHANGE && message.wParam == SETTINGCHANGE_RESET;
  }
  EXPECT_EQ(resets, 1);

  TurnScreen();
  PumpMessages();
}

TEST_F(DeviceShellTest, AWindowBroughtForwardLeavesTheActivationWithItsPopup) {
  const TestWindow page(0x90000800, kCaptionOk, WindowRect(window.Get()), window.Get());
  SetActiveWindow(page.Get());
  PumpMessages();
  SetActiveWindow(window.Get());
  PumpMessages();
  EXPECT_EQ(GetActiveWindow(), page.Get());
}

TEST_F(DeviceShellTest, TheDoneButtonComesAndGoes) {
  EXPECT_TRUE(SHDoneButton(window.Get(), SHDB_HIDE));
  Tap(strip, OkButton(strip));
  EXPECT_TRUE(Commands().empty());
  EXPECT_TRUE(SHDoneButton(window.Get(), SHDB_SHOWCANCEL));
  Tap(strip, OkButton(strip));
  EXPECT_EQ(Commands(), std::vector{IDCANCEL});
}

TEST_F(DeviceShellTest, TheFocusReturnsToWhereItWas) {
  const HWND edit = CreateWindowExW(0, L"edit", L"", WS_CHILD | WS_VISIBLE, 0, 0, 50, 20,
                                    window.Get(), nullptr, nullptr, nullptr);
  SHACTIVATEINFO info{};
  info.cbSize = sizeof info;
  SetFocus(edit);
  SHHandleWMActivate(window.Get(), WA_INACTIVE, 0, &info, 0);
  SetFocus(window.Get());
  SHHandleWMActivate(window.Get(), WA_ACTIVE, 0, &info, 0);
  EXPECT_EQ(GetFocus(), edit);
}

INT_PTR CALLBACK NoDialogProc(HWND, UINT, WPARAM, LPARAM) {
  return FALSE;
}

TEST_F(DeviceShellTest, ADialogFillsTheScreenAsItAsksTo) {
  struct {
    DLGTEMPLATE header{WS_POPUP | WS_VISIBLE | WS_CAPTION, 0, 0, 0, 0, 10, 10};
    WORD menuClassTitle[3]{};
  } const dialogTemplate;
  struct Case {
    DWORD flags;
    bool hasBar;
  };
  for (const Case c :
       {Case{SHIDIF_DONEBUTTON | SHIDIF_FULLSCREENNOMENUBAR, false},
        Case{SHIDIF_DONEBUTTON | SHIDIF_SIZEDLGFULLSCREEN | SHIDIF_EMPTYMENU, true}}) {
    const HWND dialog =
        CreateDialogIndirectParamW(nullptr, &dialogTemplate.header, window.Get(), NoDialogProc, 0);
    SHINITDLGINFO info{SHIDIM_FLAGS, dialog, c.flags};
    EXPECT_TRUE(SHInitDialog(&info));
    RECT wanted = WindowRect(window.Get());
    if (c.hasBar) wanted.bottom -= StripHeight();
    EXPECT_EQ(Edges(WindowRect(dialog)), Edges(wanted)) << c.flags;
    EXPECT_EQ(Width(ClientRect(dialog)), Width(wanted)) << c.flags;
    EXPECT_NE(FindStrip(dialog, kTitleStrip), nullptr) << c.flags;
    EXPECT_EQ(SHFindMenuBar(dialog) != nullptr, c.hasBar) << c.flags;
    DestroyWindow(dialog);
  }
}

}  // namespace

}  // namespace tidewell
