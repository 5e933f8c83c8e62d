#include "app/backup_commands.h"

#include "platform/text.h"
#include "resources/text/text_ids.h"
#include "ui/file_advice.h"
#include "ui/user_dialogs.h"

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

}  // namespace

bool BackupCommands::Choose(FileNameRequest& request) {
  machine.files.MakeFolder(kBackupFolder);
  request.folder = FolderConfirmedLast(machine.files, kBackupFolder);
  request.extension = kBackupExtension;
  request.typeLabel = kBackupTypeLabel;
  request.listsFolders = false;
  return dialogs.ChooseFileName(request);
}

bool BackupCommands::Confirm(const std::wstring& question) {
  return dialogs.Ask(question, language.Text(IDS_IMPORT_QUESTION_CAPTION), false);
}

ImportQuestions BackupCommands::Questions() {
  return {[this](const std::wstring& key) {
            return Confirm(language.Text(IDS_IMPORT_OUTSIDE) + Quoted(KeyShown(key)) +
                           kNextParagraph + language.Text(IDS_IMPORT_OUTSIDE_QUESTION));
          },
          [this](FileStatus cause) {
            return Confirm(WithAdvice(language, IDS_IMPORT_NO_COPY, cause) + kNextParagraph +
                           language.Text(IDS_IMPORT_NO_COPY_QUESTION));
          }};
}

void BackupCommands::ExportSettingsBackup() {
  const SettingsBackup backup(machine, settings, categories);
  FileNameRequest request;
  request.title = kExportTitle;
  request.initialName = backup.DefaultExportName();
  if (!Choose(request)) return;
  std::wstring message = language.Text(IDS_EXPORT_DONE) + Quoted(request.resultPath);
  // There is only this one message; where nothing was written it says so too.
  const FileStatus status = backup.ExportTo(request.resultPath);
  if (status != FileStatus::kOk)
    message += kNextParagraph + WithAdvice(language, IDS_EXPORT_NOT_WRITTEN, status);
  dialogs.ShowMessage(message, language.Text(IDS_EXPORT_DONE_CAPTION));
}

bool BackupCommands::ImportSettingsBackup() {
  SettingsBackup backup(machine, settings, categories);
  FileNameRequest request;
  request.title = kImportTitle;
  if (!Choose(request)) return false;
  const ImportOutcome outcome = backup.ImportFrom(request.resultPath, Questions(), scale, language);
  switch (outcome.result) {
    case ImportResult::kDeclined:
      return false;
    case ImportResult::kRefused:
      dialogs.ShowMessage(language.Text(IDS_IMPORT_FAILED) + kNextParagraph +
                              WithAdvice(language, IDS_IMPORT_NOTHING_CHANGED, outcome.cause),
                          language.Text(IDS_IMPORT_FAILED_CAPTION));
      return false;
    case ImportResult::kReplacedInPart:
      SayReplacedInPart(outcome.copy);
      return false;
    case ImportResult::kDone:
      break;
  }
  SayDone(outcome.cause);
  return true;
}

void BackupCommands::SayReplacedInPart(const std::wstring& copy) {
  std::wstring message =
      language.Text(IDS_IMPORT_FAILED) + kNextParagraph + language.Text(IDS_IMPORT_IN_PART);
  if (!copy.empty()) message += L' ' + language.Text(IDS_IMPORT_GO_BACK) + Quoted(copy);
  dialogs.ShowMessage(message, language.Text(IDS_IMPORT_FAILED_CAPTION));
}

void BackupCommands::SayDone(FileStatus filters) {
  std::wstring message = language.Text(IDS_IMPORT_DONE);
  if (filters != FileStatus::kOk)
    message += kNextParagraph + WithAdvice(language, IDS_FILTERS_NOT_WRITTEN, filters);
  dialogs.ShowMessage(message, language.Text(IDS_IMPORT_DONE_CAPTION));
}

}  // namespace tidewell
