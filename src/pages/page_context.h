// What a settings page works on. The host puts it together; everything in it outlives the page.
#pragma once

#include "categories/category_catalog.h"
#include "platform/language.h"
#include "platform/machine.h"
#include "platform/scale.h"
#include "settings/settings_store.h"

namespace tidewell {

class IconSource;
class UserDialogs;

struct PageContext {
  Machine& machine;
  SettingsStore& settings;
  CategoryCatalog& categories;
  const Language& language;
  ScreenScale scale;
  UserDialogs* dialogs = nullptr;  // null: nothing is asked or told
  IconSource* icons = nullptr;     // of the chosen set, as it is now; null: there are none
};

}  // namespace tidewell
