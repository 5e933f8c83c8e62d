// The system's registry, one system call for each call.
#pragma once

#include "platform/registry.h"

namespace tidewell {

class WindowsRegistry final : public Registry {
 public:
  std::unique_ptr<RegistryKey> Open(RegistryRoot root, const std::wstring& path) override;
  std::unique_ptr<RegistryKey> Create(RegistryRoot root, const std::wstring& path) override;
  // Needs one call more for every key below the named one where the system itself deletes no key
  // that has subkeys.
  RegistryStatus DeleteTree(RegistryRoot root, const std::wstring& path) override;
};

}  // namespace tidewell
