// Editing size, style and colour of one font over the whole screen. Windows only.
#pragma once

#include "preview/color.h"
#include "settings/setting.h"
#include "ui/windows/full_screen_dialog.h"

namespace tidewell {

// 1 after OK; 0 when cancelled: the font is as it was then, but a colour that was confirmed in the
// picker stays chosen.
int RunFontDialog(const DialogContext& context, LogFont& font, Color& color);

}  // namespace tidewell
