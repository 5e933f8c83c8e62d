// The window of a tooltip, window class ToolTipWindow. Windows only.
#pragma once

#include <windows.h>

#include <memory>
#include <string>

#include "platform/scale.h"
#include "preview/canvas.h"

namespace tidewell {

inline constexpr wchar_t kTooltipClass[] = L"ToolTipWindow";

class TooltipWindow {
 public:
  // As large as its text, left of and above a point of the screen; hidden.
  TooltipWindow(HWND owner, const std::wstring& text, POINT point, const ScreenScale& scale);
  TooltipWindow(const TooltipWindow&) = delete;
  TooltipWindow& operator=(const TooltipWindow&) = delete;
  ~TooltipWindow();

  // Leaves the focus where it is.
  void Show() const { ShowWindow(window_, SW_SHOWNOACTIVATE); }

 private:
  static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  void Paint() const;

  HWND window_ = nullptr;
  std::wstring text_;
  ScreenScale scale_;
  std::unique_ptr<CanvasFont> font_;
};

}  // namespace tidewell
