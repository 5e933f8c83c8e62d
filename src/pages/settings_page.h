// One group's page: a window over the main list in which the group's settings are edited.
#pragma once

#include <windows.h>

#include <functional>
#include <memory>

#include "platform/machine.h"
#include "platform/scale.h"
#include "settings/settings_store.h"

namespace tidewell {

class SettingsPage {
 public:
  virtual ~SettingsPage() = default;
  // The page has written its controls into the settings when this window is gone.
  virtual HWND Window() const = 0;
};

// What a page works with; everything outlives it.
struct PageContext {
  Machine& machine;
  SettingsStore& settings;
  const ScreenScale& scale;
  const ResourceLibrary* language;  // null when none could be loaded
  const ResourceLibrary* pictures;  // likewise
};

// Closes the page that sends it to its host, without arguments.
inline constexpr UINT kClosePageMessage = WM_USER + 1;

// Makes the page of a group, 0 to 11, over its host's window; null when there is no such page.
using PageFactory =
    std::function<std::unique_ptr<SettingsPage>(int group, HWND host, const PageContext& context)>;

}  // namespace tidewell
