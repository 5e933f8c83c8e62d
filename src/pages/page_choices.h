// Choices that several pages have in common.
#pragma once

#include "pages/page_rows.h"
#include "platform/locale.h"

namespace tidewell {

// Today as the user's short date, and in the orders of other countries.
Choices TaskDates(Locale& locale);
// How far ahead future tasks are shown.
Choices FutureLimits();
Choices DividingLines();
// When a long title goes on in further lines.
Choices TitleWraps();

}  // namespace tidewell
