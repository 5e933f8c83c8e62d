#include "platform/text.h"

#include <gtest/gtest.h>

#include "platform/scale.h"

namespace tidewell {
namespace {

TEST(Text, CaseIsFoldedInTheAlphabetsOfTheShippedLanguagesAndTheirNeighbours) {
  EXPECT_TRUE(EqualIgnoringCase(L"\u00C4\u00D6\u00DC\u0416\u03A9\u0141\u017D",
                                L"\u00E4\u00F6\u00FC\u0436\u03C9\u0142\u017E"));
  EXPECT_FALSE(EqualIgnoringCase(L"\u00D7", L"\u00F7"));  // the multiplication and division signs
  EXPECT_LT(CompareFolded(L"abc", L"ABD"), 0);
}

TEST(ScreenScale, RoundsTheMagnitudeHalfUp) {
  const ScreenScale limit(136, 135, false);
  EXPECT_EQ(limit.ScaleX(40, true), 57);
  EXPECT_EQ(limit.ScaleY(40, true), 40) << "kept at few dots per inch";
  const ScreenScale medium(144, 143, false);
  EXPECT_EQ(medium.ScaleX(1), 2);
  EXPECT_EQ(medium.ScaleX(-1), -2);
  EXPECT_EQ(medium.ScaleY(-1), -1);
  EXPECT_EQ(ScreenScale(96, 96, true).ScaleX(40, true), 80);
}

}  // namespace
}  // namespace tidewell
