// A file's contents in one piece.
#pragma once

#include <cstddef>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "platform/files.h"

namespace tidewell {

// Nothing when the file cannot be opened or read to its end, or has more than `limit` bytes.
std::optional<std::vector<std::byte>> ReadWholeFile(
    Files& files, const std::wstring& path,
    std::size_t limit = std::numeric_limits<std::size_t>::max());

}  // namespace tidewell
