// A registry in memory: it enumerates, truncates, ignores letter case and fails as the real one.
#pragma once

#include <memory>

#include "platform/registry.h"

namespace tidewell {

class MemoryRegistry final : public Registry {
 public:
  // No registry promises an order of enumeration: a device keeps the order of writing, a desktop
  // sorts. What must not depend on it is tested with both.
  enum class Order : std::uint8_t { kAsWritten, kSorted };

  explicit MemoryRegistry(Order order = Order::kAsWritten);
  ~MemoryRegistry() override;
  std::unique_ptr<RegistryKey> Open(RegistryRoot root, const std::wstring& path) override;
  std::unique_ptr<RegistryKey> Create(RegistryRoot root, const std::wstring& path) override;
  RegistryStatus DeleteTree(RegistryRoot root, const std::wstring& path) override;

 private:
  struct Node;
  class OpenKey;

  std::shared_ptr<Node> RootOf(RegistryRoot root) const;

  Order order_;
  std::shared_ptr<Node> currentUser_;
  std::shared_ptr<Node> localMachine_;
};

}  // namespace tidewell
