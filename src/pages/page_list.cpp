#include "pages/page_list.h"

#include "pages/general_table.h"
#include "pages/messages_table.h"
#include "pages/pim_table.h"
#include "pages/special_events_table.h"
#include "resources/text/text_ids.h"

namespace tidewell {

const std::array<PageEntry, kPageCount> kPages = {{
    {L"GeneralSettingsWin", IDS_GROUP_GENERAL, GeneralTable},
    {L"CalendarSettingsWin", IDS_GROUP_CALENDAR, nullptr},
    {L"TasksSettingsWin", IDS_GROUP_TASKS, nullptr},
    {L"NotesSettingsWin", IDS_GROUP_NOTES, nullptr},
    {L"ContactSettingsWin", IDS_GROUP_CONTACTS, nullptr},
    {L"MessagesSettingsWin", IDS_GROUP_MESSAGES, MessagesTable},
    {L"SEventsSettingsWin", IDS_GROUP_SPECIAL_EVENTS, SpecialEventsTable},
    {L"FontSettingsWin", IDS_GROUP_FONTS, nullptr},
    {L"ColorSettingsWin", IDS_GROUP_COLORS, nullptr},
    {L"PIMSettingsWin", IDS_GROUP_PIM, PimTable},
    {L"TabsSettingsWin", IDS_GROUP_TABS, nullptr},
    {L"CategorySettingsWin", IDS_GROUP_CATEGORIES, nullptr},
}};

}  // namespace tidewell
