// The Messages page: the mail tab.
#pragma once

#include "pages/page_context.h"
#include "pages/page_table.h"

namespace tidewell {

PageTable MessagesTable(PageContext& context);

}  // namespace tidewell
