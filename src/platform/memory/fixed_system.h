// A device whose screen and version a test lays down.
#pragma once

#include "platform/system.h"

namespace tidewell {

class FixedSystem final : public System {
 public:
  ScreenFacts screen;
  SystemVersion version;
  int refreshes = 0;  // asked for

  ScreenFacts Screen() override { return screen; }
  SystemVersion Version() override { return version; }
  void RefreshTodayScreen() override { ++refreshes; }
};

}  // namespace tidewell
