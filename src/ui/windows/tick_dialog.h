// Ticking lines of a list over the whole screen. Windows only.
#pragma once

#include "ui/dialog_requests.h"
#include "ui/windows/full_screen_dialog.h"

namespace tidewell {

// False when cancelled.
bool TickLines(const DialogContext& context, TickRequest& request);

}  // namespace tidewell
