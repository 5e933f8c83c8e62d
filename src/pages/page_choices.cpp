#include "pages/page_choices.h"

#include "resources/text/text_ids.h"

namespace tidewell {

Choices TaskDates(Locale& locale) {
  const LocalTime today = locale.Now();
  Choices choices{Choice(locale.FormatDate(today, DateStyle::kShort))};
  for (const wchar_t* picture : {L"M'/'d'/'yy", L"d'/'M'/'yy", L"M'/'d", L"d'/'M"}) {
    choices.emplace_back(locale.FormatDate(today, picture));
  }
  return choices;
}

Choices FutureLimits() {
  return {IDS_FUTURE_NO_LIMIT, IDS_FUTURE_1_DAY,   IDS_FUTURE_3_DAYS,   IDS_FUTURE_1_WEEK,
          IDS_FUTURE_2_WEEKS,  IDS_FUTURE_1_MONTH, IDS_FUTURE_3_MONTHS, IDS_FUTURE_6_MONTHS};
}

Choices DividingLines() {
  return {IDS_DIVIDER_NONE, IDS_DIVIDER_SOLID, IDS_DIVIDER_DOTTED, IDS_DIVIDER_FADING};
}

Choices TitleWraps() {
  return {IDS_WRAP_ALWAYS, IDS_WRAP_NEVER, IDS_WRAP_SELECTED};
}

}  // namespace tidewell
