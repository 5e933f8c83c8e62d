// The strip above a window with the window's caption and, at its right, a round button.
#pragma once

#include <windows.h>

namespace tidewell {

enum class TitleButton { kNone, kOk, kCancel };

class TitleStrip {
 public:
  // Hidden until it is placed over a visible owner.
  TitleStrip(HWND owner, TitleButton button);
  TitleStrip(const TitleStrip&) = delete;
  TitleStrip& operator=(const TitleStrip&) = delete;
  ~TitleStrip();

  HWND Window() const { return window_; }
  TitleButton Button() const { return button_; }
  void SetButton(TitleButton button);
  // Moves the strip to `place`, in screen coordinates. One that stays out of sight stays where it
  // is.
  void Place(const RECT& place, bool visible);
  void Refresh();
  // What a tap on the button does: its command is posted to the owner. Nothing while the owner is
  // disabled by a dialog of its own.
  void PressButton();

 private:
  static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
  void OnPaint();
  void OnPointerDown(POINT point);
  void OnPointerUp(POINT point);
  void Track(POINT point);
  RECT ButtonArea() const;
  bool HitsButton(POINT point) const;
  void DrawButton(HDC dc) const;

  HWND owner_;
  HWND window_ = nullptr;
  TitleButton button_;
  bool tracking_ = false;  // pressed on the button, not yet released
  bool inside_ = false;    // and the pointer is over it
};

}  // namespace tidewell
