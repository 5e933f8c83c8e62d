// Sees a control's messages before the control does. Windows only.
#pragma once

#include <windows.h>

#include <functional>
#include <optional>

namespace tidewell {

class ControlHook {
 public:
  // A value is the message's answer; nothing leaves the message to the control.
  using Handler = std::function<std::optional<LRESULT>(UINT, WPARAM, LPARAM)>;

  ControlHook() = default;
  ControlHook(const ControlHook&) = delete;
  ControlHook& operator=(const ControlHook&) = delete;
  ~ControlHook();

  // Takes the control's user data. The control may outlive the hook, or go before it.
  void Attach(HWND control, Handler handler);

 private:
  static LRESULT CALLBACK WindowProc(HWND control, UINT message, WPARAM wParam, LPARAM lParam);
  void Detach();

  HWND control_ = nullptr;
  WNDPROC next_ = nullptr;
  Handler handler_;
};

}  // namespace tidewell
