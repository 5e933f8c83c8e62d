#include "ui/windows/tooltip_window.h"

#include "preview/windows/gdi_canvas.h"
#include "ui/tooltip.h"
#include "win32/gdi.h"
#include "win32/window_owner.h"

namespace tidewell {

TooltipWindow::TooltipWindow(HWND owner, const std::wstring& text, POINT point,
                             const ScreenScale& scale)
    : text_(text), scale_(scale) {
  const HINSTANCE instance = GetModuleHandleW(nullptr);
  WNDCLASSW windowClass{};
  windowClass.lpfnWndProc = WindowProc;
  windowClass.hInstance = instance;
  windowClass.lpszClassName = kTooltipClass;
  RegisterClassW(&windowClass);

  const WindowDc screen(nullptr);
  GdiCanvas canvas(screen.Dc());
  font_ = canvas.MakeFont(TooltipFont(scale));
  const Rect place = PlaceTooltip(canvas, *font_, text, point.x, point.y, scale);
  CreateWindowExW(WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE, kTooltipClass, text.c_str(), WS_POPUP,
                  place.left, place.top, place.width, place.height, owner, nullptr, instance, this);
}

TooltipWindow::~TooltipWindow() {
  if (window_) DestroyWindow(window_);
  UnregisterClassW(kTooltipClass, GetModuleHandleW(nullptr));
}

LRESULT CALLBACK TooltipWindow::WindowProc(HWND window, UINT message, WPARAM wParam,
                                           LPARAM lParam) {
  TooltipWindow* tooltip = OwnerOf(&TooltipWindow::window_, window, message, lParam);
  if (!tooltip) return DefWindowProcW(window, message, wParam, lParam);
  switch (message) {
    case WM_ERASEBKGND:
      return 1;
    case WM_PAINT:
      tooltip->Paint();
      return 0;
    case WM_NCDESTROY:
      return LetGo(tooltip->window_, wParam, lParam);
    default:
      return DefWindowProcW(window, message, wParam, lParam);
  }
}

void TooltipWindow::Paint() const {
  const BufferedPaint paint(window_);
  GdiCanvas canvas(paint.Dc());
  const RECT& client = paint.Client();
  PaintTooltip(canvas, *font_, text_, {0, 0, client.right, client.bottom}, scale_);
}

}  // namespace tidewell
