// Everything that the program asks of the machine, put together once by the application and
// handed down. Holds no ownership.
#pragma once

#include "platform/files.h"
#include "platform/libraries.h"
#include "platform/locale.h"
#include "platform/registry.h"
#include "platform/system.h"

namespace tidewell {

struct Machine {
  Registry& registry;
  Files& files;
  Locale& locale;
  ResourceLibraries& libraries;
  System& system;
};

}  // namespace tidewell
