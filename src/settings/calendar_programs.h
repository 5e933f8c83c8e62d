// Which other calendar programs the device has.
#pragma once

#include <cstdint>

#include "platform/registry.h"

namespace tidewell {

enum class CalendarProgram : std::uint8_t {
  kVelmontCalendar,
  kPocketInformant,
  kAgendaFusion,
  kAgendaOne
};

// Asks the registry anew each time; an empty value of any type counts.
bool IsInstalled(Registry& registry, CalendarProgram program);

}  // namespace tidewell
