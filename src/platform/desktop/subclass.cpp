#include "platform/desktop/subclass.h"

#include <map>

namespace tidewell {

namespace {

std::map<HWND, std::unique_ptr<Subclass>>& Subclasses() {
  static std::map<HWND, std::unique_ptr<Subclass>> subclasses;
  return subclasses;
}

}  // namespace

void Subclass::Attach(HWND window, std::unique_ptr<Subclass> subclass) {
  subclass->window_ = window;
  subclass->own_ = reinterpret_cast<WNDPROC>(
      SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(WindowProc)));
  Subclasses()[window] = std::move(subclass);
}

LRESULT Subclass::PassOn(UINT message, WPARAM wParam, LPARAM lParam) const {
  return CallWindowProcW(own_, window_, message, wParam, lParam);
}

LRESULT CALLBACK Subclass::WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  const auto found = Subclasses().find(window);
  if (found == Subclasses().end()) return DefWindowProcW(window, message, wParam, lParam);
  if (message != WM_NCDESTROY) return found->second->Handle(message, wParam, lParam);
  const auto last = Subclasses().extract(found);
  return last.mapped()->PassOn(message, wParam, lParam);
}

}  // namespace tidewell
