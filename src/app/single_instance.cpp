#include "app/single_instance.h"

#include <cstdint>

namespace tidewell {

namespace {

constexpr DWORD kLongestStart = 60'000;  // milliseconds

// A device brings the pop-ups of a window forward too when the lowest bit of its handle is set.
HWND WithPopups(HWND window) {
  return reinterpret_cast<HWND>(reinterpret_cast<std::uintptr_t>(window) | 1);
}

// True when a window of the same program has the foreground.
bool IsInFront(HWND window) {
  DWORD front = 0;
  DWORD owner = 0;
  GetWindowThreadProcessId(GetForegroundWindow(), &front);
  GetWindowThreadProcessId(window, &owner);
  return front == owner;
}

HWND FindMainWindow() {
  const HWND window = FindWindowW(kMainWindowClass, kMainWindowCaption);
  // While a page is open the main window has no caption.
  return window ? window : FindWindowW(kMainWindowClass, nullptr);
}

}  // namespace

StartTurn::StartTurn() : mutex_(CreateMutexW(nullptr, FALSE, L"TW_OPTIONS_START")) {
  const DWORD result = WaitForSingleObject(mutex_, kLongestStart);
  ours_ = result == WAIT_OBJECT_0 || result == WAIT_ABANDONED;
}

void StartTurn::End() {
  if (ours_) ReleaseMutex(mutex_);
  ours_ = false;
  if (mutex_) CloseHandle(mutex_);
  mutex_ = nullptr;
}

bool BringRunningInstanceForward() {
  const HWND window = FindMainWindow();
  if (!window) return false;
  SetForegroundWindow(WithPopups(window));
  // A desktop refuses that handle, or takes it and does nothing.
  if (!IsInFront(window)) SetForegroundWindow(window);
  return true;
}

}  // namespace tidewell
