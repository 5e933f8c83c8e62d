// Start and memory of the installed program beside a program that only shows an empty window.
// Both count as started once their window is visible, answers, and has nothing left to paint. Then
// what the program's start is made of.
#include <windows.h>

#include <psapi.h>

#include <cstdio>
#include <string>

#include "bench/figures.h"
#include "bench/start_parts.h"
#include "bench/stopwatch.h"
#include "tests/device/driven_program.h"

namespace tidewell::bench {

namespace {

constexpr int kWarmUps = 3;
constexpr int kRounds = 40;
constexpr DWORD kSettling = 150;  // milliseconds, in which the system ends the program before

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
  Sleep(kSettling);
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

// A program that lies beside this one.
std::wstring Beside(const wchar_t* name) {
  wchar_t path[MAX_PATH];
  GetModuleFileNameW(nullptr, path, MAX_PATH);
  const std::wstring whole = path;
  return whole.substr(0, whole.rfind(L'\\') + 1) + name;
}

// What one start is made of, in milliseconds; false when it did not say.
bool TakeParts(double (&parts)[kStartPartCount]) {
  SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
  HANDLE reading = nullptr;
  HANDLE writing = nullptr;
  if (!CreatePipe(&reading, &writing, &inherited, 0)) return false;
  DWORD count = 0;
  {
    const device::Process process(Beside(L"start_parts.exe"), L"", writing);
    CloseHandle(writing);
    ReadFile(reading, parts, sizeof parts, &count, nullptr);
    process.WaitForExit();
  }
  CloseHandle(reading);
  return count == sizeof parts;
}

std::string FormatMilliseconds(double milliseconds) {
  char text[32];
  std::snprintf(text, sizeof text, "%.3g ms", milliseconds);
  return text;
}

void PrintParts() {
  Samples samples[kStartPartCount];
  for (int round = -kWarmUps; round < kRounds; ++round) {
    double parts[kStartPartCount];
    Sleep(kSettling);
    if (!TakeParts(parts)) {
      std::printf("start: a start did not say what it is made of\n");
      return;
    }
    for (std::size_t i = 0; round >= 0 && i < kStartPartCount; ++i) samples[i].Add(parts[i]);
  }
  for (std::size_t i = 0; i < kStartPartCount; ++i) {
    PrintSamples(kStartParts[i], samples[i], kNoAim, " ms",
                 "at least " + FormatMilliseconds(samples[i].Quantile(0)));
  }
}

int Run() {
  const std::wstring program = std::wstring(device::kInstallFolder) + L"\\TidewellSettings.exe";
  const std::wstring empty = Beside(L"empty_window.exe");
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
  PrintRatio("start to the painted list / empty window", start, 1.2, "ms");
  PrintSamples("peak memory above the empty window", memory, 4, " MiB");
  PrintParts();
  return 0;
}

}  // namespace

}  // namespace tidewell::bench

int main() {
  return tidewell::bench::Run();
}
