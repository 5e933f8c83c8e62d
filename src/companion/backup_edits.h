// Changes of a backup: single values, what another backup has, a scheme. Each leaves the lines that
// it is not about as they are.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "companion/backup_settings.h"

namespace tidewell {

struct NamedSetting {
  const Meaning* meaning;
  Setting* setting;
};

// By a registry name ("Calendar/dNumOfDays", "dNumOfDays", "Fonts/FontGeneral") or by a label in
// either language ("Days shown", "Kalender/Tage"), without regard to letter case. A font is six. On
// trouble none, and a sentence that says what to do.
std::vector<NamedSetting> FindNamed(const BackupSettings& backup, const std::wstring& name,
                                    std::string& trouble);

// These change the document, which is that of the settings. Empty when all went well, else one
// sentence; the document is of no use then.

// Each "NAME=VALUE", the value as a number or in words, or "default", which removes it.
std::string SetByName(BackupDocument& document, const BackupSettings& settings,
                      const std::vector<std::wstring>& assignments);

struct MergeChoice {
  std::vector<std::wstring> only;    // groups and names; all when there is none
  std::vector<std::wstring> except;  // names
};
// A setting of the chosen groups gets the other backup's value, its default included; other values,
// categories and filters are added or replaced, never removed.
std::string Merge(BackupDocument& document, const BackupSettings& from, const MergeChoice& choice);

// The colours, fonts and categories as a scheme file has them.
std::string SchemeOf(const BackupDocument& document, std::vector<std::byte>& scheme);
// Those of the scheme in place of all that the backup has; of categories those that it has.
std::string ApplyScheme(BackupDocument& document, const BackupDocument& scheme);

}  // namespace tidewell
