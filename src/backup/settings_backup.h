// The export and the import of all settings, without their dialogs and messages.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "backup/registry_text.h"
#include "categories/category_catalog.h"
#include "platform/machine.h"
#include "platform/replacement_file.h"
#include "settings/settings_store.h"

namespace tidewell {

inline constexpr const wchar_t* kBackupExtension = L"twsb";
inline constexpr const wchar_t* kBackupTypeLabel = L"TW Settings Backup (twsb)";
inline constexpr const wchar_t* kExportTitle = L"Export TW Settings";
inline constexpr const wchar_t* kImportTitle = L"Import TW Settings";
// Larger files are refused: backups, and copies, which have room for more than any registry holds
// and can still be read.
inline constexpr std::uint64_t kLargestBackup = 16 * 1024 * 1024;
inline constexpr std::uint64_t kLargestCopy = 16 * kLargestBackup;
inline constexpr std::size_t kCopiesKept = 5;

// Asked before anything is changed; true goes on.
struct ImportQuestions {
  // The backup writes to this key, which is not the product's.
  std::function<bool(const std::wstring& key)> writesOutside;
  // The present settings could not be copied. kOk when the copy was written, but not all of them
  // could be read for it.
  std::function<bool(FileStatus cause)> lacksCopy;
};

enum class ImportResult : std::uint8_t {
  kRefused,         // the file is no backup; nothing was changed
  kDeclined,        // a question was answered with no; nothing was changed
  kReplacedInPart,  // a key could not be created; what was read before that stays
  kDone,
};

struct ImportOutcome {
  ImportResult result = ImportResult::kRefused;
  std::wstring copy;  // the name of the copy beside the backup; empty when there is none
  // With kRefused why the backup could not be read, with kDone why the filters file could not be
  // written.
  FileStatus cause = FileStatus::kOk;
};

class SettingsBackup {
 public:
  SettingsBackup(const Machine& machine, SettingsStore& store, CategoryCatalog& catalog)
      : machine_(machine), store_(store), catalog_(catalog) {}

  // Without the extension: "TW_Backup_2026_11_15".
  std::wstring DefaultExportName() const;

  // Leaves the whole new backup, or what was there; kOther also when the registry is not to be
  // read.
  FileStatus ExportTo(const std::wstring& path) const;

  // Replaces the settings by those of a backup; before the first change the present ones go to a
  // copy beside it. Then the store is loaded anew, with its language library, categories and
  // filters are saved, and of the copies in the folder the newest kCopiesKept stay.
  ImportOutcome ImportFrom(const std::wstring& path, const ImportQuestions& questions,
                           const ScreenScale& scale, Language& language);

 private:
  struct Copy {
    std::wstring name;  // empty when it could not be written
    bool isWhole = false;
    FileStatus status = FileStatus::kOk;
  };
  // False when something was not to be read; whether all was written the file's commit tells.
  bool WriteTo(ReplacementFile& file, TextKind kind) const;
  Copy WriteCopy(const std::wstring& folder) const;
  ImportOutcome ImportFrom(TextReader& text, const std::wstring& folder,
                           const ImportQuestions& questions) const;
  void RemoveOldCopies(const std::wstring& folder, const std::wstring& newest) const;

  Machine machine_;
  SettingsStore& store_;
  CategoryCatalog& catalog_;
};

}  // namespace tidewell
