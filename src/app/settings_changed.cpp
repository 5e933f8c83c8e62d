#include "app/settings_changed.h"

#include <windows.h>

namespace tidewell {

namespace {

const UINT settingsChangedMessage = RegisterWindowMessageW(L"VelmontTidewellSettingsChanged");

}  // namespace

void BroadcastSettingsChanged() {
  PostMessageW(HWND_BROADCAST, settingsChangedMessage, 0, 0);
}

}  // namespace tidewell
