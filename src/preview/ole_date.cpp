#include "preview/ole_date.h"

#include <chrono>
#include <cmath>

namespace tidewell {

int DayNumber(const LocalTime& date) {
  using namespace std::chrono;
  constexpr sys_days kFirst = year(1899) / December / 30;
  const sys_days day = year(date.year) / month(date.month) / std::chrono::day(date.day);
  return static_cast<int>((day - kFirst).count());
}

int DayOf(double moment) {
  return static_cast<int>(std::floor(moment));
}

bool IsMidnight(double moment) {
  return std::floor(moment) == moment;
}

LocalTime TimeOfDay(double moment) {
  // To the nearest second, as the system converts them.
  const auto seconds = static_cast<int>(std::lround((moment - std::floor(moment)) * 24 * 60 * 60));
  LocalTime time;
  time.hour = static_cast<std::uint16_t>(seconds / 3600 % 24);
  time.minute = static_cast<std::uint16_t>(seconds / 60 % 60);
  return time;
}

}  // namespace tidewell
