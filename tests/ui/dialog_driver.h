// Drives a modal dialog of this very process: one step at each turn of a timer, after all that the
// step before has posted was dealt with.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tidewell {

class DialogDriver {
 public:
  DialogDriver();
  DialogDriver(const DialogDriver&) = delete;
  DialogDriver& operator=(const DialogDriver&) = delete;
  // Fails the test when steps are left.
  ~DialogDriver();

  // One more step for the next modal dialog. A dialog that is open after the last step fails the
  // test and is closed.
  void Then(std::function<void()> step) { steps_.push_back(std::move(step)); }

 private:
  static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD);
  void Turn();

  std::deque<std::function<void()>> steps_;
  UINT_PTR timer_;
};

// The dialog or message box in front; null when there is none.
HWND FrontDialog();
// Its control of a window class, the n-th of them in the order of the Tab key.
HWND ControlOf(const wchar_t* windowClass, int n = 0);
HWND ListOf();
std::wstring TextOfWindow(HWND window);
RECT PlaceIn(HWND window, HWND parent);

std::vector<std::wstring> RowsOf(HWND list);
std::optional<int> MarkedRow(HWND list);

// All of these post what a user's hand causes.
void PressKey(WPARAM key);  // to the window with the focus
void TapRow(int row);
void DoubleTapRow(int row);
void TapSoftKey(std::size_t key);  // 0 is the left one

}  // namespace tidewell
