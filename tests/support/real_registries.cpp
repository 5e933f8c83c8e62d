#include "platform/windows/windows_registry.h"
#include "tests/support/rebased_registry.h"
#include "tests/support/test_registries.h"

namespace tidewell {

std::vector<RegistryKind> RegistryKinds() {
  return {RegistryKind::kReal};
}

std::unique_ptr<Registry> MakeTestRegistry(RegistryKind) {
  static WindowsRegistry real;
  return std::make_unique<RebasedRegistry>(real, L"Software\\Tidewell tests");
}

}  // namespace tidewell
