// What a settings page works on. The host puts it together; everything in it outlives the page.
#pragma once

#include <string>
#include <vector>

#include "platform/machine.h"
#include "platform/scale.h"
#include "settings/settings_store.h"

namespace tidewell {

class PageDialogs;

struct PageContext {
  Machine& machine;
  SettingsStore& settings;
  const ResourceLibrary* language;  // null: every text is empty
  ScreenScale scale;
  std::vector<std::wstring> categoryNames{};  // in the category list's order
  PageDialogs* dialogs = nullptr;
};

}  // namespace tidewell
