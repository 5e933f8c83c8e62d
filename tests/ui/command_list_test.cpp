#include "ui/command_list.h"

#include <gtest/gtest.h>

#include "tests/support/window_support.h"
#include "ui/look.h"

namespace tidewell {

namespace {

constexpr int kWidth = 240;
constexpr int kHeight = 150;  // four rows and a bit

class CommandListTest : public testing::Test {
 protected:
  CommandListTest() {
    list.Create(window.Get(), ScreenScale(), regular.Get(), bold.Get(),
                [this](int command) { ran.push_back(command); });
    ShowRows(10);
  }

  void ShowRows(int count) {
    std::vector<CommandEntry> entries;
    for (int i = 0; i < count; ++i) {
      entries.push_back({L"Row " + std::to_wstring(i), Picture(), 100 + i});
    }
    list.Show(std::move(entries), kWidth, kHeight);
  }

  void TapAt(LONG x, LONG y) {
    list.Pointer().PointerDown({x, y});
    list.Pointer().PointerUp({x, y});
  }

  int Offset() { return list.Pointer().Scroller().Offset(); }

  // Whether the row's background is that of the selection; rows count from the view's top.
  bool LooksSelected(int row) {
    const WindowDc dc(window.Get());
    list.Paint(dc.Dc());
    return Screenshot(window.Get()).At(2, row * list.RowHeight() + 1) != kPaper;
  }

  TestWindow window{WS_POPUP | WS_VISIBLE, 0, {0, 0, kWidth, kHeight}};
  Font regular = TahomaFont(12, FW_NORMAL);
  Font bold = TahomaFont(12, FW_BOLD);
  CommandList list;
  std::vector<int> ran;
};

TEST_F(CommandListTest, TheSelectionStartsAtTheTopAndStaysInView) {
  EXPECT_TRUE(LooksSelected(0));
  EXPECT_FALSE(LooksSelected(1));
  list.RunSelected();
  EXPECT_EQ(ran, std::vector{100});
  for (int i = 0; i < 20; ++i) list.MoveSelection(1);
  EXPECT_EQ(list.Selected(), 9u);
  EXPECT_EQ(Offset(), kHeight - 10 * list.RowHeight());
  list.MoveSelection(-1);
  EXPECT_EQ(Offset(), kHeight - 10 * list.RowHeight());
  for (int i = 0; i < 20; ++i) list.MoveSelection(-1);
  EXPECT_EQ(list.Selected(), 0u);
  EXPECT_EQ(Offset(), 0);
}

TEST_F(CommandListTest, ATapSelectsAndRunsTheRowThatIsThere) {
  TapAt(kWidth - 1, 2 * list.RowHeight() + 3);
  EXPECT_EQ(list.Selected(), 2u);
  EXPECT_EQ(ran, std::vector{102});
  EXPECT_TRUE(LooksSelected(2));
  for (const int rows : {2, 0}) {
    ShowRows(rows);
    TapAt(5, 3 * list.RowHeight());
    EXPECT_EQ(list.Selected(), 0u);
  }
  list.MoveSelection(1);
  list.MoveSelection(-1);
  list.RunSelected();
  EXPECT_EQ(ran, std::vector{102});
}

TEST_F(CommandListTest, AHeldRowLooksSelectedUntilItIsDragged) {
  list.Pointer().PointerDown({5, list.RowHeight() + 3});
  list.Pointer().Timer(kHoldTimer);
  EXPECT_TRUE(LooksSelected(1));
  EXPECT_FALSE(LooksSelected(0));
  list.Pointer().PointerMove({5, list.RowHeight() + 23});
  list.Pointer().PointerMove({5, list.RowHeight() + 3});
  EXPECT_FALSE(LooksSelected(1));
  EXPECT_TRUE(LooksSelected(0));
  list.Pointer().PointerUp({5, list.RowHeight() + 3});
  EXPECT_TRUE(ran.empty());
}

TEST_F(CommandListTest, OtherEntriesMayBeShownByACommand) {
  list.Create(window.Get(), ScreenScale(), regular.Get(), bold.Get(), [this](int) { ShowRows(3); });
  TapAt(5, 3);
  EXPECT_EQ(list.Entries().size(), 3u);
}

}  // namespace

}  // namespace tidewell
