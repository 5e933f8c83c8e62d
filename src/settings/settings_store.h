// Every setting of the Today item: loaded once at the start, edited in memory, saved once at Done.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>

#include "platform/language.h"
#include "platform/machine.h"
#include "platform/scale.h"
#include "settings/catalogue/agenda_fusion_settings.h"
#include "settings/catalogue/calendar_settings.h"
#include "settings/catalogue/categories_settings.h"
#include "settings/catalogue/colors_settings.h"
#include "settings/catalogue/contacts_settings.h"
#include "settings/catalogue/custom_pim_settings.h"
#include "settings/catalogue/fonts_settings.h"
#include "settings/catalogue/icon_set_settings.h"
#include "settings/catalogue/messages_settings.h"
#include "settings/catalogue/notes_settings.h"
#include "settings/catalogue/pocket_informant_settings.h"
#include "settings/catalogue/root_settings.h"
#include "settings/catalogue/special_events_settings.h"
#include "settings/catalogue/tab_settings.h"
#include "settings/catalogue/tasks_settings.h"
#include "settings/catalogue/today_item_settings.h"
#include "settings/hosted_plugins.h"
#include "settings/tab_list.h"
#include "settings/theme_colors.h"

namespace tidewell {

class SettingsStore {
 public:
  // Out of line: the catalogue's many members are constructed in one place.
  SettingsStore();
  ~SettingsStore();
  SettingsStore(const SettingsStore&) = delete;
  SettingsStore& operator=(const SettingsStore&) = delete;

  // Reads everything anew, repairs what cannot be, and replaces the language library by the chosen
  // one, else by the English one; null when neither loads. What cannot be read is its default.
  void Load(const Machine& machine, const ScreenScale& scale, Language& language);
  // Writes what was changed, and what the registry does not hold of the hosted tabs. What the load
  // was refused is left as it is unless it was set since. Nothing before a load has come to its
  // end. Failures are silent.
  void Save(Registry& registry, const ScreenScale& scale);
  bool IsLoaded() const { return isLoaded_; }

  // In load order.
  std::array<SettingGroup*, 16> Groups();

  bool twelveHourClock = true;  // times are shown with AM and PM
  TodayItemSettings today;
  std::wstring installFolder;
  std::wstring todayItemFolder;
  PocketInformantSettings pocketInformant;
  AgendaFusionSettings agendaFusion;
  ThemeColors themeColors;
  RootSettings root;
  CalendarSettings calendar;
  TasksSettings tasks;
  NotesSettings notes;
  ContactsSettings contacts;
  MessagesSettings messages;
  SpecialEventsSettings specialEvents;
  FontsSettings fonts;
  ColorsSettings colors;
  CustomPimSettings customPim;
  TabSettings tabSettings;
  TabList tabs;
  CategoriesSettings categories;
  IconSetSettings iconSet;

 private:
  void LoadInstallPaths(Registry& registry, LoadContext& context);
  void RepairCalendar();
  void LoadTabs(Registry& registry, const LoadContext& context, const Language& language);
  void ChooseActiveTab();
  void SaveTabs(Registry& registry);
  void WriteBackBuiltInTabs();

  HostedPlugins hostedPlugins_;
  // The list as loaded, when not every tab could be read.
  std::optional<TabList> partOfTheTabs_;
  bool isLoaded_ = false;
};

}  // namespace tidewell
