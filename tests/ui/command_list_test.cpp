#include "ui/windows/command_list.h"

#include <gtest/gtest.h>

#include <random>

#include "tests/support/window_support.h"
#include "ui/windows/look.h"
#include "win32/tahoma.h"

namespace tidewell {
namespace {

constexpr int kWidth = 240;
constexpr int kHeight = 150;  // four rows and a bit

class CommandListTest : public testing::Test {
 protected:
  CommandListTest() {
    list.Create(window.Get(), ScreenScale(), regular.Get(), bold.Get(), [this](int command) {
      ran.push_back(command);
      ShowRows(3);
    });
    ShowRows(10);
  }

  void ShowRows(int count) {
    std::vector<CommandEntry> entries;
    for (int i = 0; i < count; ++i) {
      entries.push_back({L"Row " + std::to_wstring(i), Picture(), 100 + i});
    }
    list.Show(std::move(entries), kWidth, kHeight);
  }
  void TapRow(int row) {
    list.Pointer().PointerDown({5, row * list.RowHeight() + 3});
    list.Pointer().PointerUp({5, row * list.RowHeight() + 3});
  }
  int Offset() { return list.Pointer().Scroller().Offset(); }

  // Whether the row's background is that of the selection; rows count from the view's top.
  bool LooksSelected(int row) {
    list.Paint(WindowDc(window.Get()).Dc());
    return Screenshot(window.Get()).At(2, row * list.RowHeight() + 1) != kPaper;
  }

  // Every pixel of the list.
  std::vector<BYTE> Pixels() {
    const MemoryBitmap canvas(WindowDc(window.Get()).Dc(), kWidth, 2 * kHeight);
    list.Paint(canvas.Dc());
    std::vector<BYTE> bits(kWidth * 2 * kHeight * 4);
    GetBitmapBits(static_cast<HBITMAP>(GetCurrentObject(canvas.Dc(), OBJ_BITMAP)),
                  static_cast<LONG>(bits.size()), bits.data());
    return bits;
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
  for (int i = 0; i < 20; ++i) list.MoveSelection(1);
  EXPECT_EQ(list.Selected(), 9u);
  EXPECT_EQ(Offset(), kHeight - 10 * list.RowHeight());
  for (int i = 0; i < 20; ++i) list.MoveSelection(-1);
  EXPECT_EQ(list.Selected(), 0u);
  EXPECT_EQ(Offset(), 0);
}

TEST_F(CommandListTest, ATapRunsTheRowThatIsThereAndAHeldRowLooksSelectedUntilItIsDragged) {
  KineticList& finger = list.Pointer();
  finger.PointerDown({5, list.RowHeight() + 3});
  finger.Timer(kHoldTimer);
  EXPECT_TRUE(LooksSelected(1));
  EXPECT_FALSE(LooksSelected(0));
  finger.PointerMove({5, list.RowHeight() + 23});
  finger.PointerMove({5, list.RowHeight() + 3});
  EXPECT_FALSE(LooksSelected(1));
  finger.PointerUp({5, list.RowHeight() + 3});
  EXPECT_TRUE(ran.empty());
  TapRow(2);
  TapRow(3);
  EXPECT_EQ(ran, std::vector{102}) << "below the last row";
  ShowRows(0);
  TapRow(0);
  list.MoveSelection(1);
  list.RunSelected();
  EXPECT_EQ(ran, std::vector{102});
}

TEST_F(CommandListTest, HoweverItIsScrolledItLooksAsIfItWerePaintedWhole) {
  std::mt19937 random(7);
  const auto below = [&](unsigned end) { return static_cast<int>(random() % end); };
  const auto touch = [&] { return POINT{5, below(kHeight)}; };
  KineticList& finger = list.Pointer();
  const std::function<void()> steps[] = {
      [&] { finger.PointerDown(touch()); },
      [&] { finger.PointerMove(touch()); },
      [&] { finger.PointerMove(touch()); },
      [&] { finger.PointerUp(touch()); },
      [&] { finger.PointerLost(); },
      [&] { finger.Timer(kFlingTimer + static_cast<unsigned>(below(3))); },
      [&] { list.MoveSelection(below(2) * 2 - 1); },
      [&] { list.Resize(kWidth, kHeight + below(kHeight)); },
      [&] { ShowRows(below(20)); },
  };
  for (int step = 0; step < 2000; ++step) {
    steps[below(std::size(steps))]();
    if (below(4) != 0) continue;
    const std::vector<BYTE> shown = Pixels();
    finger.Redraw();
    ASSERT_TRUE(Pixels() == shown) << "after step " << step;
  }
}

}  // namespace
}  // namespace tidewell
