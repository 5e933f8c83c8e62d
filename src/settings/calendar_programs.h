// Which other programs the device has that the Today item works with.
#pragma once

#include <cstdint>

#include "platform/files.h"
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
// Whether the weather program's library is known and where it is said to be.
bool HasWeather(Registry& registry, Files& files);
// Whether the list program says where its library is.
bool HasListwise(Registry& registry);

}  // namespace tidewell
