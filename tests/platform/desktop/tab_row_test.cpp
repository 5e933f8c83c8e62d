#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/support/window_support.h"
#include "win32/common_controls.h"

namespace tidewell {
namespace {

class TabRowTest : public testing::Test {
 protected:
  TabRowTest() {
    LoadCommonControls();
    row = CreateWindowExW(0, WC_TABCONTROLW, L"", WS_CHILD | WS_VISIBLE | TCS_BOTTOM, -2, 180, 242,
                          21, window.Get(), nullptr, nullptr, nullptr);
    for (const wchar_t* title :
         {L"Allgemein", L"Anzeige", L"Terminerinnerung", L"Geburtstage", L"Kategoriefilter",
          L"Schriftarten", L"Hintergrund", L"Tidewell-Farben", L"Sonstiges"}) {
      TCITEMW item{};
      item.mask = TCIF_TEXT;
      item.pszText = const_cast<wchar_t*>(title);
      SendMessageW(row, TCM_INSERTITEMW, 99, reinterpret_cast<LPARAM>(&item));
    }
    PumpMessages();
  }
  // Where a tab lies; beyond the arrows it cannot be tapped.
  RECT Tab(int index) {
    RECT place{};
    EXPECT_TRUE(SendMessageW(row, TCM_GETITEMRECT, static_cast<WPARAM>(index),
                             reinterpret_cast<LPARAM>(&place)));
    return place;
  }
  bool IsWholeInView(int index) { return Tab(index).left >= 0 && Tab(index).right <= kArrows; }
  LRESULT Selected() { return SendMessageW(row, TCM_GETCURSEL, 0, 0); }

  static constexpr int kArrows = 242 - 2 * 28;
  TestWindow window{WS_POPUP | WS_VISIBLE, 0, {0, 60, 240, 261}};
  HWND row;
};

TEST_F(TabRowTest, ArrowsAndKeysBringEveryTabIntoViewAndATapSelectsIt) {
  ASSERT_GT(Tab(8).right, kArrows);
  for (int taps = 0; taps < 9; ++taps) Tap(row, {kArrows + 28 + 14, 10});
  EXPECT_TRUE(IsWholeInView(8));
  window.messages.clear();
  Tap(row, {Tab(8).left + 5, 10});
  EXPECT_EQ(Selected(), 8);
  EXPECT_EQ(window.Count(WM_NOTIFY), 3) << "before, after and the click";
  for (int taps = 0; taps < 9; ++taps) Tap(row, {kArrows + 14, 10});
  EXPECT_TRUE(IsWholeInView(0));
  EXPECT_EQ(Selected(), 8) << "scrolling does not select";
  SetFocus(row);
  PressKey(row, VK_LEFT);
  EXPECT_TRUE(IsWholeInView(7)) << "a key shows what it selects";
}

}  // namespace
}  // namespace tidewell
