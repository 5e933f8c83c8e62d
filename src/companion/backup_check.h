// Goes through a backup and tells what an import would not bring back as it is written.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "companion/backup_settings.h"

namespace tidewell {

struct Finding {
  std::size_t line = 0;    // from 1; 0: the file as a whole
  std::size_t column = 0;  // from 1; 0: the line as a whole
  bool isLoss = false;     // an import does not bring this back; else it is merely worth knowing
  std::string text;        // UTF-8
};

// In the order of the lines. There is a loss exactly when an import does not restore all values,
// categories and filters as the file says them, on a device that has its categories.
std::vector<Finding> CheckLines(const BackupDocument& document);
// These, and values that are restored but of another use than the setting's.
std::vector<Finding> CheckBackup(BackupSettings& backup);

}  // namespace tidewell
