#include "platform/desktop/device_room.h"

#include <gtest/gtest.h>

namespace tidewell {

namespace {

TEST(DeviceRoom, IsTheWholeOfADeviceScreenAndAPartOfALargerDesktop) {
  const struct {
    RECT workArea;
    bool turned;
    RECT room;
  } cases[] = {
      {{0, 0, 640, 480}, false, {0, 0, 640, 480}},
      {{0, 0, 480, 640}, true, {0, 140, 480, 500}},
      {{0, 0, 320, 240}, true, {70, 0, 250, 240}},
      {{0, 0, 240, 240}, true, {0, 0, 240, 240}},
      {{0, 0, 1920, 1040}, false, {720, 200, 1200, 840}},
      {{0, 0, 1920, 1040}, true, {640, 280, 1280, 760}},
      {{100, 0, 1100, 600}, false, {360, 0, 840, 600}},
  };
  for (const auto& c : cases) {
    const RECT room = DeviceRoom(c.workArea, c.turned);
    EXPECT_TRUE(EqualRect(&room, &c.room)) << c.workArea.right << (c.turned ? " turned" : "");
  }
}

TEST(DeviceRoom, WindowsKeepTheirPlaceInATurnedRoom) {
  const struct {
    const char* what;
    RECT before, after;
  } cases[] = {
      {"a window below the title strip", {0, 52, 480, 640}, {0, 52, 640, 480}},
      {"one above a menu bar too", {0, 52, 480, 588}, {0, 52, 640, 428}},
      {"a small one", {100, 100, 200, 200}, {100, 100, 200, 200}},
      {"a small one at the bottom", {300, 600, 400, 640}, {300, 440, 400, 480}},
  };
  for (const auto& c : cases) {
    const RECT place = PlaceInNewRoom(c.before, {0, 0, 480, 640}, {0, 0, 640, 480});
    EXPECT_TRUE(EqualRect(&place, &c.after)) << c.what;
  }
}

}  // namespace

}  // namespace tidewell
