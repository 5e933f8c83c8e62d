// Files of rules that show texts as they are, without a language's escapes.
#pragma once

#include <string>

#include "platform/text.h"

namespace tidewell {

// A line of such a file and its "\n". In it <CR> stands for a carriage return and <5 x> for xxxxx;
// <END> behind it takes the "\n" away.
inline std::wstring Expanded(const std::string& line) {
  std::wstring text(line.begin(), line.end());
  if (text.ends_with(L"<END>")) {
    text.resize(text.size() - 5);
  } else {
    text += L'\n';
  }
  const std::size_t from = text.find(L'<');
  const std::size_t to = text.find(L'>', from);
  if (to == std::wstring::npos) return text;
  const auto count = static_cast<std::size_t>(ParseNumber(text.substr(from + 1), 10));
  const std::wstring meant = count == 0 ? L"\r" : std::wstring(count, text[to - 1]);
  return text.replace(from, to + 1 - from, meant);
}

}  // namespace tidewell
