// The registries that a suite runs on: the twin in memory in both orders of enumeration and, on
// Windows, a corner of the real one. All are empty at first.
#pragma once

#include <memory>
#include <ostream>
#include <vector>

#include "platform/memory/memory_registry.h"
#include "platform/registry.h"

#ifdef _WIN32
#include "platform/windows/windows_registry.h"
#include "tests/support/rebased_registry.h"
#endif

namespace tidewell {

enum class RegistryKind : std::uint8_t { kMemory, kMemorySorted, kReal };

inline std::vector<RegistryKind> RegistryKinds() {
#ifdef _WIN32
  return {RegistryKind::kMemory, RegistryKind::kMemorySorted, RegistryKind::kReal};
#else
  return {RegistryKind::kMemory, RegistryKind::kMemorySorted};
#endif
}

inline std::unique_ptr<Registry> MakeTestRegistry(RegistryKind kind) {
#ifdef _WIN32
  static WindowsRegistry real;
  if (kind == RegistryKind::kReal) {
    return std::make_unique<RebasedRegistry>(real, L"Software\\Tidewell tests\\Settings");
  }
#endif
  const bool sorted = kind == RegistryKind::kMemorySorted;
  using Order = MemoryRegistry::Order;
  return std::make_unique<MemoryRegistry>(sorted ? Order::kSorted : Order::kAsWritten);
}

// How a test's name shows the registry that it ran on.
inline void PrintTo(RegistryKind kind, std::ostream* out) {
  *out << (kind == RegistryKind::kReal     ? "Real"
           : kind == RegistryKind::kMemory ? "Memory"
                                           : "MemorySorted");
}

}  // namespace tidewell
