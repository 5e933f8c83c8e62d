// Ties a window to the object whose member its procedure is. Windows only.
#pragma once

#include <windows.h>

#include <utility>

namespace tidewell {

// In a window procedure: the object that the window was created with, or null where it has none.
// From the message `first` on the object knows its window, and the window its object, in `slot`.
template <typename Owner>
Owner* OwnerOf(HWND Owner::*handle, HWND window, UINT message, LPARAM lParam,
               UINT first = WM_NCCREATE, int slot = GWLP_USERDATA) {
  if (message == first) {
    auto* created = static_cast<Owner*>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams);
    created->*handle = window;
    SetWindowLongPtrW(window, slot, reinterpret_cast<LONG_PTR>(created));
  }
  return reinterpret_cast<Owner*>(GetWindowLongPtrW(window, slot));
}

// The same in a dialog procedure, from WM_INITDIALOG on.
template <typename Owner>
Owner* DialogOwnerOf(HWND Owner::*handle, HWND window, UINT message, LPARAM lParam) {
  if (message == WM_INITDIALOG) {
    reinterpret_cast<Owner*>(lParam)->*handle = window;
    SetWindowLongPtrW(window, GWLP_USERDATA, lParam);
  }
  return reinterpret_cast<Owner*>(GetWindowLongPtrW(window, GWLP_USERDATA));
}

// Answers WM_NCDESTROY; the object may outlive its window.
inline LRESULT LetGo(HWND& handle, WPARAM wParam, LPARAM lParam, int slot = GWLP_USERDATA) {
  const HWND window = std::exchange(handle, nullptr);
  SetWindowLongPtrW(window, slot, 0);
  return DefWindowProcW(window, WM_NCDESTROY, wParam, lParam);
}

}  // namespace tidewell
