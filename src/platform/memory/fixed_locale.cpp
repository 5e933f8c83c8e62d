#include "platform/memory/fixed_locale.h"

#include <algorithm>

#include "platform/text.h"

namespace tidewell {

namespace {

std::wstring Padded(int number, std::size_t digits) {
  std::wstring text = FormatDecimal(number);
  if (text.size() < digits) text.insert(0, digits - text.size(), L'0');
  return text;
}

}  // namespace

int FixedLocale::CompareIgnoringCase(const std::wstring& left, const std::wstring& right) {
  return CompareFolded(left, right);
}

std::wstring FixedLocale::FormatDate(const LocalTime& date, const std::wstring& picture) {
  std::wstring text;
  for (std::size_t at = 0; at < picture.size();) {
    const wchar_t unit = picture[at];
    if (unit == L'\'') {
      const std::size_t end = std::min(picture.find(L'\'', at + 1), picture.size());
      text += picture.substr(at + 1, end - at - 1);
      at = end + 1;
      continue;
    }
    const std::size_t run = std::min(picture.find_first_not_of(unit, at), picture.size()) - at;
    if (unit == L'd') {
      text += Padded(date.day, run);
    } else if (unit == L'M') {
      text += Padded(date.month, run);
    } else if (unit == L'y') {
      text += run < 4 ? Padded(date.year % 100, run) : Padded(date.year, run);
    } else {
      text.append(run, unit);
    }
    at += run;
  }
  return text;
}

std::wstring FixedLocale::FormatTime(const LocalTime& time) {
  const std::wstring minute = L":" + Padded(time.minute, 2);
  if (timeStyle != L"0") return Padded(time.hour, 2) + minute;
  const int hour = time.hour % 12 == 0 ? 12 : time.hour % 12;
  return FormatDecimal(hour) + minute + (time.hour < 12 ? L" AM" : L" PM");
}

}  // namespace tidewell
