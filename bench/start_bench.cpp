// Start and memory of the installed program beside a program that only shows an empty window.
// Both count as started once their window is visible, answers, and has nothing left to paint.
#include <windows.h>

#include <psapi.h>

#include <cstdio>
#include <string>

#include "bench/figures.h"
#include "bench/stopwatch.h"
#include "tests/device/driven_program.h"

namespace tidewell::bench {

namespace {

constexpr int kWarmUps = 3;
constexpr int kRounds = 40;

struct Started {
  double milliseconds = 0;
  double mebibytes = 0;
};

double PeakMebibytes(HANDLE process) {
  PROCESS_MEMORY_COUNTERS counters{};
  GetProcessMemoryInfo(process, &counters, sizeof counters);
  return static_cast<double>(counters.PeakWorkingSetSize) / (1024.0 * 1024.0);
}

bool IsGone(const wchar_t* windowClass) {
  return !FindWindowW(windowClass, nullptr);
}

Started Start(const std::wstring& path, const wchar_t* windowClass) {
  device::WaitUntil([&] { return IsGone(windowClass); });
  const Stopwatch watch;
  device::Process process(path, L"");
  HWND window = nullptr;
  while (!(window = FindWindowW(windowClass, nullptr)) || !device::IsReady(window)) {
    if (watch.Milliseconds() > device::kPatience) return {};
    Sleep(0);
  }
  const double milliseconds = watch.Milliseconds();
  return {milliseconds, PeakMebibytes(process.Handle())};
}

std::wstring EmptyProgram() {
  wchar_t path[MAX_PATH];
  GetModuleFileNameW(nullptr, path, MAX_PATH);
  const std::wstring whole = path;
  return whole.substr(0, whole.rfind(L'\\') + 1) + L"empty_window.exe";
}

int Run() {
  const std::wstring program = std::wstring(device::kInstallFolder) + L"\\TidewellSettings.exe";
  const std::wstring empty = EmptyProgram();
  Comparison start;
  Samples memory;
  for (int round = -kWarmUps; round < kRounds; ++round) {
    const Started floor = Start(empty, L"EmptyWindow");
    const Started ours = Start(program, device::kMainClass);
    if (floor.milliseconds == 0 || ours.milliseconds == 0) {
      std::printf("start: a program did not show its window\n");
      return 1;
    }
    if (round < 0) continue;
    start.Add(ours.milliseconds, floor.milliseconds);
    memory.Add(ours.mebibytes - floor.mebibytes);
  }
  PrintRatio("start to the painted list / empty window", start, 1.5, "ms");
  PrintFigure("peak memory above the empty window", memory.Median(),
              Spread(memory.Quantile(0.25), memory.Quantile(0.75)), 4, " MiB", "");
  return 0;
}

}  // namespace

}  // namespace tidewell::bench

int main() {
  return tidewell::bench::Run();
}
