// Drives a modal dialog of this very process: one step at each turn of a timer, after all that the
// step before has posted was dealt with.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace tidewell {

class DialogDriver {
 public:
  DialogDriver();
  DialogDriver(const DialogDriver&) = delete;
  DialogDriver& operator=(const DialogDriver&) = delete;
  ~DialogDriver();  // fails the test when steps are left

  // One more step for the next modal dialog. A dialog that is open after the last step fails the
  // test and is closed.
  void Then(std::function<void()> step) { steps_.push_back(std::move(step)); }

 private:
  static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD);
  void Turn();

  std::deque<std::function<void()>> steps_;
  UINT_PTR timer_;
};

// The dialog or message box in front, and its n-th control of a class in the order of the Tab key.
HWND FrontDialog();
HWND ControlOf(const wchar_t* windowClass, int n = 0);
RECT PlaceInDialog(HWND control);

HWND List();
std::vector<std::wstring> RowsOfList();
int MarkedRow();  // -1 for none

// What a user's hand causes, posted.
void Press(WPARAM key);  // to the window with the focus
void TapRow(int row);
void DoubleTapRow(int row);
void TapLeftKey();
void TapRightKey();

}  // namespace tidewell
