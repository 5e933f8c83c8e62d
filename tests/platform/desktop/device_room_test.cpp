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
      {{0, 0, 240, 240}, true, {0, 0, 240, 240}},
      {{0, 0, 1920, 1040}, false, {720, 200, 1200, 840}},
      {{0, 0, 1920, 1040}, true, {640, 280, 1280, 760}},
  };
  for (const auto& c : cases) {
    const RECT room = DeviceRoom(c.workArea, c.turned);
    EXPECT_TRUE(EqualRect(&room, &c.room)) << c.workArea.right << (c.turned ? " turned" : "");
  }
}

}  // namespace
}  // namespace tidewell
