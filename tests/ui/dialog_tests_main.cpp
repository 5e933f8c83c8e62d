#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>

#include "platform/desktop/device_shell.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  InitCommonControls();
  tidewell::InstallDeviceShell();
  return RUN_ALL_TESTS();
}
