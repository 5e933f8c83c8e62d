// Makes the settings pages. Windows only.
#pragma once

#include "pages/windows/page_window.h"

namespace tidewell {

// The page of an index, open over its host's window; null for an index that has no page.
std::unique_ptr<PageWindow> CreatePage(int index, HWND host, PageContext& context);

}  // namespace tidewell
