// The filters file: five lines of 16-bit little-endian characters per filter, read back byte by
// byte. docs/filters-file.md describes it.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>

#include "categories/records.h"

namespace tidewell {

std::wstring FormatFilters(const FilterSet& filters);

// Nothing unless the file holds exactly 32 filters, headed by 0 to 31 in that order.
std::optional<FilterSet> ReadFilters(std::span<const std::byte> file);

// A file with more bytes is not read.
inline constexpr std::size_t kLargestFiltersFile = 4 * 1024 * 1024;

}  // namespace tidewell
