#include "pages/page_layout.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "pages/scroll_range.h"

namespace tidewell {
namespace {

// Each character is as wide as the next.
class FixedMeasure final : public TextMeasure {
 public:
  int Width(const std::wstring& text) override { return static_cast<int>(text.size()) * 6; }
  int Height(const std::wstring& text, int width) override {
    int lines = 1;
    int line = 0;
    for (std::size_t start = 0; start < text.size();) {
      const std::size_t end = std::min(text.find(L' ', start), text.size());
      const int word = static_cast<int>(end - start) * 6;
      if (line > 0 && line + 6 + word > width) {
        ++lines;
        line = 0;
      }
      line += word + (line > 0 ? 6 : 0);
      start = end + 1;
    }
    return lines * 14;
  }
};

class Layout : public testing::Test {
 protected:
  FixedMeasure measure;
  PageMetrics qvga{{96, 96, false}, 240, 268, measure};
  PageMetrics vga{{192, 192, false}, 480, 536, measure};
  PageMetrics doubled{{96, 96, true}, 480, 536, measure};
};

using Places = std::vector<ControlPlace>;

TEST_F(Layout, RowsStandWhereTheyAreExpected) {
  const RowPlace check = PlaceCheckRow(qvga, 1, L"Box", 8);
  EXPECT_EQ(check.controls, (Places{{1, {10, 8, 220, 20}}}));
  EXPECT_EQ(check.height, 24);
  const RowPlace combo = PlaceComboRow(qvga, 1, 2, L"Label", 32);
  EXPECT_EQ(combo.controls, (Places{{1, {0, 35, 100, 20}}, {2, {105, 32, 125, 100}}}));
  EXPECT_EQ(combo.height, 24);
  const RowPlace path = PlacePathRow(qvga, 1, 2, 3, 4, L"Path", 8);
  EXPECT_EQ(path.controls, (Places{{1, {0, 11, 100, 20}},
                                   {2, {105, 8, 125, 20}},
                                   {3, {135, 32, 45, 20}},
                                   {4, {185, 32, 45, 20}}}));
  EXPECT_EQ(path.height, 48);
  EXPECT_EQ(PlacePathEdit(qvga, 1, 2, 3, 8),
            (Places{{1, {10, 8, 120, 20}}, {2, {135, 8, 45, 20}}, {3, {185, 8, 45, 20}}}));
  EXPECT_EQ(PlaceList(qvga.scale, 240, 268, 8), (Rect{10, 76, 220, 164}));
  EXPECT_EQ(PlaceTabRow(qvga.scale, 240, 268), (Rect{-2, 247, 242, 21}));
}

TEST_F(Layout, TwiceTheResolutionIsTwiceTheSize) {
  for (const PageMetrics& metrics : {vga, doubled}) {
    const RowPlace combo = PlaceComboRow(metrics, 1, 2, L"Label", 64);
    EXPECT_EQ(combo.controls, (Places{{1, {0, 70, 200, 40}}, {2, {210, 64, 250, 200}}}));
    EXPECT_EQ(combo.height, 48);
    EXPECT_EQ(PlaceTabRow(metrics.scale, 480, 536), (Rect{-4, 493, 484, 43}));
  }
}

TEST_F(Layout, ALongCaptionWrapsAndItsRowGrows) {
  const RowPlace fits = PlaceComboRow(qvga, 1, 2, L"Sixteen letters.", 8);
  EXPECT_FALSE(fits.wraps);
  const RowPlace combo = PlaceComboRow(qvga, 1, 2, L"Two lines of a label", 8);
  EXPECT_TRUE(combo.wraps);
  EXPECT_EQ(combo.controls[0].rect, (Rect{0, 11, 100, 28}));
  EXPECT_EQ(combo.height, 34);
  const RowPlace check = PlaceCheckRow(qvga, 1, L"A caption that runs on under its check box", 8);
  EXPECT_EQ(check.controls[0].rect, (Rect{10, 8, 220, 28}));
  EXPECT_EQ(check.height, 32);
  // Two lines beside a path need no more than its two.
  EXPECT_EQ(PlacePathRow(qvga, 1, 2, 3, 4, L"Two lines of a label", 8).height, 48);
}

TEST_F(Layout, AWordThatIsWiderThanItsColumnEndsInAnEllipsis) {
  EXPECT_EQ(PlaceComboRow(qvga, 1, 2, L"Aufgabenerinnerung", 8).caption, L"Aufgabenerinner\u2026");
  EXPECT_EQ(PlaceComboRow(qvga, 1, 2, L"Die Aufgabenerinnerung an", 8).caption,
            L"Die Aufgabenerinner\u2026 an");
  EXPECT_EQ(ShortenWords(measure, L"wide", 3), L"w\u2026");
}

TEST_F(Layout, ARowCanStandCloser) {
  struct Group : SettingGroup {
    Group() : SettingGroup(SettingKey::kRoot) {}
    DwordSetting number{*this, L"number", 0};
  } group;
  EXPECT_EQ(PlaceRow(qvga, Check(1, 2, group.number).Closer(2), L"Box", 8).height, 22);
  EXPECT_EQ(PlaceRow(vga, Check(1, 2, group.number).Closer(2), L"Box", 8).height, 44);
}

TEST(Scrolling, StaysWithinItsEnds) {
  ScrollRange range;
  range.Resize(300, 200);
  EXPECT_TRUE(range.Needed());
  EXPECT_FALSE(range.ScrollBy(-5));
  EXPECT_TRUE(range.ScrollBy(250));
  EXPECT_EQ(range.Offset(), 100);
  EXPECT_FALSE(range.ScrollBy(1));
  EXPECT_TRUE(range.ScrollPage(-1, 24));
  EXPECT_EQ(range.Offset(), 0);
  range.ScrollTo(80);
  EXPECT_TRUE(range.Resize(220, 200)) << "less content leaves no gap below it";
  EXPECT_EQ(range.Offset(), 20);
  EXPECT_TRUE(range.Resize(190, 200));
  EXPECT_FALSE(range.Needed());
  EXPECT_EQ(range.Offset(), 0);
}

TEST(Scrolling, BringsARowIntoViewByTheShortestWay) {
  ScrollRange range;
  range.Resize(300, 100);
  EXPECT_FALSE(range.BringIntoView(76, 100));
  EXPECT_TRUE(range.BringIntoView(100, 124));
  EXPECT_EQ(range.Offset(), 24);
  EXPECT_FALSE(range.BringIntoView(24, 48));
  EXPECT_TRUE(range.BringIntoView(8, 32));
  EXPECT_EQ(range.Offset(), 8);
  EXPECT_TRUE(range.BringIntoView(100, 220)) << "what is higher than the view shows its top";
  EXPECT_EQ(range.Offset(), 100);
}

TEST(Scrolling, TheThumbShowsWhereTheViewIsAndMovesIt) {
  ScrollRange range;
  range.Resize(400, 200);
  EXPECT_EQ(range.ThumbOf(16), (ScrollRange::Thumb{0, 100}));
  EXPECT_TRUE(range.DragThumb(50, 16));
  EXPECT_EQ(range.Offset(), 100);
  EXPECT_EQ(range.ThumbOf(16), (ScrollRange::Thumb{50, 100}));
  range.DragThumb(1000, 16);
  EXPECT_EQ(range.Offset(), 200);
  range.Resize(40000, 200);
  EXPECT_EQ(range.ThumbOf(16).height, 16);
  range.Resize(100, 200);
  EXPECT_EQ(range.ThumbOf(16), ScrollRange::Thumb());
}

}  // namespace
}  // namespace tidewell
