// Makes the settings pages. Windows only.
#pragma once

#include "pages/hosted_page.h"

namespace tidewell {

// The page of an index, open over its host's window; null for an index that has no page.
std::unique_ptr<HostedPage> CreatePage(int index, HWND host, PageContext& context);

}  // namespace tidewell
