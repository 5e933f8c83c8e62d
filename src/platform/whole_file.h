// A file's contents in one piece.
#pragma once

#include <cstddef>
#include <limits>
#include <string>
#include <vector>

#include "platform/files.h"

namespace tidewell {

struct WholeFile {
  std::vector<std::byte> bytes;  // none unless the status is kOk
  FileStatus status = FileStatus::kOther;
};

// kOther when the file cannot be read to its end or has more than `limit` bytes.
WholeFile ReadWholeFile(Files& files, const std::wstring& path,
                        std::size_t limit = std::numeric_limits<std::size_t>::max());

}  // namespace tidewell
