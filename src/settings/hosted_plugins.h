// The hosted Today plug-ins: one subkey of TabSettings each, named after the plug-in.
#pragma once

#include "platform/registry.h"
#include "settings/tab_list.h"

namespace tidewell {

// The order of a hosted tab that has none of its own: behind the built-in ones.
inline constexpr std::int32_t kHostedOrder = 9;

// Adds an entry for every hosted plug-in below TabSettings, at the place of its order. A subkey
// that cannot be opened adds nothing.
void ReadHostedPlugins(Registry& registry, RegistryKey& tabSettingsKey, TabList& tabs);

// Deletes the subkeys of all hosted plug-ins.
void DeleteHostedPlugins(Registry& registry, RegistryKey& tabSettingsKey);

// Writes every hosted entry of the list into its own subkey.
void WriteHostedPlugins(Registry& registry, const TabList& tabs);

}  // namespace tidewell
