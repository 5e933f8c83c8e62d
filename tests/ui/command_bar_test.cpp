#include "ui/command_bar.h"

#include <gtest/gtest.h>

namespace tidewell {

namespace {

TEST(CommandBar, TellsTheCommandOfTheButtonAtAPoint) {
  CommandBar bar;
  bar.SetButton(CommandBar::kLeftSlot, Picture(), 7);
  bar.SetButton(CommandBar::kRightSlot, Picture(), 8);
  const auto at = [&](LONG x, LONG y) {
    return bar.CommandAt({0, 200, 250, 240}, {x, y}).value_or(0);
  };
  EXPECT_EQ(at(0, 200), 7);
  EXPECT_EQ(at(49, 239), 7);
  EXPECT_EQ(at(50, 220), 0);
  EXPECT_EQ(at(200, 220), 8);
  EXPECT_EQ(at(249, 199), 0);
  bar.RemoveButton(CommandBar::kLeftSlot);
  EXPECT_EQ(at(10, 220), 0);
}

}  // namespace

}  // namespace tidewell
