// What a settings page works on. The host puts it together; everything in it outlives the page.
#pragma once

#include <functional>

#include "categories/category_catalog.h"
#include "platform/language.h"
#include "platform/machine.h"
#include "platform/scale.h"
#include "preview/today_preview.h"
#include "settings/settings_store.h"

namespace tidewell {

class UserDialogs;

struct PageContext {
  const Machine& machine;
  SettingsStore& settings;
  CategoryCatalog& categories;
  const Language& language;
  ScreenScale scale;
  UserDialogs* dialogs = nullptr;  // null: nothing is asked or told
  IconSource* icons = nullptr;     // of the chosen set, as it is now; null: there are none
  LoadImageFile loadImage = {};    // empty: no file has a picture
  // Ends the program without saving, for the registry holds other colours and fonts than the
  // settings; not before the page has dealt with its event. Empty: it goes on.
  std::function<void()> endForScheme = {};
};

// The strip that shows how a page's settings look.
TodayPreview PreviewOf(PageContext& context);

}  // namespace tidewell
