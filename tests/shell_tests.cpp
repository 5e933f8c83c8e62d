// Runs the suites of windows as the program runs them: under the device shell.
#include <gtest/gtest.h>

#include "platform/desktop/device_shell.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  tidewell::InstallDeviceShell();
  return RUN_ALL_TESTS();
}
