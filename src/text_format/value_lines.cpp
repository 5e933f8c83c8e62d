#include "text_format/value_lines.h"

#include <algorithm>

#include "platform/text.h"

namespace tidewell {

namespace {

constexpr std::size_t kDwordNameLimit = 127;

// The part from `from` up to, not including, `to`; empty where the two cross.
std::wstring_view Between(std::wstring_view line, std::size_t from, std::size_t to) {
  return from < to ? line.substr(from, to - from) : std::wstring_view();
}

void ExpandTemplate(std::wstring_view text, std::size_t limit, std::wstring& result) {
  result.clear();
  for (std::size_t i = 0; i < text.size() && result.size() < limit; ++i) {
    result += text[i];
    if (text.substr(i, 2) == L"%%") ++i;
  }
}

}  // namespace

void AppendStringLine(std::wstring& text, std::wstring_view name, std::wstring_view value) {
  text += L'"';
  text += name;
  text += kStringMarker;
  text += value;
  text += L'"';
}

void AppendDwordLine(std::wstring& text, std::wstring_view name, std::uint32_t number) {
  text += L'"';
  text += name;
  text += kDwordMarker;
  text += FormatDecimal(static_cast<std::int32_t>(number));
}

bool ParseValueLine(std::wstring_view line, ParsedValue& value) {
  value.name.clear();
  if (line.find(kStringMarker) != std::wstring_view::npos) {
    value.isNumber = false;
    value.text.clear();
    ParseStringValueLine(line, value.name, value.text);
    return true;
  }
  value.isNumber = line.find(kDwordMarker) != std::wstring_view::npos;
  value.number = 0;
  if (value.isNumber) ParseDwordValueLine(line, value.name, value.number, 10);
  return value.isNumber;
}

bool ParseSectionHeader(std::wstring_view line, std::wstring& name) {
  if (line.size() < 3 || line.front() != L'[' || line[line.size() - 2] != L']') return false;
  name = line.substr(1, line.size() - 3);
  return true;
}

bool ParseStringValueLine(std::wstring_view line, std::wstring& name, std::wstring& value) {
  if (line.size() <= 7 || line.front() != L'"' || line[line.size() - 2] != L'"') return false;
  const std::size_t marker = line.find(kStringMarker);
  if (marker == std::wstring_view::npos) return false;
  name = Between(line, 1, marker);
  value = Between(line, marker + kStringMarker.size(), line.size() - 2);
  return true;
}

bool ParseDwordValueLine(std::wstring_view line, std::wstring& name, std::int32_t& number,
                         int base) {
  const std::size_t equals = line.find(L'=');
  if (equals == std::wstring_view::npos) return false;
  ExpandTemplate(Between(line, 1, std::max<std::size_t>(equals, 1) - 1), kDwordNameLimit, name);

  const std::size_t marker = line.find(L"=dword");
  if (marker == std::wstring_view::npos || line.size() - marker < 8) return false;
  number = ParseNumber(line.substr(marker + 7), base);
  return true;
}

}  // namespace tidewell
