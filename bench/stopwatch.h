#pragma once

#include <windows.h>

namespace tidewell::bench {

class Stopwatch {
 public:
  Stopwatch() { QueryPerformanceCounter(&start_); }
  double Milliseconds() const {
    LARGE_INTEGER now;
    LARGE_INTEGER frequency;
    QueryPerformanceCounter(&now);
    QueryPerformanceFrequency(&frequency);
    return static_cast<double>(now.QuadPart - start_.QuadPart) * 1000.0 /
           static_cast<double>(frequency.QuadPart);
  }

 private:
  LARGE_INTEGER start_;
};

}  // namespace tidewell::bench
