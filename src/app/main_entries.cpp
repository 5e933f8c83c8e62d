#include "app/main_entries.h"

#include "resources/art/bitmap_ids.h"
#include "resources/text/text_ids.h"

namespace tidewell {

namespace {

constexpr MainEntry kMainEntries[] = {
    {0, IDS_GROUP_GENERAL, L"", IDB_GENERAL},
    {1, IDS_GROUP_CALENDAR, L"", IDB_CALENDAR},
    {2, IDS_GROUP_TASKS, L"", IDB_TASKS},
    {3, IDS_GROUP_NOTES, L"", IDB_NOTES},
    {4, IDS_GROUP_CONTACTS, L"", IDB_CONTACTS},
    {5, IDS_GROUP_MESSAGES, L"", IDB_MESSAGES},
    {6, IDS_GROUP_SPECIAL_EVENTS, L"", IDB_SPECIAL_EVENTS},
    {7, IDS_GROUP_FONTS, L"", IDB_FONTS},
    {8, IDS_GROUP_COLORS, L"", IDB_COLORS},
    {9, IDS_GROUP_PIM, L"", IDB_PIM},
    {10, IDS_GROUP_TABS, L"", IDB_TABS},
    {11, IDS_GROUP_CATEGORIES, L"", IDB_CATEGORIES},
    {kAboutCommand, 0, L"About Tidewell", IDB_ABOUT},
};

constexpr MainEntry kToolEntries[] = {
    {kExportCommand, 0, L"Export Settings", 0},
    {kImportCommand, 0, L"Import Settings", 0},
    {kExitCommand, 0, L"Exit Settings", IDB_EXIT},
};

}  // namespace

std::span<const MainEntry> MainEntries() {
  return kMainEntries;
}

std::span<const MainEntry> ToolEntries() {
  return kToolEntries;
}

}  // namespace tidewell
