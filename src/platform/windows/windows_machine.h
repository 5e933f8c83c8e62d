// The machine that the program runs on.
#pragma once

#include "platform/machine.h"
#include "platform/windows/windows_files.h"
#include "platform/windows/windows_libraries.h"
#include "platform/windows/windows_locale.h"
#include "platform/windows/windows_registry.h"
#include "platform/windows/windows_system.h"

namespace tidewell {

struct WindowsMachine {
  WindowsRegistry registry;
  WindowsFiles files;
  WindowsLocale locale;
  WindowsLibraries libraries{files};
  WindowsSystem system;

  Machine Door() { return {registry, files, locale, libraries, system}; }
};

}  // namespace tidewell
