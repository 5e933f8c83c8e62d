// The registries that a suite runs on: the twin in memory in both orders of enumeration.
#pragma once

#include <memory>
#include <ostream>
#include <vector>

#include "platform/registry.h"

namespace tidewell {

enum class RegistryKind : std::uint8_t { kMemory, kMemorySorted };

std::vector<RegistryKind> RegistryKinds();
// Empty at first.
std::unique_ptr<Registry> MakeTestRegistry(RegistryKind kind);

// How a test's name shows the registry that it ran on.
inline void PrintTo(RegistryKind kind, std::ostream* out) {
  *out << (kind == RegistryKind::kMemory ? "Memory" : "MemorySorted");
}

}  // namespace tidewell
