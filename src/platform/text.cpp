#include "platform/text.h"

#include <algorithm>
#include <limits>

namespace tidewell {

namespace {

bool IsSpace(wchar_t unit) {
  return unit == L' ' || (unit >= L'\t' && unit <= L'\r');
}

// The value of a digit in bases up to 36; 36 for anything else.
int DigitOf(wchar_t unit) {
  if (unit >= L'0' && unit <= L'9') return unit - L'0';
  if (unit >= L'a' && unit <= L'z') return unit - L'a' + 10;
  if (unit >= L'A' && unit <= L'Z') return unit - L'A' + 10;
  return 36;
}

}  // namespace

wchar_t FoldCase(wchar_t unit) {
  const auto code = static_cast<std::uint32_t>(unit) & 0xFFFFu;
  const auto plus = [&](std::uint32_t distance) { return static_cast<wchar_t>(code + distance); };
  if (code < 0x80) return code >= L'A' && code <= L'Z' ? plus(32) : unit;
  if (code >= 0xC0 && code <= 0xDE) return code == 0xD7 ? unit : plus(32);
  if (code == 0x178) return 0xFF;
  // Latin Extended-A: pairs, the capital on the even place except in two stretches.
  if ((code >= 0x100 && code <= 0x137 && code != 0x130 && code != 0x131) ||
      (code >= 0x14A && code <= 0x177)) {
    return code % 2 == 0 ? plus(1) : unit;
  }
  if ((code >= 0x139 && code <= 0x148) || (code >= 0x179 && code <= 0x17E)) {
    return code % 2 == 1 ? plus(1) : unit;
  }
  if (code == 0x386) return 0x3AC;
  if (code >= 0x388 && code <= 0x38A) return plus(37);
  if (code == 0x38C) return 0x3CC;
  if (code == 0x38E || code == 0x38F) return plus(63);
  if (code >= 0x391 && code <= 0x3AB && code != 0x3A2) return plus(32);
  if (code >= 0x400 && code <= 0x40F) return plus(80);
  if (code >= 0x410 && code <= 0x42F) return plus(32);
  if (code >= 0x460 && code <= 0x481) return code % 2 == 0 ? plus(1) : unit;
  return unit;
}

int CompareFolded(std::wstring_view left, std::wstring_view right) {
  const std::size_t common = std::min(left.size(), right.size());
  for (std::size_t i = 0; i < common; ++i) {
    const int difference = (FoldCase(left[i]) & 0xFFFF) - (FoldCase(right[i]) & 0xFFFF);
    if (difference != 0) return difference;
  }
  return left.size() == right.size() ? 0 : (left.size() < right.size() ? -1 : 1);
}

bool EqualIgnoringCase(std::wstring_view left, std::wstring_view right) {
  return left.size() == right.size() && CompareFolded(left, right) == 0;
}

std::wstring FormatDecimal(std::int32_t number) {
  std::int64_t rest = number < 0 ? -static_cast<std::int64_t>(number) : number;
  wchar_t digits[12];
  wchar_t* start = digits + 12;
  do {
    *--start = static_cast<wchar_t>(L'0' + rest % 10);
    rest /= 10;
  } while (rest != 0);
  if (number < 0) *--start = L'-';
  return std::wstring(start, digits + 12);
}

std::wstring WithNumber(std::wstring text, std::int32_t number) {
  const std::size_t place = text.find(L"%d");
  if (place != std::wstring::npos) text.replace(place, 2, FormatDecimal(number));
  return text;
}

std::int32_t ParseNumber(std::wstring_view text, int base) {
  std::size_t at = 0;
  while (at < text.size() && IsSpace(text[at])) ++at;
  bool negative = false;
  if (at < text.size() && (text[at] == L'-' || text[at] == L'+')) negative = text[at++] == L'-';

  const bool zeroFirst = at < text.size() && text[at] == L'0';
  const bool hexPrefix = zeroFirst && at + 2 < text.size() &&
                         (text[at + 1] == L'x' || text[at + 1] == L'X') &&
                         DigitOf(text[at + 2]) < 16;
  if ((base == 0 || base == 16) && hexPrefix) {
    base = 16;
    at += 2;
  } else if (base == 0) {
    base = zeroFirst ? 8 : 10;
  }

  constexpr std::int64_t kLargest = std::numeric_limits<std::int32_t>::max();
  std::int64_t number = 0;
  for (; at < text.size() && DigitOf(text[at]) < base; ++at) {
    number = std::min(number * base + DigitOf(text[at]), kLargest + 1);
  }
  return static_cast<std::int32_t>(negative ? -number : std::min(number, kLargest));
}

std::vector<std::byte> BytesOf(std::wstring_view text) {
  std::vector<std::byte> bytes;
  bytes.reserve(text.size() * 2);
  for (const wchar_t unit : text) {
    bytes.push_back(static_cast<std::byte>(unit & 0xFF));
    bytes.push_back(static_cast<std::byte>((unit >> 8) & 0xFF));
  }
  return bytes;
}

std::wstring TextOfBytes(std::span<const std::byte> bytes) {
  std::wstring text(bytes.size() / 2, L'\0');
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto low = std::to_integer<unsigned>(bytes[2 * i]);
    const auto high = std::to_integer<unsigned>(bytes[2 * i + 1]);
    text[i] = static_cast<wchar_t>(low | (high << 8));
  }
  return text;
}

std::wstring JoinPath(std::wstring_view folder, std::wstring_view name) {
  std::wstring path(folder);
  if (path.empty() || path.back() != L'\\') path += L'\\';
  return path += name;
}

}  // namespace tidewell
