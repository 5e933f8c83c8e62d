// Naming a file over the whole screen, to save or to load it. Windows only.
#pragma once

#include "ui/file_name_dialog_model.h"
#include "ui/windows/full_screen_dialog.h"

namespace tidewell {

// 1 when a name was confirmed and the request has its path, 0 when cancelled. A caller with rules
// of its own brings a model of its own.
int RunFileNameDialog(const DialogContext& context, FileNameDialogModel& model);
int RunFileNameDialog(const DialogContext& context, FileNameRequest& request);

}  // namespace tidewell
