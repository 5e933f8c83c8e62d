#include "pages/page_list.h"

#include "pages/calendar_page.h"
#include "pages/categories_page.h"
#include "pages/colors_page.h"
#include "pages/contacts_page.h"
#include "pages/fonts_page.h"
#include "pages/general_page.h"
#include "pages/messages_page.h"
#include "pages/notes_page.h"
#include "pages/pim_page.h"
#include "pages/special_events_page.h"
#include "pages/tabs_page.h"
#include "pages/tasks_page.h"
#include "resources/art/bitmap_ids.h"
#include "resources/text/text_ids.h"

namespace tidewell {

const std::array<PageEntry, kPageCount> kPages = {{
    {L"GeneralSettingsWin", IDS_GROUP_GENERAL, IDB_GENERAL, MakeGeneralPage},
    {L"CalendarSettingsWin", IDS_GROUP_CALENDAR, IDB_CALENDAR, MakeCalendarPage},
    {L"TasksSettingsWin", IDS_GROUP_TASKS, IDB_TASKS, MakeTasksPage},
    {L"NotesSettingsWin", IDS_GROUP_NOTES, IDB_NOTES, MakeNotesPage},
    {L"ContactSettingsWin", IDS_GROUP_CONTACTS, IDB_CONTACTS, MakeContactsPage},
    {L"MessagesSettingsWin", IDS_GROUP_MESSAGES, IDB_MESSAGES, MakeMessagesPage},
    {L"SEventsSettingsWin", IDS_GROUP_SPECIAL_EVENTS, IDB_SPECIAL_EVENTS, MakeSpecialEventsPage},
    {L"FontSettingsWin", IDS_GROUP_FONTS, IDB_FONTS, MakeFontsPage},
    {L"ColorSettingsWin", IDS_GROUP_COLORS, IDB_COLORS, MakeColorsPage},
    {L"PIMSettingsWin", IDS_GROUP_PIM, IDB_PIM, MakePimPage},
    {L"TabsSettingsWin", IDS_GROUP_TABS, IDB_TABS, MakeTabsPage},
    {L"CategorySettingsWin", IDS_GROUP_CATEGORIES, IDB_CATEGORIES, MakeCategoriesPage},
}};

}  // namespace tidewell
