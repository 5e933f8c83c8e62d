// Drives a modal dialog of this very process: one step at each turn of a timer, after all that the
// step before has posted was dealt with.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <deque>
#include <functional>
#include <string>

namespace tidewell {

class DialogDriver {
 public:
  struct Step {
    std::function<void()> act;  // null does nothing
    std::wstring shown;         // what `show` must tell afterwards; empty: it is not asked
  };

  explicit DialogDriver(std::function<std::wstring()> show);
  DialogDriver(const DialogDriver&) = delete;
  DialogDriver& operator=(const DialogDriver&) = delete;
  ~DialogDriver();  // fails the test when steps are left

  // For the next modal dialog. A dialog that is open after the last step fails the test and is
  // closed.
  void Play(std::initializer_list<Step> steps) { steps_.assign(steps); }

 private:
  static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD);
  void Turn();

  std::function<std::wstring()> show_;
  std::deque<Step> steps_;
  std::wstring expected_;
  UINT_PTR timer_;
};

// The dialog or message box in front, and its n-th control of a class in the order of the Tab key.
HWND FrontDialog();
HWND ControlOf(const wchar_t* windowClass, int n = 0);
RECT PlaceInDialog(HWND control);

HWND List();
// " one, >two, three" where the second row is marked; of a long list the marked one alone.
std::wstring RowsShown();

// What a user's hand causes, posted. Keys go to the window with the focus.
std::function<void()> Key(WPARAM key);
std::function<void()> TapRow(int row);
std::function<void()> DoubleTapRow(int row);
void TapLeftKey();
void TapRightKey();

}  // namespace tidewell
