#include "ui/command_bar.h"

#include <gtest/gtest.h>

namespace tidewell {

namespace {

constexpr RECT kBar{0, 200, 250, 240};

TEST(CommandBar, KeepsItsHeightOnLowResolutions) {
  EXPECT_EQ(CommandBar::Height(ScreenScale(96, 96, false)), 40);
  EXPECT_EQ(CommandBar::Height(ScreenScale(131, 131, false)), 40);
  EXPECT_EQ(CommandBar::Height(ScreenScale(192, 192, false)), 80);
  EXPECT_EQ(CommandBar::Height(ScreenScale(96, 96, true)), 80);
}

TEST(CommandBar, TellsTheCommandOfTheButtonAtAPoint) {
  CommandBar bar;
  bar.SetButton(CommandBar::kLeftSlot, Picture(), 7);
  bar.SetButton(CommandBar::kRightSlot, Picture(), 8);
  EXPECT_EQ(bar.CommandAt(kBar, {0, 200}), 7);
  EXPECT_EQ(bar.CommandAt(kBar, {49, 239}), 7);
  EXPECT_EQ(bar.CommandAt(kBar, {50, 220}), std::nullopt);
  EXPECT_EQ(bar.CommandAt(kBar, {200, 220}), 8);
  EXPECT_EQ(bar.CommandAt(kBar, {249, 220}), 8);
  EXPECT_EQ(bar.CommandAt(kBar, {249, 199}), std::nullopt);
  bar.RemoveButton(CommandBar::kLeftSlot);
  EXPECT_EQ(bar.CommandAt(kBar, {10, 220}), std::nullopt);
}

}  // namespace

}  // namespace tidewell
