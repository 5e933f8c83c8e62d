#include "pages/page_list.h"

#include "pages/general_table.h"
#include "pages/messages_table.h"
#include "pages/pim_table.h"
#include "pages/special_events_table.h"

namespace tidewell {

const std::array<PageEntry, kPageCount> kPages = {{
    {L"GeneralSettingsWin", GeneralTable},
    {L"CalendarSettingsWin", nullptr},
    {L"TasksSettingsWin", nullptr},
    {L"NotesSettingsWin", nullptr},
    {L"ContactSettingsWin", nullptr},
    {L"MessagesSettingsWin", MessagesTable},
    {L"SEventsSettingsWin", SpecialEventsTable},
    {L"FontSettingsWin", nullptr},
    {L"ColorSettingsWin", nullptr},
    {L"PIMSettingsWin", PimTable},
    {L"TabsSettingsWin", nullptr},
    {L"CategorySettingsWin", nullptr},
}};

}  // namespace tidewell
