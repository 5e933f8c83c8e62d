// Choosing one of several lines over the whole screen. Windows only.
#pragma once

#include "ui/dialog_requests.h"
#include "ui/windows/full_screen_dialog.h"

namespace tidewell {

// Nothing when cancelled.
std::optional<std::size_t> ChooseLine(const DialogContext& context, const LineRequest& request);

}  // namespace tidewell
