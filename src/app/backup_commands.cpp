#include "app/backup_commands.h"

#include <utility>

#include "app/settings_changed.h"
#include "platform/text.h"
#include "resources/text/text_ids.h"
#include "ui/file_name_dialog.h"

namespace tidewell {

namespace {

constexpr const wchar_t* kBackupFolder = L"\\My Documents";

constexpr const wchar_t* kNextParagraph = L"\n\n";
constexpr std::size_t kLongestKeyShown = 96;

std::wstring Quoted(const std::wstring& text) {
  return L" \"" + text + L"\"";
}

// As the system's own tools name it, with room for it on a small screen.
std::wstring KeyShown(const std::wstring& key) {
  std::wstring shown = L"HKEY_CURRENT_USER\\" + key;
  if (shown.size() > kLongestKeyShown) shown.replace(kLongestKeyShown, shown.npos, L"...");
  return shown;
}

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

std::wstring BackupCommands::Text(unsigned id) const {
  return TextOf(language.get(), id);
}

void BackupCommands::Say(HWND owner, const std::wstring& text, unsigned captionId) {
  ask(owner, text, Text(captionId), MB_OK);
}

bool BackupCommands::Confirm(HWND owner, const std::wstring& question) {
  return ask(owner, question, Text(IDS_IMPORT_QUESTION_CAPTION), MB_YESNO | MB_DEFBUTTON2) == IDYES;
}

ImportQuestions BackupCommands::Questions(HWND owner) {
  return {[this, owner](const std::wstring& key) {
            return Confirm(owner, Text(IDS_IMPORT_OUTSIDE) + Quoted(KeyShown(key)) +
                                      kNextParagraph + Text(IDS_IMPORT_OUTSIDE_QUESTION));
          },
          [this, owner] { return Confirm(owner, Text(IDS_IMPORT_NO_COPY_QUESTION)); }};
}

void BackupCommands::ExportSettingsBackup(HWND owner) {
  const SettingsBackup backup(machine, settings, categories);
  FileNameRequest request;
  request.title = kExportTitle;
  request.initialName = backup.DefaultExportName();
  if (!Choose(owner, request)) return;
  std::wstring message = Text(IDS_EXPORT_DONE) + Quoted(request.resultPath);
  // There is only this one message; where nothing was written it says so too.
  if (!backup.ExportTo(request.resultPath))
    message += kNextParagraph + Text(IDS_EXPORT_NOT_WRITTEN);
  Say(owner, message, IDS_EXPORT_DONE_CAPTION);
}

void BackupCommands::ImportSettingsBackup(HWND owner) {
  SettingsBackup backup(machine, settings, categories);
  FileNameRequest request;
  request.title = kImportTitle;
  if (!Choose(owner, request)) return;
  const ImportOutcome outcome =
      backup.ImportFrom(request.resultPath, Questions(owner), scale, language);
  switch (outcome.result) {
    case ImportResult::kDeclined:
      return;
    case ImportResult::kRefused:
      Say(owner, Text(IDS_IMPORT_FAILED) + kNextParagraph + Text(IDS_IMPORT_NOTHING_CHANGED),
          IDS_IMPORT_FAILED_CAPTION);
      return;
    case ImportResult::kReplacedInPart:
      SayReplacedInPart(owner, outcome.copy);
      return;
    case ImportResult::kDone:
      break;
  }
  Say(owner, Text(IDS_IMPORT_DONE), IDS_IMPORT_DONE_CAPTION);
  BroadcastSettingsChanged();
  DestroyWindow(owner);
}

void BackupCommands::SayReplacedInPart(HWND owner, const std::wstring& copy) {
  std::wstring message = Text(IDS_IMPORT_FAILED) + kNextParagraph + Text(IDS_IMPORT_IN_PART);
  if (!copy.empty()) message += L' ' + Text(IDS_IMPORT_GO_BACK) + Quoted(copy);
  Say(owner, message, IDS_IMPORT_FAILED_CAPTION);
}

}  // namespace tidewell
