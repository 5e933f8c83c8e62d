// A device whose product keys are gone before and after each test, and a listener on its desktop.
#pragma once

#include <gtest/gtest.h>

#include "driven_program.h"
#include "system_registry.h"
#include "tests/support/window_support.h"

namespace tidewell::device {

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

  // What programs that have ended told the Today item since the last call.
  int Broadcasts() {
    PumpMessages();
    const int count = listener_.Count(RegisterWindowMessageW(L"VelmontTidewellSettingsChanged"));
    listener_.messages.clear();
    return count;
  }

  TestWindow listener_{WS_POPUP, 0};
};

}  // namespace tidewell::device
