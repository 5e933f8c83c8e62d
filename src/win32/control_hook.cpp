#include "win32/control_hook.h"

#include <utility>

namespace tidewell {

ControlHook::~ControlHook() {
  Detach();
}

void ControlHook::Attach(HWND control, Handler handler) {
  Detach();
  control_ = control;
  handler_ = std::move(handler);
  SetWindowLongPtrW(control, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  next_ = reinterpret_cast<WNDPROC>(
      SetWindowLongPtrW(control, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(WindowProc)));
}

LRESULT CALLBACK ControlHook::WindowProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* hook = reinterpret_cast<ControlHook*>(GetWindowLongPtrW(control, GWLP_USERDATA));
  const WNDPROC next = hook->next_;
  if (message == WM_NCDESTROY) {
    hook->Detach();
  } else if (const auto answer = hook->handler_(message, wParam, lParam)) {
    return *answer;
  }
  return CallWindowProcW(next, control, message, wParam, lParam);
}

void ControlHook::Detach() {
  if (!control_) return;
  SetWindowLongPtrW(control_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(next_));
  SetWindowLongPtrW(control_, GWLP_USERDATA, 0);
  control_ = nullptr;
}

}  // namespace tidewell
