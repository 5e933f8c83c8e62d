// Points in time as the calendar's items have them: days since 30 December 1899, the time of day
// as their fraction.
#pragma once

#include "platform/locale.h"

namespace tidewell {

// Stands for no date at all: 1 January 4501.
inline constexpr double kNoDate = 949998.0;

// The whole number of the day.
int DayNumber(const LocalTime& date);
int DayOf(double moment);
bool IsMidnight(double moment);
// Only hour and minute are set.
LocalTime TimeOfDay(double moment);

}  // namespace tidewell
