// The two commands of the tools list that save and restore everything: the dialogs and messages
// around a backup.
#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "backup/settings_backup.h"
#include "platform/libraries.h"
#include "platform/machine.h"
#include "platform/scale.h"
#include "ui/file_name_dialog_model.h"
#include "ui/full_screen_dialog.h"

namespace tidewell {

// MessageBoxW, or a test's answer in its place.
using Ask = std::function<int(HWND owner, const std::wstring& text, const std::wstring& caption,
                              UINT buttons)>;
// Shows the backups of a folder and lets the user name one. False when cancelled, else the request
// holds the path.
using ChooseBackup = std::function<bool(const DialogContext& dialog, FileNameRequest& request)>;

bool ChooseBackupInDialog(const DialogContext& dialog, FileNameRequest& request);

// What the commands work on; everything in it outlives them.
struct BackupCommands {
  Machine& machine;
  SettingsStore& settings;
  CategoryCatalog& categories;
  std::unique_ptr<ResourceLibrary>& language;
  const ScreenScale& scale;
  const Ask& ask;
  const ChooseBackup& choose;

  void ExportSettingsBackup(HWND owner);
  // After an import that succeeded the Today item has been told and `owner` is destroyed, so that
  // nothing can write older settings over the new ones.
  void ImportSettingsBackup(HWND owner);

 private:
  bool Choose(HWND owner, FileNameRequest& request);
  std::wstring Text(unsigned id) const;
  void Say(HWND owner, const std::wstring& text, unsigned captionId);
  bool Confirm(HWND owner, const std::wstring& question);
  ImportQuestions Questions(HWND owner);
  void SayReplacedInPart(HWND owner, const std::wstring& copy);
};

}  // namespace tidewell
