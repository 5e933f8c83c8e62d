// Typing one line of text over the whole screen. Windows only.
#pragma once

#include "ui/dialog_requests.h"
#include "ui/windows/full_screen_dialog.h"

namespace tidewell {

// The text that was taken; nothing when cancelled.
std::optional<std::wstring> EnterText(const DialogContext& context, const TextRequest& request);

}  // namespace tidewell
