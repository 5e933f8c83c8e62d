// File name patterns as the device reads them.
#pragma once

#include <string_view>

namespace tidewell {

// `*` stands for any run of characters, `?` for exactly one, letter case does not matter, and
// "*.*" is every name, with or without a dot.
bool FitsPattern(std::wstring_view name, std::wstring_view pattern);

}  // namespace tidewell
