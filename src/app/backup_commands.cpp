#include "app/backup_commands.h"

#include <utility>

#include "app/settings_changed.h"
#include "platform/text.h"
#include "resources/text/text_ids.h"
#include "ui/file_name_dialog.h"

namespace tidewell {

namespace {

constexpr const wchar_t* kBackupFolder = L"\\My Documents";

// Beside the folders above, only backups are of interest here.
class BackupDialogModel final : public FileNameDialogModel {
 public:
  using FileNameDialogModel::FileNameDialogModel;

 protected:
  bool Lists(bool isFolder, const std::wstring&) const override { return !isFolder; }
};

}  // namespace

bool ChooseBackupInDialog(const DialogContext& dialog, FileNameRequest& request) {
  BackupDialogModel model(dialog.machine.files, dialog.machine.locale, request);
  return RunFileNameDialog(dialog, model) == 1;
}

bool BackupCommands::Choose(HWND owner, FileNameRequest& request) {
  machine.files.MakeFolder(kBackupFolder);
  request.folder = FolderConfirmedLast(machine.files, kBackupFolder);
  request.extension = kBackupExtension;
  request.typeLabel = kBackupTypeLabel;
  return choose({owner, machine, language.get(), scale}, request);
}

void BackupCommands::Say(HWND owner, std::wstring text, unsigned captionId) {
  ask(owner, text, TextOf(language.get(), captionId), MB_OK);
}

void BackupCommands::ExportSettingsBackup(HWND owner) {
  const SettingsBackup backup(machine, settings, categories);
  FileNameRequest request;
  request.title = kExportTitle;
  request.initialName = backup.DefaultExportName();
  if (!Choose(owner, request)) return;
  backup.ExportTo(request.resultPath);
  // The only message that an export has, also where the file could not be made.
  Say(owner, TextOf(language.get(), IDS_EXPORT_DONE) + L" \"" + request.resultPath + L"\"",
      IDS_EXPORT_DONE_CAPTION);
}

void BackupCommands::ImportSettingsBackup(HWND owner) {
  SettingsBackup backup(machine, settings, categories);
  FileNameRequest request;
  request.title = kImportTitle;
  if (!Choose(owner, request)) return;
  if (backup.ImportFrom(request.resultPath, scale, language) != ImportResult::kDone) {
    Say(owner, TextOf(language.get(), IDS_IMPORT_FAILED), IDS_IMPORT_FAILED_CAPTION);
    return;
  }
  Say(owner, TextOf(language.get(), IDS_IMPORT_DONE), IDS_IMPORT_DONE_CAPTION);
  BroadcastSettingsChanged();
  DestroyWindow(owner);
}

}  // namespace tidewell
