#include "pages/page_layout.h"

#include <gtest/gtest.h>

#include "pages/icon_layout.h"
#include "pages/scroll_range.h"
#include "tests/preview/recorder.h"

namespace tidewell {
namespace {

// Each character is as wide as the next.
class FixedMeasure final : public TextMeasure {
 public:
  int Width(const std::wstring& text) override { return static_cast<int>(text.size()) * 6; }
  int Height(const std::wstring& text, int width) override {
    return (Width(text) + width - 1) / width * 14;
  }
};

class Layout : public testing::Test {
 protected:
  FixedMeasure measure;
  PageMetrics qvga{{96, 96, false}, 240, 268, measure};
  PageMetrics vga{{192, 192, false}, 480, 536, measure};
  PageMetrics doubled{{96, 96, true}, 480, 536, measure};
  PageMetrics narrow{{96, 96, true}, 240, 268, measure};
};

// "id x,y widthxheight" of each control, and the row's height.
std::string Shown(const RowPlace& row) {
  std::string text;
  for (const ControlPlace& each : row.controls) {
    text += std::to_string(each.id) + ' ' + Utf8(each.rect) + ", ";
  }
  return text + std::to_string(row.height);
}

TEST_F(Layout, RowsStandWhereTheyAreExpected) {
  EXPECT_EQ(Shown(PlaceCheckRow(qvga, 1, L"Box", 8)), "1 10,8 220x20, 24");
  EXPECT_EQ(Shown(PlaceComboRow(qvga, 1, 2, L"Label", 32)), "1 0,35 100x20, 2 105,32 125x100, 24");
  EXPECT_EQ(Shown(PlacePathRow(qvga, 1, 2, 3, 4, L"Path", 8)),
            "1 0,11 100x20, 2 105,8 125x20, 3 135,32 45x20, 4 185,32 45x20, 48");
  EXPECT_EQ(Shown(PlacePathEdit(qvga, 1, 2, 3, 8)),
            "1 10,8 120x20, 2 135,8 45x20, 3 185,8 45x20, 24");
  EXPECT_EQ(PlaceList(qvga.scale, 240, 268, 8), (Rect{10, 76, 220, 164}));
  EXPECT_EQ(PlaceTabRow(qvga.scale, 240, 268), (Rect{-2, 247, 242, 21}));
  for (const PageMetrics& metrics : {vga, doubled}) {
    EXPECT_EQ(Shown(PlaceComboRow(metrics, 1, 2, L"Label", 64)),
              "1 0,70 200x40, 2 210,64 250x200, 48");
  }
}

TEST_F(Layout, StripsOfIconsStandBehindTheirLabelsOnTwoLines) {
  Row one, set;
  one.labelId = 1;
  one.controlId = 2;
  one.kind = RowKind::kIcon;
  set.labelId = 3;
  set.controlId = 4;
  set.kind = RowKind::kIcons;
  set.icons = AppointmentMarkerChoices();
  const TwoRowPicker picker{{one, one}, {set}};
  EXPECT_EQ(Shown(PlaceTwoRowPicker(qvga, picker, 8)),
            "1 0,10 98x18, 2 100,10 17x17, 1 120,10 98x18, 2 220,10 17x17, 3 0,31 98x18, "
            "4 100,31 129x17, 42");
  const RowPlace below = PlaceTwoRowPicker(narrow, picker, 16);
  EXPECT_EQ(below.controls[1].rect, (Rect{198, 62, 34, 34}));
  EXPECT_EQ(below.controls[5].rect, (Rect{0, 230, 258, 34}));
  EXPECT_EQ(below.height, 252);
}

TEST_F(Layout, ANarrowPageHasItsLabelsAboveTheControls) {
  EXPECT_EQ(Shown(PlaceComboRow(narrow, 1, 2, L"Label", 16)), "1 8,22 212x40, 2 20,62 200x200, 94");
  EXPECT_EQ(Shown(PlacePathRow(narrow, 1, 2, 3, 4, L"Path", 16)),
            "1 8,22 212x40, 2 20,62 200x40, 3 30,110 90x40, 4 130,110 90x40, 142");
  EXPECT_EQ(Shown(PlacePathEdit(narrow, 1, 2, 3, 16)),
            "1 20,16 200x40, 2 30,64 90x40, 3 130,64 90x40, 96");
  EXPECT_EQ(PlaceList(narrow.scale, 240, 188, 8).height, 80) << "two rows at least";
}

TEST_F(Layout, ALongCaptionWrapsAndItsRowGrows) {
  EXPECT_FALSE(PlaceComboRow(qvga, 1, 2, L"Sixteen letters.", 8).wraps);
  const RowPlace combo = PlaceComboRow(qvga, 1, 2, L"Two lines of a label", 8);
  EXPECT_TRUE(combo.wraps);
  EXPECT_EQ(combo.controls[0].rect, (Rect{4, 11, 96, 28}));
  EXPECT_EQ(combo.height, 34);
  EXPECT_EQ(Shown(PlaceCheckRow(qvga, 1, L"A caption that runs on under its check box", 8)),
            "1 10,8 220x28, 32");
  // Two lines beside a path need no more than its two.
  EXPECT_EQ(PlacePathRow(qvga, 1, 2, 3, 4, L"Two lines of a label", 8).height, 48);
}

TEST_F(Layout, AWordIsDividedWhereItMayBeElseItEndsInAnEllipsis) {
  EXPECT_EQ(PlaceComboRow(qvga, 1, 2, L"Aufgabenerinnerung", 8).caption, L"Aufgabenerinner\u2026");
  EXPECT_EQ(PlaceComboRow(qvga, 1, 2, L"Die Aufgabenerinnerung an", 8).caption,
            L"Die Aufgabenerinner\u2026 an");
  EXPECT_EQ(FitWords(measure, L"wide", 3), L"w\u2026");
  const std::wstring word = L"Auf\u00ADgaben\u00ADerinnerung";
  EXPECT_EQ(PlaceCheckRow(qvga, 1, word, 8).caption, L"Aufgabenerinnerung");
  EXPECT_EQ(PlaceComboRow(qvga, 1, 2, word + L" an", 8).caption, L"Aufgaben- erinnerung an");
  EXPECT_EQ(FitWords(measure, word, 50), L"Auf- gaben- erinner\u2026");
}

TEST(Scrolling, StaysWithinItsEndsAndMovesNoFurtherThanNeeded) {
  ScrollRange range;
  const auto at = [&](bool moved, int offset) { return moved && range.Offset() == offset; };
  range.Resize(300, 100);
  EXPECT_FALSE(range.ScrollBy(-5));
  EXPECT_TRUE(at(range.ScrollBy(250), 200));
  EXPECT_TRUE(at(range.ScrollPage(-1, 24), 124));
  EXPECT_TRUE(at(range.BringIntoView(100, 124), 100));
  EXPECT_FALSE(range.BringIntoView(176, 200)) << "it is in view";
  EXPECT_TRUE(at(range.BringIntoView(200, 224), 124));
  EXPECT_TRUE(at(range.BringIntoView(90, 220), 90)) << "what is higher shows its top";
  EXPECT_TRUE(at(range.Resize(120, 100), 20)) << "less content leaves no gap below it";
  EXPECT_TRUE(at(range.Resize(90, 100), 0));
  EXPECT_FALSE(range.Needed());
}

TEST(Scrolling, TheThumbShowsWhereTheViewIsAndMovesIt) {
  using Thumb = ScrollThumb;
  ScrollRange range;
  range.Resize(400, 200);
  EXPECT_EQ(range.ThumbOf(16), (Thumb{0, 100}));
  EXPECT_TRUE(range.DragThumb(50, 16));
  EXPECT_EQ(range.Offset(), 100);
  EXPECT_EQ(range.ThumbOf(16), (Thumb{50, 100}));
  range.Resize(40000, 200);
  EXPECT_EQ(range.ThumbOf(16).height, 16);
  range.Resize(100, 200);
  EXPECT_EQ(range.ThumbOf(16), Thumb());
}

}  // namespace
}  // namespace tidewell
