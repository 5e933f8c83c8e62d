// The hosted Today plug-ins: one subkey of TabSettings each, named after the plug-in.
#pragma once

#include <set>
#include <string>

#include "platform/registry.h"
#include "settings/tab_list.h"

namespace tidewell {

// The order of a hosted tab that has none of its own: behind the built-in ones.
inline constexpr std::int32_t kHostedOrder = 9;

// Knows which subkeys it has read, for only those are ever emptied or deleted: whatever else stands
// below TabSettings was refused, has come since, or is not ours.
class HostedPlugins {
 public:
  // Adds an entry for every hosted plug-in below TabSettings, at the place of its order. A subkey
  // that cannot be read adds nothing. False when there is or may be one of those; the key is null
  // when it could not be opened.
  bool Read(Registry& registry, RegistryKey* tabSettingsKey, TabList& tabs);

  // Makes the subkeys hold the list's hosted entries and nothing else, so that at every moment each
  // value is the old or the new one: what is there already is not written, what differs is written
  // before anything is deleted. Failures are silent.
  void Save(Registry& registry, const TabList& tabs);

 private:
  void SaveEntry(Registry& registry, const TabEntry& entry);

  std::set<std::wstring> names_;
};

}  // namespace tidewell
