// Text is UTF-16 code units, one per wchar_t, on every platform. These few functions replace the
// C library's, whose answers differ between platforms.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tidewell {

// Lower case of one UTF-16 unit for comparing names: Latin, Greek and Cyrillic letters; every
// other unit stands for itself.
wchar_t FoldCase(wchar_t unit);
bool EqualIgnoringCase(std::wstring_view left, std::wstring_view right);
// Below, equal to or above 0, by folded code units.
int CompareFolded(std::wstring_view left, std::wstring_view right);

// A signed decimal number: "-1", "0", "2147483647".
std::wstring FormatDecimal(std::int32_t number);

// A text whose "%d" stands for a number.
std::wstring WithNumber(std::wstring text, std::int32_t number);

// strtol's reading on a 32-bit system: leading white space, a sign, digits up to the first other
// character; no number gives 0, too large a one INT32_MAX or INT32_MIN. Base 0 finds 0x and a
// leading 0 itself.
std::int32_t ParseNumber(std::wstring_view text, int base);

// UTF-16 little-endian bytes of a text, without terminator, and back (an odd last byte is
// dropped).
std::vector<std::byte> BytesOf(std::wstring_view text);
std::wstring TextOfBytes(std::span<const std::byte> bytes);

// A folder and a name with exactly one backslash between them.
std::wstring JoinPath(std::wstring_view folder, std::wstring_view name);

}  // namespace tidewell
