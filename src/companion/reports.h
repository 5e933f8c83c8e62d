// What the companion tells of backups: their settings, what differs between two, what there is.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "companion/backup_settings.h"
#include "companion/listing.h"

namespace tidewell {

// Whether a page goes by that name: its title in either language, or its registry key.
bool IsOfGroup(const MeaningDevice& device, const Meaning& meaning, const std::wstring& group);
// The same for a key below the product's, by the first name behind that.
bool IsOfGroup(const MeaningDevice& device, const std::wstring& path, const std::wstring& group);
bool IsCategoriesGroup(const std::wstring& group);
bool IsFiltersGroup(const std::wstring& group);
// The first of them that is none; nothing when all are.
std::optional<std::wstring> FindUnknownGroup(const MeaningDevice& device,
                                             const std::vector<std::wstring>& groups);

// Every setting by page and tab, then what the catalogue does not know, categories and filters. Of
// the groups that are named, or all.
std::vector<Record> ShowBackup(BackupSettings& backup, const std::vector<std::wstring>& groups,
                               bool changedOnly);
// One setting as ShowBackup has it, or a value that the catalogue does not know.
Record ShowMeaning(BackupSettings& backup, const Meaning& meaning);
Record ShowValue(BackupSettings& backup, const StoredValue& value);
// What differs, in the same order: old and new.
std::vector<Record> CompareBackups(BackupSettings& left, BackupSettings& right);
// All settings with their types, defaults and choices.
std::vector<Record> ListSettings(MeaningDevice& device, const std::vector<std::wstring>& groups);

std::wstring CategoryInWords(const CategoryLines& category, const MeaningDevice& device);
std::wstring FilterInWords(const FilterLines& filter, const MeaningDevice& device);
// "TabSettings/Clock/DLL"; the product's own values stand below "Tidewell".
std::wstring NameOf(const BackupDocument& document, const StoredValue& value);

}  // namespace tidewell
