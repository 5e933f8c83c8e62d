// Helpers for tests with real windows: messages are pumped by hand, fingers are posted.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

#include "win32/gdi.h"

namespace tidewell {

// Dispatches every waiting message of this thread. True when one of them was the end of the
// program's loop.
bool PumpMessages();

// The window of a class that this thread shows, of an owner when that is not null; or null.
HWND FindOwnWindow(const wchar_t* className, HWND owner = nullptr);

void PostTap(HWND window, POINT point, UINT downMessage = WM_LBUTTONDOWN);
// These wait until all that they caused was dealt with.
void Tap(HWND window, POINT point);
void PressKey(HWND window, WPARAM key);

RECT WindowRect(HWND window);
std::wstring CaptionOf(HWND window);

// What the window shows, row by row from the top, as the screen has it.
class Screenshot {
 public:
  explicit Screenshot(HWND window);
  int Width() const { return width_; }
  int Height() const { return height_; }
  COLORREF At(int x, int y) const { return GetPixel(copy_.Dc(), x, y); }
  // The first row from `top` on that is not of one colour; the height where there is none.
  int FirstDrawnRow(int top) const;

 private:
  int width_;
  int height_;
  MemoryBitmap copy_;
};

// The pens, brushes, fonts, bitmaps and device contexts that this process has.
int CountDrawingObjects();

// Where the system is to place a program's main window.
constexpr RECT kDefaultPlace{CW_USEDEFAULT, CW_USEDEFAULT, 0, 0};

// A plain window of a test's own that keeps the messages it was sent or posted.
class TestWindow {
 public:
  struct Message {
    UINT id;
    WPARAM wParam;
    LPARAM lParam;
  };

  TestWindow(DWORD style, DWORD extendedStyle, const RECT& place = {0, 0, 100, 100},
             HWND owner = nullptr);
  TestWindow(const TestWindow&) = delete;
  TestWindow& operator=(const TestWindow&) = delete;
  ~TestWindow();

  HWND Get() const { return window_; }
  int Count(UINT id) const;
  // The commands received, in order; forgets all messages.
  std::vector<int> TakeCommands();
  std::vector<Message> messages;

 private:
  static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  HWND window_;
};

// Runs an action inside the next modal loop of this thread.
class InModalLoop {
 public:
  explicit InModalLoop(std::function<void()> action);
  InModalLoop(const InModalLoop&) = delete;
  InModalLoop& operator=(const InModalLoop&) = delete;
  ~InModalLoop();

 private:
  static void CALLBACK OnTimer(HWND, UINT, UINT_PTR id, DWORD);
  UINT_PTR timer_;
};

}  // namespace tidewell
