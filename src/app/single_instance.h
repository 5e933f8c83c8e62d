// One program at a time: a second start brings the first one's window forward and ends.
#pragma once

#include <windows.h>

namespace tidewell {

inline constexpr wchar_t kMainWindowClass[] = L"TW_OPTIONS";
inline constexpr wchar_t kMainWindowCaption[] = L"TW Options";

// Starts go one after the other while they look for a window and make one, so that of many at once
// only the first makes a window and all others find it.
class StartTurn {
 public:
  StartTurn();
  StartTurn(const StartTurn&) = delete;
  StartTurn& operator=(const StartTurn&) = delete;
  ~StartTurn() { End(); }

  // False when an earlier start has been at it for so long that this one gives up.
  bool IsOurs() const { return ours_; }
  void End();

 private:
  HANDLE mutex_;
  bool ours_;
};

// True when another program's main window was found and brought forward.
bool BringRunningInstanceForward();

}  // namespace tidewell
