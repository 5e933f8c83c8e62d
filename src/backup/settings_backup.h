// The export and the import of all settings, without their dialogs and messages.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "backup/registry_text.h"
#include "categories/category_catalog.h"
#include "platform/machine.h"
#include "settings/settings_store.h"

namespace tidewell {

inline constexpr const wchar_t* kBackupExtension = L"twsb";
inline constexpr const wchar_t* kBackupTypeLabel = L"TW Settings Backup (twsb)";
inline constexpr const wchar_t* kExportTitle = L"Export TW Settings";
inline constexpr const wchar_t* kImportTitle = L"Import TW Settings";
inline constexpr const wchar_t* kBeforeImportName = L"TW_BeforeImport.twsb";

enum class ImportResult : std::uint8_t {
  kUnreadable,  // nothing was changed
  kRejected,    // no backup, or a key that cannot be created; what was read before that stays
  kDone,
};

class SettingsBackup {
 public:
  SettingsBackup(const Machine& machine, SettingsStore& store, CategoryCatalog& catalog)
      : machine_(machine), store_(store), catalog_(catalog) {}

  // Without the extension: "TW_Backup_2026_11_15".
  std::wstring DefaultExportName() const;

  // Leaves the whole new backup, or what was there and false.
  bool ExportTo(const std::wstring& path) const;

  // Replaces the settings by those of a backup; before the first change the present ones go to
  // TW_BeforeImport.twsb beside it, as far as that can be written. Then the store is loaded anew,
  // with its language library, and categories and filters are saved.
  ImportResult ImportFrom(const std::wstring& path, const ScreenScale& scale,
                          std::unique_ptr<ResourceLibrary>& language);

 private:
  bool Write(const std::wstring& path, TextLimits limits) const;

  Machine machine_;
  SettingsStore& store_;
  CategoryCatalog& catalog_;
};

}  // namespace tidewell
