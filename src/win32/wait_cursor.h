// Shows the wait cursor for the length of a scope. Windows only.
#pragma once

#include <windows.h>

namespace tidewell {

class WaitCursor {
 public:
  WaitCursor() : previous_(SetCursor(LoadCursorW(nullptr, IDC_WAIT))) {}
  WaitCursor(const WaitCursor&) = delete;
  WaitCursor& operator=(const WaitCursor&) = delete;
  ~WaitCursor() { SetCursor(previous_); }

 private:
  HCURSOR previous_;
};

}  // namespace tidewell
