// A settings page as its host knows it. Windows only.
#pragma once

#include <windows.h>

#include <functional>
#include <memory>

#include "pages/page_context.h"

namespace tidewell {

// Closes the page that sends it to its host, without arguments.
inline constexpr UINT kClosePageMessage = WM_USER + 1;

class PageWindow {
 public:
  virtual ~PageWindow() = default;
  // The page has written its controls into the settings when this window is gone.
  virtual HWND Window() const = 0;
};

// Makes the page of an index over its host's window; null when there is no such page.
using PageFactory =
    std::function<std::unique_ptr<PageWindow>(int page, HWND host, PageContext& context)>;

}  // namespace tidewell
