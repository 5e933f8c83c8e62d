// What the desktop supplies in a device's stead.
#include <windows.h>

#include <aygshell.h>
#include <gtest/gtest.h>

#include <string>

#include "platform/desktop/device_shell.h"
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

// ---- Message boxes

HWND Box() {
  return FindOwnWindow(L"#32770");
}

// As the box's own loop takes them.
void PressInBox(WPARAM key) {
  PostMessageW(GetFocus(), WM_KEYDOWN, key, 1);
  for (MSG message; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE);) {
    if (!IsDialogMessageW(Box(), &message)) DispatchMessageW(&message);
  }
}

// 0 when the box is still there after the keys.
int AnswerTo(UINT type, const std::vector<WPARAM>& keys) {
  const InModalLoop act([&] {
    for (const WPARAM key : keys) PressInBox(key);
    if (IsWindowVisible(Box())) EndDialog(Box(), 0);
  });
  return MessageBoxW(nullptr, L"Exit without saving?", L"Exit", type);
}

TEST(MessageBoxTest, KeysAnswerAsTheBoxAllows) {
  const struct {
    UINT type;
    std::vector<WPARAM> keys;
    int answer;
  } cases[] = {
      {MB_OK, {VK_ESCAPE}, IDOK},
      {MB_OKCANCEL, {VK_ESCAPE}, IDCANCEL},
      {MB_YESNOCANCEL, {VK_ESCAPE}, IDCANCEL},
      {MB_YESNO, {VK_ESCAPE}, 0},
      {MB_YESNO | MB_DEFBUTTON2, {VK_RETURN}, IDNO},
      {MB_YESNO, {VK_RIGHT, VK_RETURN}, IDNO},
      {MB_YESNO | MB_DEFBUTTON2, {VK_TAB, VK_RETURN}, IDYES},
      {MB_YESNOCANCEL, {'N'}, IDNO},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(AnswerTo(c.type, c.keys), c.answer) << c.type << " " << c.keys.front();
  }
}

TEST(MessageBoxTest, SpeaksTheProgramsLanguageAndHasAnXForCancelAlone) {
  SetMessageBoxWords({L"", L"Abbrechen", L"Ja", L"Nein"});
  const InModalLoop act([&] {
    EXPECT_EQ(CaptionOf(GetDlgItem(Box(), IDCANCEL)), L"&Abbrechen");
    EXPECT_EQ(CaptionOf(GetDlgItem(Box(), IDOK)), L"&OK");
    const HWND strip = FindOwnWindow(L"DeviceTitleStrip", Box());
    Tap(strip, {ClientArea(strip).right - 10, 10});
  });
  EXPECT_EQ(MessageBoxW(nullptr, L"Go on?", L"Exit", MB_OKCANCEL), IDCANCEL);
  SetMessageBoxWords({L"OK", L"Cancel", L"Yes", L"No"});
}

void ExpectPartsApart(HWND box) {
  RECT room = WindowRect(box);
  EXPECT_GE(room.left, ShellScale().ScaleX(8));
  EXPECT_LE(room.right, GetSystemMetrics(SM_CXSCREEN) - ShellScale().ScaleX(8));
  EXPECT_LE(room.bottom, GetSystemMetrics(SM_CYSCREEN) - ShellScale().ScaleY(8));
  std::vector<RECT> parts;
  for (HWND part = GetWindow(box, GW_CHILD); part; part = GetWindow(part, GW_HWNDNEXT)) {
    parts.push_back(WindowRect(part));
  }
  for (std::size_t i = 0; i < parts.size(); ++i) {
    RECT common;
    EXPECT_TRUE(UnionRect(&common, &parts[i], &room) && EqualRect(&common, &room)) << i;
    for (std::size_t k = i + 1; k < parts.size(); ++k) {
      EXPECT_FALSE(IntersectRect(&common, &parts[i], &parts[k])) << i << " and " << k;
    }
  }
}

TEST(MessageBoxTest, ATextOfAnyLengthKeepsToTheScreenAndCanBeReadWhole) {
  std::wstring text;
  for (int words = 0; words < 120; ++words) text += L"Exit without saving? ";
  const std::wstring path(90, L'w');  // no blank to break at
  for (const std::wstring& each : {text.substr(0, 21), text.substr(0, 420), text, path}) {
    SCOPED_TRACE(each.size());
    const InModalLoop act([&] {
      TurnScreen();
      ExpectPartsApart(Box());
      TurnScreen();
      ExpectPartsApart(Box());
      const HWND shown = FindWindowExW(Box(), nullptr, L"Edit", nullptr);
      const LRESULT lines = SendMessageW(shown, EM_GETLINECOUNT, 0, 0);
      const bool fits = lines * ShellScale().ScaleY(14) <= ClientArea(shown).bottom + 2 * lines;
      EXPECT_NE(fits, (GetWindowLongW(shown, GWL_STYLE) & WS_VSCROLL) != 0);
      EndDialog(Box(), IDNO);
    });
    EXPECT_EQ(MessageBoxW(nullptr, each.c_str(), L"Exit", MB_YESNO | MB_ICONWARNING), IDNO);
  }
}

}  // namespace
}  // namespace tidewell
