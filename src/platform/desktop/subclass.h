// A procedure that stands before a window's own until the window's last message. The system's
// SetWindowSubclass would do, but asks the window server several times with each message.
#pragma once

#include <windows.h>

#include <memory>

namespace tidewell {

class Subclass {
 public:
  Subclass() = default;
  Subclass(const Subclass&) = delete;
  Subclass& operator=(const Subclass&) = delete;
  virtual ~Subclass() = default;

  // For a window that is being created; one for a window, which owns it from now on.
  static void Attach(HWND window, std::unique_ptr<Subclass> subclass);

 protected:
  virtual LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) = 0;
  // To the window's own procedure.
  LRESULT PassOn(UINT message, WPARAM wParam, LPARAM lParam) const;
  HWND Window() const { return window_; }

 private:
  static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

  HWND window_ = nullptr;
  WNDPROC own_ = nullptr;
};

}  // namespace tidewell
