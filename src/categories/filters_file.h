// The filters file: five lines of 16-bit little-endian characters per filter, read back byte by
// byte. docs/filters-file.md describes it.
#pragma once

#include <optional>

#include "categories/records.h"
#include "platform/files.h"

namespace tidewell {

std::wstring FormatFilters(const FilterSet& filters);

// Nothing unless the text holds exactly 32 filters, headed by 0 to 31 in that order. `refused`,
// where given, tells whether the text could not be read to its end.
std::optional<FilterSet> ReadFilters(InputStream& input, bool* refused = nullptr);

}  // namespace tidewell
