// The Calendar page: the calendar tab of the Today item, its mail and weather lines among it.
#pragma once

#include <memory>

#include "pages/page_context.h"
#include "pages/page_rules.h"

namespace tidewell {

namespace calendar_ids {
inline constexpr int kHideEmptyGroups = 1206;
inline constexpr int kHideEmptyLines = 1207;
inline constexpr int kTaskOptions = 1218;
inline constexpr int kDayOptions = 1219;
inline constexpr int kMonthOptions = 1220;
inline constexpr int kMailOptions = 1221;
inline constexpr int kOtherOptions = 1222;
}  // namespace calendar_ids

std::unique_ptr<PageRules> MakeCalendarPage(PageContext& context);

}  // namespace tidewell
