#include <gtest/gtest.h>

#include <string>

#include "platform/desktop/device_shell.h"
#include "platform/desktop/shell_look.h"
#include "tests/support/window_support.h"

namespace tidewell {
namespace {

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
      {MB_OK, {VK_RETURN}, IDOK},
      {MB_OKCANCEL, {VK_ESCAPE}, IDCANCEL},
      {MB_YESNOCANCEL, {VK_ESCAPE}, IDCANCEL},
      {MB_YESNO, {VK_ESCAPE}, 0},
      {MB_YESNO, {VK_RETURN}, IDYES},
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
