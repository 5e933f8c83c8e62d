// The Special events page: the tab of birthdays and anniversaries.
#pragma once

#include <memory>

#include "pages/page_context.h"
#include "pages/page_rules.h"

namespace tidewell {

std::unique_ptr<PageRules> MakeSpecialEventsPage(PageContext& context);

}  // namespace tidewell
