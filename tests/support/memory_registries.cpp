#include "platform/memory/memory_registry.h"
#include "tests/support/test_registries.h"

namespace tidewell {

std::vector<RegistryKind> RegistryKinds() {
  return {RegistryKind::kMemory, RegistryKind::kMemorySorted};
}

std::unique_ptr<Registry> MakeTestRegistry(RegistryKind kind) {
  const bool isSorted = kind == RegistryKind::kMemorySorted;
  return std::make_unique<MemoryRegistry>(isSorted ? MemoryRegistry::Order::kSorted
                                                   : MemoryRegistry::Order::kAsWritten);
}

}  // namespace tidewell
