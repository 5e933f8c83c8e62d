// A device whose screen and version a test lays down.
#pragma once

#include "platform/system.h"

namespace tidewell {

class FixedSystem final : public System {
 public:
  ScreenFacts screen;
  SystemVersion version;

  ScreenFacts Screen() override { return screen; }
  SystemVersion Version() override { return version; }
};

}  // namespace tidewell
