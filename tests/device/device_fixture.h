// A device whose product keys are gone before and after each test, and a listener on its desktop.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <functional>
#include <utility>
#include <vector>

#include "driven_program.h"
#include "system_registry.h"

namespace tidewell::device {

// A top-level window of this process that hears broadcasts, hidden unless it is asked for.
class Listener {
 public:
  Listener() {
    WNDCLASSW listenerClass{};
    listenerClass.lpfnWndProc = WindowProc;
    listenerClass.lpszClassName = L"DeviceTestListener";
    RegisterClassW(&listenerClass);
    window_ = CreateWindowExW(0, L"DeviceTestListener", L"", WS_POPUP, 0, 0, 100, 100, nullptr,
                              nullptr, nullptr, nullptr);
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  }
  ~Listener() { DestroyWindow(window_); }

  HWND Window() const { return window_; }

  // Everything that was posted before this call has arrived after it.
  void HearAllPosted() {
    const int marker = ++markers_;
    PostMessageW(window_, kMarker, static_cast<WPARAM>(marker), 0);
    WaitUntil([this, marker] { return seenMarker_ == marker; });
  }

  using Heard = std::vector<std::pair<WPARAM, LPARAM>>;
  Heard heard;
  std::function<void()> onHeard = [] {};

 private:
  static constexpr UINT kMarker = WM_APP;

  static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    static const UINT changed = RegisterWindowMessageW(L"VelmontTidewellSettingsChanged");
    auto* self = reinterpret_cast<Listener*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (self && message == changed) {
      self->heard.emplace_back(wParam, lParam);
      self->onHeard();
      return 0;
    }
    if (self && message == kMarker) self->seenMarker_ = static_cast<int>(wParam);
    return DefWindowProcW(window, message, wParam, lParam);
  }

  HWND window_ = nullptr;
  int markers_ = 0;
  int seenMarker_ = 0;
};

inline int CountMainWindows() {
  int count = 0;
  for (HWND window = nullptr; (window = FindWindowExW(nullptr, window, kMainClass, nullptr));) {
    ++count;
  }
  return count;
}

class DeviceTest : public testing::Test {
 protected:
  void SetUp() override {
    SetCursorPos(0, 0);  // a list that opens below the pointer would choose the line there
    ForgetProductKeys();
    ASSERT_EQ(CountMainWindows(), 0) << "a program is left over from before";
  }
  void TearDown() override { ForgetProductKeys(); }

  // What a listener has heard after one Done.
  inline static const Listener::Heard kOnce = {{0, 0}};

  Listener listener_;
};

}  // namespace tidewell::device
