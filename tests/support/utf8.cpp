#include "tests/support/utf8.h"

#include <cstdint>

namespace tidewell {

namespace {

bool IsBetween(wchar_t unit, unsigned first, unsigned last) {
  return static_cast<unsigned>(unit) >= first && static_cast<unsigned>(unit) <= last;
}

}  // namespace

std::string Utf8(std::wstring_view text) {
  std::string bytes;
  for (std::size_t i = 0; i < text.size(); ++i) {
    auto code = static_cast<std::uint32_t>(text[i]) & 0xFFFFu;
    if (IsBetween(text[i], 0xD800, 0xDBFF) && i + 1 < text.size() &&
        IsBetween(text[i + 1], 0xDC00, 0xDFFF)) {
      code =
          0x10000u + ((code - 0xD800u) << 10) + (static_cast<std::uint32_t>(text[++i]) - 0xDC00u);
    }
    const auto tail = [&](unsigned shift) {
      bytes += static_cast<char>(0x80u | ((code >> shift) & 0x3Fu));
    };
    if (code < 0x80) {
      bytes += static_cast<char>(code);
    } else if (code < 0x800) {
      bytes += static_cast<char>(0xC0u | (code >> 6));
      tail(0);
    } else if (code < 0x10000) {
      bytes += static_cast<char>(0xE0u | (code >> 12));
      tail(6);
      tail(0);
    } else {
      bytes += static_cast<char>(0xF0u | (code >> 18));
      tail(12);
      tail(6);
      tail(0);
    }
  }
  return bytes;
}

}  // namespace tidewell
