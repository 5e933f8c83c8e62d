#include "preview/item_texts.h"

#include <cmath>

namespace tidewell {

namespace {

constexpr wchar_t kMultiDay[] = L"MultiDay";

std::wstring TimeText(double moment, const TodayLook& look, Locale& locale) {
  const wchar_t* picture = look.twelveHourClock ? (look.twoDigitHours ? L"hh:mmt" : L"h:mmt")
                                                : (look.twoDigitHours ? L"HH:mm" : L"H:mm");
  return locale.FormatTime(TimeOfDay(moment), picture);
}

// Ends on that day, at a midnight, or before the day is over for a human. Whole seconds, so that no
// rounding of a fraction decides.
bool EndsWithin(int day, double end, std::uint32_t humanTime) {
  if (day >= DayOf(end) || IsMidnight(end)) return true;
  const auto seconds = static_cast<double>(std::llround((end - day) * 24 * 60 * 60));
  return seconds < (24.0 + humanTime) * 60 * 60;
}

std::wstring InBrackets(const std::wstring& text) {
  return text.empty() ? std::wstring() : L"(" + text + L")";
}

std::wstring WithBlankBefore(const std::wstring& text) {
  return text.empty() ? std::wstring() : L" " + text;
}

}  // namespace

std::wstring TimeRangeText(double start, double end, int day, bool shortForm, const TodayLook& look,
                           Locale& locale) {
  const bool isFirstDay = day <= DayOf(start);
  if (!isFirstDay && day < DayOf(end)) return kMultiDay;
  const auto startText = [&] { return TimeText(start, look, locale); };
  const auto endText = [&] { return TimeText(end, look, locale); };
  if (shortForm) return isFirstDay ? startText() : L">" + endText();
  if (!isFirstDay) return std::wstring(kMultiDay) + L"-" + endText();
  return startText() + L"-" + (EndsWithin(day, end, look.humanTime) ? endText() : kMultiDay);
}

ItemTexts FormatTexts(const TodayItem& item, int day, const TodayLook& look, Locale& locale) {
  ItemTexts texts{{}, item.subject, {}};
  if (item.IsTask()) return texts;
  std::wstring range;
  if (!item.allDay) {
    range = TimeRangeText(item.start, item.end, day, look.HasShortTimes(), look, locale);
  }
  if (!look.HasSecondLine()) texts.time = range + L":";

  const std::wstring place = InBrackets(item.location);
  switch (look.displayFormat) {
    case 1:
    case 2:
      texts.secondLine = place;
      break;
    case 3:
    case 4:
    case 7:
    case 8:
      texts.title += WithBlankBefore(place);
      break;
    case 11:
    case 12:
      if (!item.allDay) texts.secondLine = L"[" + range + L"]";
      if (look.displayFormat == 11) texts.secondLine += WithBlankBefore(place);
      break;
    default:
      break;
  }
  return texts;
}

}  // namespace tidewell
