#include "ui/icon_marker_model.h"

#include <gtest/gtest.h>

#include "tests/preview/recorder.h"
#include "ui/tooltip.h"

namespace tidewell {
namespace {

constexpr ScreenScale kQvga(96, 96, false);
constexpr ScreenScale kVga(192, 192, false);

std::string States(const IconMarkerModel& marker) {
  std::string text;
  for (const MarkerItem& item : marker.Items()) {
    text += std::to_string(item.value) + "+-x"[static_cast<int>(item.state)] + " ";
  }
  return text;
}

TEST(IconMarker, OfManyTurnsTheTappedCellOnAndOff) {
  IconMarkerModel marker(MarkerMode::kMany, AppointmentMarkerChoices(), 0x187, {});
  marker.SetDisabled(4);
  marker.SetOff(2);
  EXPECT_EQ(States(marker), "1+ 2- 4x 8- 16- 128+ 64- 256+ ");
  EXPECT_EQ(IconMarkerModel::Width(MarkerMode::kMany, 8, kQvga), 129);
  EXPECT_EQ(IconMarkerModel::Width(MarkerMode::kMany, 8, kVga), 258);
  for (const int x : {0, 31, 40, 127, 128}) marker.Tap(x, kQvga);
  EXPECT_EQ(States(marker), "1- 2+ 4x 8- 16- 128+ 64- 256- ");
  EXPECT_EQ(marker.Tap(40, kQvga)->value, 4u);
  EXPECT_EQ(marker.Tap(128, kQvga), nullptr);
  EXPECT_EQ(marker.Tap(31, kVga)->value, 1u);
  EXPECT_EQ(marker.Value(), 131u);
  const MarkerChoice unsorted[] = {{1, 0, 5}, {2, 0, 1}, {4, 0, 5}, {8, 0, 0}};
  EXPECT_EQ(States({MarkerMode::kMany, unsorted, 0, {}}), "8- 2- 1- 4- ");
}

TEST(IconMarker, OfOneChoosesFromItsMenu) {
  IconMarkerModel marker(MarkerMode::kOne, TaskMarkerChoices(), 33, {});
  const auto checked = [&] {
    std::string commands;
    for (const MarkerMenuEntry& entry : marker.Menu()) {
      if (entry.isChecked) commands += std::to_string(entry.command) + " ";
    }
    return commands;
  };
  EXPECT_EQ(IconMarkerModel::Width(MarkerMode::kOne, 8, kQvga), 17);
  EXPECT_EQ(marker.Menu().size(), 9u);
  EXPECT_EQ(checked(), "0 ");
  EXPECT_EQ(marker.Choose(1149), 32u);
  for (const int foreign : {1, 1143, 1152, 1175}) EXPECT_EQ(marker.Choose(foreign), std::nullopt);
  EXPECT_EQ(checked(), "1149 ");
  EXPECT_EQ(marker.Choose(0), 0u);
  EXPECT_EQ(checked(), "0 ");
}

TEST(IconMarker, IsPainted) {
  Recorder canvas;
  RecordedIcons icons(10);
  const MarkerChoice choices[] = {{1, 0, 1}, {32, 0, 2}, {8, 0, 3}};
  IconMarkerModel many(MarkerMode::kMany, choices, 32, {});
  many.SetDisabled(8);
  many.Paint(canvas, {0, 0, 49, 17}, kQvga, &icons);
  EXPECT_EQ(canvas.Take(),
            "fill 321414 @0,0 49x17; fill f3f3f3 @1,1 15x15; reminder @3,3; fill aa5a50 @17,1 "
            "15x15; high_importance @19,3; fill f3f3f3 @33,1 15x15; note @35,3; overlay 200 bebebe "
            "@33,1 15x15");
  IconMarkerModel one(MarkerMode::kOne, choices, 8, {});
  one.Paint(canvas, {0, 0, 17, 17}, kQvga, &icons);
  one.Choose(0);
  one.Paint(canvas, {0, 0, 17, 17}, kQvga, &icons);
  EXPECT_EQ(canvas.Take(), "fill f3f3f3 @0,0 17x17; note @3,3; fill f3f3f3 @0,0 17x17");
}

TEST(Tooltip, StandsLeftOfAndAboveTheFinger) {
  Recorder canvas;
  const RecordedFont font(12);
  EXPECT_EQ(PlaceTooltip(canvas, font, L"Note", 100, 90, kQvga), Rect::Between(64, 68, 98, 88));
  PaintTooltip(canvas, font, L"Note", {0, 0, 34, 20}, kQvga);
  EXPECT_EQ(canvas.Take(), "fill 140a14 @0,0 34x20; fill dcf6f7 @1,1 32x18; Note @1,1-33");
}

}  // namespace
}  // namespace tidewell
