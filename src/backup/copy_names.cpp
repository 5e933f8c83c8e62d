#include "backup/copy_names.h"

#include <algorithm>
#include <utility>

#include "platform/text.h"

namespace tidewell {

namespace {

constexpr std::wstring_view kPrefix = L"TW_BeforeImport_";
constexpr std::wstring_view kSuffix = L".twsb";
constexpr std::wstring_view kMoment = L"0000_00_00_000000";  // a zero for each digit

bool IsDigit(wchar_t unit) {
  return unit >= L'0' && unit <= L'9';
}

std::wstring Digits(int number, std::size_t count) {
  std::wstring digits = FormatDecimal(number);
  if (digits.size() < count) digits.insert(0, count - digits.size(), L'0');
  return digits;
}

bool IsMoment(std::wstring_view text) {
  return std::equal(
      text.begin(), text.end(), kMoment.begin(), kMoment.end(),
      [](wchar_t unit, wchar_t form) { return form == L'0' ? IsDigit(unit) : unit == form; });
}

// "_2" to "_9999".
bool IsNumber(std::wstring_view text) {
  return text.size() >= 2 && text.size() <= 5 && text[0] == L'_' && text[1] != L'0' &&
         text != L"_1" && std::all_of(text.begin() + 1, text.end(), IsDigit);
}

std::wstring_view MomentOf(std::wstring_view name) {
  return name.substr(kPrefix.size(), kMoment.size());
}

// The part between the moment and the extension.
std::wstring_view NumberPart(std::wstring_view name) {
  name.remove_suffix(kSuffix.size());
  return name.substr(kPrefix.size() + kMoment.size());
}

int NumberOf(std::wstring_view name) {
  const std::wstring_view part = NumberPart(name);
  return part.empty() ? 1 : ParseNumber(part.substr(1), 10);
}

std::wstring CopyName(std::wstring_view moment, int number) {
  std::wstring name(kPrefix);
  name += moment;
  if (number > 1) name += L'_' + FormatDecimal(number);
  return name += kSuffix;
}

}  // namespace

// A number that was given once is not given again, so that the order of the names stays that of
// the copies.
std::wstring NextCopyName(const LocalTime& time, const std::vector<std::wstring>& files) {
  const std::wstring moment = Digits(time.year, 4) + L'_' + Digits(time.month, 2) + L'_' +
                              Digits(time.day, 2) + L'_' + Digits(time.hour, 2) +
                              Digits(time.minute, 2) + Digits(time.second, 2);
  int number = 1;
  for (const std::wstring& file : files) {
    if (IsCopyName(file) && MomentOf(file) == moment) number = std::max(number, NumberOf(file) + 1);
  }
  const auto isTaken = [&](const std::wstring& file) {
    return EqualIgnoringCase(file, CopyName(moment, number));
  };
  while (std::any_of(files.begin(), files.end(), isTaken)) ++number;
  return CopyName(moment, number);
}

bool IsCopyName(std::wstring_view name) {
  if (name.size() < kPrefix.size() + kMoment.size() + kSuffix.size() ||
      !name.starts_with(kPrefix) || !name.ends_with(kSuffix)) {
    return false;
  }
  const std::wstring_view number = NumberPart(name);
  return IsMoment(MomentOf(name)) && (number.empty() || IsNumber(number));
}

void SortNewestFirst(std::vector<std::wstring>& copies) {
  std::sort(copies.begin(), copies.end(), [](const std::wstring& left, const std::wstring& right) {
    return std::pair(MomentOf(left), NumberOf(left)) > std::pair(MomentOf(right), NumberOf(right));
  });
}

}  // namespace tidewell
