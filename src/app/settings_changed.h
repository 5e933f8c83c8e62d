// Tells the Today item, and whoever else listens, that the registry holds new settings.
#pragma once

namespace tidewell {

// Posts the settings-changed message to every top-level window, so that a receiver that hangs
// cannot hold the caller up.
void BroadcastSettingsChanged();

}  // namespace tidewell
