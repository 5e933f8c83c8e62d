// The two commands of the tools list that save and restore everything: the dialogs and messages
// around a backup.
#pragma once

#include <string>

#include "backup/settings_backup.h"
#include "platform/language.h"
#include "platform/machine.h"
#include "platform/scale.h"
#include "ui/user_dialogs.h"

namespace tidewell {

// What the commands work on; everything in it outlives them.
struct BackupCommands {
  const Machine& machine;
  SettingsStore& settings;
  CategoryCatalog& categories;
  Language& language;
  const ScreenScale& scale;
  UserDialogs& dialogs;

  void ExportSettingsBackup();
  // True when the settings were replaced: the Today item is to be told and the program to end, so
  // that nothing can write older settings over the new ones.
  bool ImportSettingsBackup();

 private:
  bool Choose(FileNameRequest& request);
  bool Confirm(const std::wstring& question);
  ImportQuestions Questions();
  void SayReplacedInPart(const std::wstring& copy);
  void SayDone(FileStatus filters);
};

}  // namespace tidewell
