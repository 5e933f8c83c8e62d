#include "backup/exact_lines.h"

#include <span>
#include <vector>

#include "platform/text.h"

namespace tidewell {

namespace {

constexpr std::wstring_view kValuePrefix = L"hex:";
constexpr std::wstring_view kSectionPrefix = L"::Key::";
constexpr std::wstring_view kDigits = L"0123456789abcdef";

void AppendHex(std::wstring& text, std::span<const std::byte> bytes) {
  for (const std::byte byte : bytes) {
    text += kDigits[std::to_integer<std::size_t>(byte >> 4)];
    text += kDigits[std::to_integer<std::size_t>(byte & std::byte{15})];
  }
}

bool ParseHex(std::wstring_view text, std::vector<std::byte>& bytes) {
  bytes.clear();
  bytes.reserve(text.size() / 2);
  for (std::size_t i = 0; i + 1 < text.size(); i += 2) {
    const std::size_t high = kDigits.find(text[i]);
    const std::size_t low = kDigits.find(text[i + 1]);
    if (high == std::wstring_view::npos || low == std::wstring_view::npos) return false;
    bytes.push_back(static_cast<std::byte>(high << 4 | low));
  }
  return text.size() % 2 == 0;
}

bool ParseHexText(std::wstring_view hex, std::wstring& text) {
  std::vector<std::byte> bytes;
  if (!ParseHex(hex, bytes)) return false;
  text = TextOfBytes(bytes);
  return true;
}

}  // namespace

void AppendExactLine(std::wstring& text, const EnumeratedValue& value) {
  text += kValuePrefix;
  text += FormatDecimal(static_cast<std::int32_t>(value.type));
  text += L':';
  AppendHex(text, BytesOf(value.name));
  text += L':';
  AppendHex(text, value.data);
}

bool ParseExactLine(std::wstring_view line, EnumeratedValue& value) {
  if (!line.starts_with(kValuePrefix)) return false;
  line = line.substr(kValuePrefix.size(), line.size() - kValuePrefix.size() - 1);
  const std::size_t typeEnd = line.find(L':');
  if (typeEnd == std::wstring_view::npos) return false;
  const std::size_t nameEnd = line.find(L':', typeEnd + 1);
  if (nameEnd == std::wstring_view::npos) return false;
  value.type = static_cast<std::uint32_t>(ParseNumber(line.substr(0, typeEnd), 10));
  return ParseHexText(line.substr(typeEnd + 1, nameEnd - typeEnd - 1), value.name) &&
         ParseHex(line.substr(nameEnd + 1), value.data);
}

std::wstring ExactSectionName(std::wstring_view path) {
  std::wstring name(kSectionPrefix);
  AppendHex(name, BytesOf(path));
  return name;
}

bool ParseExactSectionName(std::wstring_view section, std::wstring& path) {
  return section.starts_with(kSectionPrefix) &&
         ParseHexText(section.substr(kSectionPrefix.size()), path);
}

}  // namespace tidewell
