// A whole machine in memory.
#pragma once

#include "platform/machine.h"
#include "platform/memory/fixed_locale.h"
#include "platform/memory/fixed_system.h"
#include "platform/memory/memory_files.h"
#include "platform/memory/memory_libraries.h"
#include "platform/memory/memory_registry.h"

namespace tidewell {

struct MemoryMachine {
  MemoryRegistry registry;
  MemoryFiles files;
  FixedLocale locale;
  MemoryLibraries libraries;
  FixedSystem system;

  Machine Door() { return {registry, files, locale, libraries, system}; }
};

}  // namespace tidewell
