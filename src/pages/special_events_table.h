// The Special events page: the tab of birthdays and anniversaries.
#pragma once

#include "pages/page_context.h"
#include "pages/page_table.h"

namespace tidewell {

PageTable SpecialEventsTable(PageContext& context);

}  // namespace tidewell
