#include "backup/settings_backup.h"

#include "backup/text_stream.h"
#include "platform/replacement_file.h"

namespace tidewell {

namespace {

// With the final backslash, empty for a bare name.
std::wstring FolderOf(const std::wstring& path) {
  return path.substr(0, path.rfind(L'\\') + 1);
}

}  // namespace

std::wstring SettingsBackup::DefaultExportName() const {
  return L"TW_Backup_" + machine_.locale.FormatDate(machine_.locale.Now(), L"yyyy_MM_dd");
}

bool SettingsBackup::ExportTo(const std::wstring& path) const {
  return Write(path, kBackupLimits);
}

bool SettingsBackup::Write(const std::wstring& path, TextLimits limits) const {
  ReplacementFile file(machine_.files, path);
  if (!file.Stream()) return false;
  TextWriter text(*file.Stream());
  ExportRegistryText(machine_.registry, catalog_, std::wstring(kProductKey), text, limits);
  return text.Flush() && file.Commit();
}

ImportResult SettingsBackup::ImportFrom(const std::wstring& path, const ScreenScale& scale,
                                        std::unique_ptr<ResourceLibrary>& language) {
  // Read whole before the copy is written: the copy itself may be the file to import.
  const auto bytes = ReadWholeFile(machine_.files, path);
  if (!bytes) return ImportResult::kUnreadable;
  BytesSource source(*bytes);
  TextReader text(source);
  // What is no backup changes nothing, so it must not cost the copy of an import before.
  if (!IsRegistryText(text)) return ImportResult::kRejected;
  Write(FolderOf(path) + kBeforeImportName, kCopyLimits);

  if (!ImportRegistryText(machine_.registry, catalog_, text)) return ImportResult::kRejected;
  store_.Load(machine_, scale, language);
  catalog_.SaveCategoryValues();
  catalog_.SaveFiltersFile();
  return ImportResult::kDone;
}

}  // namespace tidewell
