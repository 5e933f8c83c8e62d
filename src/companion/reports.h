// What the companion tells of backups: their settings, what differs between two, what there is.
#pragma once

#include <string>
#include <vector>

#include "companion/backup_settings.h"
#include "companion/listing.h"

namespace tidewell {

// Whether a page goes by that name: its title in either language, or its registry key.
bool IsOfGroup(const Meaning& meaning, const std::wstring& group);
// Which keys of the backup are of any of the groups: those of the product by the first name behind
// it. All, without groups.
std::vector<bool> KeysOfGroups(const BackupSettings& backup,
                               const std::vector<std::wstring>& groups);
bool IsCategoriesGroup(const std::wstring& group);
bool IsFiltersGroup(const std::wstring& group);
bool IsGroup(const MeaningDevice& device, const std::wstring& word);
// What the owner calls them.
std::vector<std::wstring> GroupTitles(const MeaningDevice& device);

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

// "TabSettings/Clock/DLL"; the product's own values stand below "Tidewell".
std::wstring NameOf(const BackupDocument& document, const StoredValue& value);
// With either slash, without regard to letter case.
bool IsNamed(const BackupDocument& document, const StoredValue& value, std::wstring name);

}  // namespace tidewell
