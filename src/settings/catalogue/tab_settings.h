// The tab strip and its six built-in tabs.
#pragma once

#include <array>

#include "settings/setting.h"
#include "settings/tab_list.h"

namespace tidewell {

// A built-in tab: its caption's id in the language library and the two settings behind its entry in
// the tab list.
struct BuiltInTab {
  TabType type;
  int captionId;
  DwordSetting& enabled;
  DwordSetting& order;
};

struct TabSettings : SettingGroup {
  TabSettings() : SettingGroup(SettingKey::kTabSettings) {}

  DwordSetting TabsPosition{*this, L"TabsPosition", 3};
  DwordSetting TabsStyle{*this, L"TabsStyle", 1};
  DwordSetting TabGestures{*this, L"TabGestures", 1};
  DwordSetting TabGesturEffect{*this, L"TabGesturEffect", 1};
  DwordSetting CalendarTabEnabled{*this, L"CalendarTabEnabled", 1};
  DwordSetting TasksTabEnabled{*this, L"TasksTabEnabled", 1};
  DwordSetting NotesTabEnabled{*this, L"NotesTabEnabled", 1};
  DwordSetting ContactsTabEnabled{*this, L"ContactsTabEnabled", 1};
  DwordSetting MailTabEnabled{*this, L"MailTabEnabled", 1};
  DwordSetting SEventsTabEnabled{*this, L"SEventsTabEnabled", 1};
  DwordSetting CalendarTabOrder{*this, L"CalendarTabOrder", 1};
  DwordSetting TasksTabOrder{*this, L"TasksTabOrder", 2};
  DwordSetting NotesTabOrder{*this, L"NotesTabOrder", 3};
  DwordSetting ContactsTabOrder{*this, L"ContactsTabOrder", 4};
  DwordSetting MailTabOrder{*this, L"MailTabOrder", 5};
  DwordSetting SEventsTabOrder{*this, L"SEventsTabOrder", 6};
  DwordSetting DfltTabTimeOut{*this, L"DfltTabTimeOut", 0};
  DwordSetting DfltTab{*this, L"DfltTab", 0};
  DwordSetting DfltTabOnStartup{*this, L"DfltTabOnStartup", 0};

  // In the order that `DfltTab` counts them by.
  const std::array<BuiltInTab, 6> builtInTabs = {{
      {TabType::kCalendar, 1436, CalendarTabEnabled, CalendarTabOrder},
      {TabType::kTasks, 1416, TasksTabEnabled, TasksTabOrder},
      {TabType::kNotes, 1417, NotesTabEnabled, NotesTabOrder},
      {TabType::kContacts, 1418, ContactsTabEnabled, ContactsTabOrder},
      {TabType::kMail, 1419, MailTabEnabled, MailTabOrder},
      {TabType::kSpecialEvents, 1420, SEventsTabEnabled, SEventsTabOrder},
  }};
};

}  // namespace tidewell
