// The texts of an item's row, in the twelve display formats.
#pragma once

#include <string>

#include "platform/locale.h"
#include "preview/today_item.h"
#include "preview/today_look.h"

namespace tidewell {

struct ItemTexts {
  std::wstring time;  // with its colon; empty where the second line has the time
  std::wstring title;
  std::wstring secondLine;

  bool operator==(const ItemTexts&) const = default;
};

// As seen on a day, given by its number. A task has its title alone.
ItemTexts FormatTexts(const TodayItem& item, int day, const TodayLook& look, Locale& locale);

// From when to when, as seen on a day; the short form has one of the two.
std::wstring TimeRangeText(double start, double end, int day, bool shortForm, const TodayLook& look,
                           Locale& locale);

}  // namespace tidewell
