// The registry as it would be after a save, for whoever writes down what is set now. Only read:
// nothing that is not saved yet gets into the registry.
#pragma once

#include <vector>

#include "platform/registry.h"
#include "settings/setting.h"

namespace tidewell {

class ChangedRegistry final : public Registry {
 public:
  // Registry and groups outlive it.
  ChangedRegistry(Registry& registry, std::vector<SettingGroup*> groups)
      : registry_(registry), groups_(std::move(groups)) {}

  // The values of a group's key can be enumerated from the first one on, in turn; no more.
  std::unique_ptr<RegistryKey> Open(RegistryRoot root, const std::wstring& path) override;
  std::unique_ptr<RegistryKey> Create(RegistryRoot root, const std::wstring& path) override;
  RegistryStatus DeleteTree(RegistryRoot, const std::wstring&) override {
    return kStatusAccessDenied;
  }

 private:
  std::unique_ptr<RegistryKey> WithChanges(std::unique_ptr<RegistryKey> key, RegistryRoot root,
                                           const std::wstring& path) const;

  Registry& registry_;
  std::vector<SettingGroup*> groups_;
};

}  // namespace tidewell
