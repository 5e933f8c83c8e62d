#include "backup/settings_backup.h"

#include <optional>

#include "backup/copy_names.h"
#include "platform/text.h"
#include "platform/whole_file.h"

namespace tidewell {

namespace {

bool BeginsAsCopy(Files& files, const std::wstring& path) {
  const std::vector<std::byte> wanted = BytesOf(L'\n' + std::wstring(kCopyMark));
  std::vector<std::byte> start(wanted.size());
  const auto input = files.OpenForReading(path).stream;
  return input && input->Read(start) == wanted.size() && start == wanted;
}

bool IsTooLarge(Files& files, const std::wstring& path) {
  const std::optional<FileEntry> entry = files.Find(path);
  if (!entry || entry->size <= kLargestBackup) return false;
  return entry->size > kLargestCopy || !BeginsAsCopy(files, path);
}

// What is named like a copy, and a little more.
std::vector<std::wstring> CopiesIn(Files& files, const std::wstring& folder) {
  std::vector<std::wstring> names;
  files.List(folder + std::wstring(kCopyPattern), [&](const FileEntry& entry) {
    names.push_back(entry.name);
    return true;
  });
  return names;
}

}  // namespace

std::wstring SettingsBackup::DefaultExportName() const {
  return L"TW_Backup_" + machine_.locale.FormatDate(machine_.locale.Now(), L"yyyy_MM_dd");
}

FileStatus SettingsBackup::ExportTo(const std::wstring& path) const {
  ReplacementFile file(machine_.files, path);
  return WriteTo(file, TextKind::kBackup) ? file.Commit() : FileStatus::kOther;
}

bool SettingsBackup::WriteTo(ReplacementFile& file, TextKind kind) const {
  if (!file.Stream()) return true;
  TextWriter text(*file.Stream());
  const bool wasRead =
      ExportRegistryText(machine_.registry, catalog_, std::wstring(kProductKey), text, kind);
  text.Flush();
  return wasRead;
}

SettingsBackup::Copy SettingsBackup::WriteCopy(const std::wstring& folder) const {
  const std::wstring name = NextCopyName(machine_.locale.Now(), CopiesIn(machine_.files, folder));
  ReplacementFile file(machine_.files, folder + name);
  const bool wasRead = WriteTo(file, TextKind::kCopy);
  const FileStatus status = file.CommitAsNew();
  if (status != FileStatus::kOk) return {{}, false, status};
  return {name, wasRead, status};
}

ImportOutcome SettingsBackup::ImportFrom(const std::wstring& path, const ImportQuestions& questions,
                                         const ScreenScale& scale, Language& language) {
  if (IsTooLarge(machine_.files, path)) return {};
  // Read whole before anything is changed: the card that holds it may be drawn out.
  const WholeFile file = ReadWholeFile(machine_.files, path);
  if (file.status != FileStatus::kOk) return {ImportResult::kRefused, {}, file.status};
  TextReader text(file.bytes);
  const std::wstring folder = FolderOf(path);
  ImportOutcome outcome = ImportFrom(text, folder, questions);
  if (outcome.result != ImportResult::kDone) return outcome;

  store_.Load(machine_, scale, language);
  catalog_.SaveCategoryValues();
  outcome.cause = catalog_.SaveFiltersFile();
  RemoveOldCopies(folder, outcome.copy);
  return outcome;
}

ImportOutcome SettingsBackup::ImportFrom(TextReader& text, const std::wstring& folder,
                                         const ImportQuestions& questions) const {
  const TextSurvey survey = SurveyRegistryText(text);
  if (!survey.isRegistryText) return {};
  if (survey.outsideKey && !questions.writesOutside(*survey.outsideKey)) {
    return {ImportResult::kDeclined, {}};
  }

  const Copy copy = WriteCopy(folder);
  const auto leaveAll = [&](ImportResult result) {
    if (!copy.name.empty()) machine_.files.Remove(folder + copy.name);
    return ImportOutcome{result, {}};
  };
  if (!copy.isWhole && !questions.lacksCopy(copy.status)) return leaveAll(ImportResult::kDeclined);

  switch (ImportRegistryText(machine_.registry, catalog_, text)) {
    case TextImport::kRefused:
      return leaveAll(ImportResult::kRefused);
    case TextImport::kInPart:
      return {ImportResult::kReplacedInPart, copy.name};
    case TextImport::kWhole:
      break;
  }
  return {ImportResult::kDone, copy.name};
}

// The one of this import counts as the newest, whatever the clock says: a battery that ran empty
// sets it back by years.
void SettingsBackup::RemoveOldCopies(const std::wstring& folder, const std::wstring& newest) const {
  std::vector<std::wstring> others = CopiesIn(machine_.files, folder);
  std::erase_if(others,
                [&](const std::wstring& name) { return !IsCopyName(name) || name == newest; });
  SortNewestFirst(others);
  const std::size_t kept = newest.empty() ? kCopiesKept : kCopiesKept - 1;
  for (std::size_t i = kept; i < others.size(); ++i) machine_.files.Remove(folder + others[i]);
}

}  // namespace tidewell
