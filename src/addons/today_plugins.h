// The other plug-ins that are registered with the Today screen.
#pragma once

#include <string>
#include <vector>

#include "platform/registry.h"

namespace tidewell {

class TodayPlugins {
 public:
  explicit TodayPlugins(Registry& registry) : registry_(registry) {}

  // The names of those that a tab can host, in the registry's order. Makes their key when it is
  // missing.
  std::vector<std::wstring> Hostable() const;
  // One that does not tell is on the Today screen.
  bool IsEnabled(const std::wstring& name) const;
  // Takes it off the Today screen, which is not told.
  void Disable(const std::wstring& name) const;
  std::wstring LibraryOf(const std::wstring& name) const;

 private:
  std::unique_ptr<RegistryKey> Open(const std::wstring& name) const;

  Registry& registry_;
};

}  // namespace tidewell
