#include "tests/support/utf8.h"

#include <cstdint>

namespace tidewell {

std::string Utf8(std::wstring_view text) {
  std::string bytes;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto unitAt = [&](std::size_t at) {
      return at < text.size() ? static_cast<std::uint32_t>(text[at]) & 0xFFFFu : 0u;
    };
    std::uint32_t code = unitAt(i);
    if ((code & 0xFC00u) == 0xD800u && (unitAt(i + 1) & 0xFC00u) == 0xDC00u) {
      code = 0x10000u + ((code & 0x3FFu) << 10) + (unitAt(++i) & 0x3FFu);
    }
    const unsigned tails = code < 0x80 ? 0 : code < 0x800 ? 1 : code < 0x10000 ? 2 : 3;
    constexpr std::uint32_t kMarks[] = {0, 0xC0, 0xE0, 0xF0};
    bytes += static_cast<char>(kMarks[tails] | code >> 6 * tails);
    for (unsigned tail = tails; tail-- > 0;) {
      bytes += static_cast<char>(0x80u | (code >> 6 * tail & 0x3Fu));
    }
  }
  return bytes;
}

}  // namespace tidewell
