// Texts in a form that test reports can print.
#pragma once

#include <string>
#include <string_view>

namespace tidewell {

// UTF-16 units as UTF-8; a lone surrogate becomes a three-byte sequence of its own.
std::string Utf8(std::wstring_view text);

}  // namespace tidewell
