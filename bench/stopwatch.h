#pragma once

#include <chrono>

namespace tidewell::bench {

class Stopwatch {
 public:
  double Milliseconds() const {
    return std::chrono::duration<double, std::milli>(Clock::now() - start_).count();
  }

 private:
  using Clock = std::chrono::steady_clock;
  Clock::time_point start_ = Clock::now();
};

}  // namespace tidewell::bench
