// Choosing one colour over the whole screen. Windows only.
#pragma once

#include "preview/color.h"
#include "ui/windows/full_screen_dialog.h"

namespace tidewell {

// Begins at `color`, which may be kNoColor. 1 when the user confirmed a colour, which is there
// then, kNoColor only where `allowsDefault`; 0 when cancelled, with kColorCancelled there.
int RunColorPicker(const DialogContext& context, Color& color, bool allowsDefault);

}  // namespace tidewell
