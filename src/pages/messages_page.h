// The Messages page: the mail tab.
#pragma once

#include <memory>

#include "pages/page_context.h"
#include "pages/page_rules.h"

namespace tidewell {

std::unique_ptr<PageRules> MakeMessagesPage(PageContext& context);

}  // namespace tidewell
