// Do the texts of every language fit where they are shown on the narrowest screen, 240 pixels?
#include <gtest/gtest.h>

#include <set>
#include <vector>

#include "resources/text/text_ids.h"
#include "tests/resources/library.h"

namespace tidewell {
namespace {

// Texts in one kind of place, with the pixels there are for each, chrome taken off.
struct Place {
  const char* name;
  int width;
  bool bold;
  std::vector<int> ids;
};

const Place kPlaces[] = {
    {"entry of the list of groups",
     186,
     true,
     {IDS_GROUP_GENERAL, IDS_GROUP_CALENDAR, IDS_GROUP_TASKS, IDS_GROUP_NOTES, IDS_GROUP_CONTACTS,
      IDS_GROUP_MESSAGES, IDS_GROUP_SPECIAL_EVENTS, IDS_GROUP_FONTS, IDS_GROUP_COLORS,
      IDS_GROUP_PIM, IDS_GROUP_TABS, IDS_GROUP_CATEGORIES}},
    {"caption",
     190,
     true,
     {IDS_EXIT_CAPTION, IDS_EXPORT_DONE_CAPTION, IDS_IMPORT_FAILED_CAPTION, IDS_IMPORT_DONE_CAPTION,
      IDS_SELECT_ENTRY_CAPTION, IDS_PIM_COMPANION_MISSING_CAPTION, IDS_PLUGIN_DISABLE_CAPTION,
      IDS_PLUGIN_ALREADY_HOSTED_CAPTION, IDS_FILE_NAME_ERROR}},
    {"message, which wraps",
     2 * 220,
     false,
     {IDS_EXIT_QUESTION, IDS_EXPORT_DONE, IDS_IMPORT_FAILED, IDS_IMPORT_DONE, IDS_SELECT_ENTRY,
      IDS_PIM_COMPANION_MISSING, IDS_PLUGIN_DISABLE_QUESTION, IDS_PLUGIN_ALREADY_HOSTED,
      IDS_PLUGIN_PICK, IDS_FILE_NAME_MISSING, IDS_FILE_NAME_ILLEGAL, IDS_FOLDER_UNREADABLE}},
    {"label left of a list",
     98,
     false,
     {IDS_DIVIDER,
      IDS_NAME_FORMAT,
      IDS_ACTION_KEY,
      IDS_ON_TAP,
      IDS_ON_DOUBLE_TAP,
      IDS_HEIGHT_LIMIT,
      IDS_HEIGHT_LIMIT_LANDSCAPE,
      IDS_SKIN_FOLDER,
      IDS_LANGUAGE,
      IDS_DPAD_GROUP,
      IDS_DPAD_ACTION,
      IDS_DPAD_SCROLLING,
      IDS_LOADING_DELAY,
      IDS_EVENTS_AHEAD,
      IDS_EVENTS_ALERT,
      IDS_EVENTS_DATE_FORMAT,
      IDS_EVENTS_SEARCH_DAYS,
      IDS_EVENTS_FILTER_ALERT,
      IDS_EVENTS_EXTRA_CATEGORY_1,
      IDS_EVENTS_EXTRA_CATEGORY_2,
      IDS_EVENTS_EXTRA_CATEGORY_3,
      IDS_EVENTS_EXTRA_CATEGORY_4,
      IDS_PIM_PROGRAM,
      IDS_PIM_APPOINTMENT_REMINDER,
      IDS_PIM_TASK_REMINDER,
      IDS_TABS_POSITION,
      IDS_TABS_STYLE,
      IDS_TABS_GESTURES,
      IDS_TABS_EFFECT,
      IDS_TABS_TIME_OUT,
      IDS_TABS_DEFAULT_TAB,
      IDS_PLUGIN_LABEL}},
    {"choice of a list",
     125 - 26,
     false,
     {IDS_DIVIDER_NONE,
      IDS_DIVIDER_SOLID,
      IDS_DIVIDER_DOTTED,
      IDS_DIVIDER_FADING,
      IDS_NAME_FIRST_LAST,
      IDS_NAME_LAST_FIRST,
      IDS_NAME_AS_FILED,
      IDS_ACTION_KEY_AS_GENERAL,
      IDS_ACTION_KEY_OPENS,
      IDS_NONE_SELECTED,
      IDS_ON_TAP_SELECT,
      IDS_ON_TAP_OPEN,
      IDS_ON_TAP_PREVIEW,
      IDS_ON_DOUBLE_TAP_OPEN,
      IDS_ON_DOUBLE_TAP_PREVIEW,
      IDS_ON_DOUBLE_TAP_NOTHING,
      IDS_DPAD_GROUP_NAVIGATION,
      IDS_DPAD_GROUP_SCROLLING,
      IDS_DPAD_ACTION_OPEN,
      IDS_DPAD_ACTION_PREVIEW,
      IDS_DPAD_ACTION_MENU,
      IDS_DPAD_SCROLL_LINE,
      IDS_DPAD_SCROLL_ITEM,
      IDS_DPAD_SCROLL_PAGE,
      IDS_EVENTS_AHEAD_WEEK,
      IDS_EVENTS_AHEAD_TWO_WEEKS,
      IDS_EVENTS_AHEAD_MONTH,
      IDS_EVENTS_DATE_AS_DEVICE,
      IDS_PIM_BUILT_IN,
      IDS_PIM_COMPANION,
      IDS_PIM_POCKET_INFORMANT,
      IDS_PIM_AGENDA_FUSION,
      IDS_PIM_AGENDA_ONE,
      IDS_PIM_NO_REMINDER,
      IDS_PIM_MINUTES,
      IDS_PIM_HOUR,
      IDS_PIM_HOURS,
      IDS_PIM_DAY,
      IDS_TABS_POSITION_LEFT,
      IDS_TABS_POSITION_TOP,
      IDS_TABS_POSITION_RIGHT,
      IDS_TABS_POSITION_BOTTOM,
      IDS_TABS_STYLE_TEXT,
      IDS_TABS_STYLE_ICONS,
      IDS_TABS_GESTURES_OFF,
      IDS_TABS_GESTURES_ON,
      IDS_TABS_EFFECT_NONE,
      IDS_TABS_EFFECT_SLIDE,
      IDS_TABS_TIME_OUT_1_MINUTE,
      IDS_TABS_TIME_OUT_2_MINUTES,
      IDS_TABS_TIME_OUT_5_MINUTES,
      IDS_TABS_TIME_OUT_10_MINUTES,
      IDS_TABS_TIME_OUT_30_MINUTES,
      IDS_TABS_TIME_OUT_1_HOUR,
      IDS_TAB_CALENDAR,
      IDS_TAB_TASKS,
      IDS_TAB_NOTES,
      IDS_TAB_CONTACTS,
      IDS_TAB_MAIL,
      IDS_TAB_SPECIAL_EVENTS,
      IDS_LANGUAGE_NAME,
      IDS_ALL_CATEGORIES}},
    {"check box",
     220 - 20,
     false,
     {IDS_SHOW_FOLD_BUTTONS,
      IDS_SHOW_COUNTERS,
      IDS_TAP_OPENS,
      IDS_PREVIEW_WHEN_OPENED,
      IDS_AUTO_HEIGHT,
      IDS_SOUND_EFFECTS,
      IDS_GOOFY_MODE,
      IDS_INDENT_ITEMS,
      IDS_DPAD_ENABLED,
      IDS_DPAD_DOUBLE_PRESS_SWITCHES_TABS,
      IDS_DPAD_EXCLUSIVE,
      IDS_DOUBLE_TAP_SCROLLS,
      IDS_SCROLL_WHOLE_PAGES,
      IDS_VGA_MODE,
      IDS_THIN_LINES,
      IDS_REMOVE_HIGHLIGHT,
      IDS_MESSAGES_PREVIEW_MARKS_READ,
      IDS_PIM_OVERRIDE_ICONS,
      IDS_PIM_OVERRIDE_COLORS,
      IDS_PIM_LEAVE_FUSION_RUNNING,
      IDS_PIM_HIDE_ABC,
      IDS_TABS_DEFAULT_AT_START}},
    {"button beside a path", 45 - 6, false, {IDS_BROWSE, IDS_CLEAR}},
    {"button beside a short list", 55 - 6, false, {IDS_MOVE_UP, IDS_MOVE_DOWN}},
    {"button beside a list", 75 - 6, false, {IDS_TABS_ADD, IDS_TABS_REMOVE}},
    {"color swatch", 44 - 2, false, {IDS_COLOR_AUTOMATIC}},
    {"label left of a file name", 50, false, {IDS_FILE_NAME, IDS_FILE_EXTENSION}},
    {"line of a file list", 180, false, {IDS_FOLDER_UP, IDS_FOLDER_EMPTY, IDS_FOLDER_ROOT}},
    {"soft key", 100, true, {IDS_SELECT, IDS_CANCEL}},
};

// The tabs of each page stand in one row.
constexpr int kTabRow = 240;
constexpr int kTabChrome = 14;
const std::vector<int> kTabRows[] = {
    {IDS_PAGE_TAB_GENERAL, IDS_GENERAL_TAB_LOOK, IDS_GENERAL_TAB_DPAD, IDS_PAGE_TAB_OTHER},
    {IDS_PAGE_TAB_GENERAL, IDS_PAGE_TAB_DISPLAY},
    {IDS_EVENTS_TAB_EVENTS, IDS_EVENTS_TAB_FILTERS, IDS_PAGE_TAB_DISPLAY},
    {IDS_PIM_TAB_PROGRAM, IDS_PIM_TAB_OPTIONS},
    {IDS_PAGE_TAB_GENERAL, IDS_TABS_TAB_ORDER, IDS_TABS_TAB_DEFAULT},
};

// Text widths in Tahoma, 12 pixels high, as every page has it at 96 dots per inch.
class Ruler {
 public:
  Ruler() : dc_(CreateCompatibleDC(nullptr)) {}
  Ruler(const Ruler&) = delete;
  Ruler& operator=(const Ruler&) = delete;
  ~Ruler() {
    DeleteDC(dc_);
    DeleteObject(normal_);
    DeleteObject(bold_);
  }

  int Width(const std::wstring& text, bool bold = false) {
    SelectObject(dc_, bold ? bold_ : normal_);
    SIZE size{};
    GetTextExtentPoint32W(dc_, text.data(), int(text.size()), &size);
    return size.cx;
  }
  std::wstring Face() {
    SelectObject(dc_, normal_);
    wchar_t face[LF_FACESIZE] = L"";
    GetTextFaceW(dc_, LF_FACESIZE, face);
    return face;
  }

 private:
  static HFONT Tahoma(int weight) {
    LOGFONTW description{};
    description.lfHeight = 12;
    description.lfWeight = weight;
    wcscpy(description.lfFaceName, L"Tahoma");
    return CreateFontIndirectW(&description);
  }

  HDC dc_;
  HFONT normal_ = Tahoma(0);
  HFONT bold_ = Tahoma(700);
};

class TextFit : public testing::TestWithParam<std::string> {
 protected:
  void SetUp() override { ASSERT_EQ(ruler_.Face(), L"Tahoma"); }

  Ruler ruler_;
  const std::map<int, std::wstring> texts_ = TextsOf(OpenLibrary("LangRes/" + GetParam()));
};
INSTANTIATE_TEST_SUITE_P(Every, TextFit, testing::ValuesIn(LanguageLibraryNames()),
                         [](const auto& which) {
                           return which.param.substr(0, which.param.find('.'));
                         });

TEST_P(TextFit, EveryTextHasAPlaceAndFitsIt) {
  std::set<int> placed;
  for (const Place& place : kPlaces) {
    for (const int id : place.ids) {
      placed.insert(id);
      EXPECT_LE(ruler_.Width(texts_.at(id), place.bold), place.width)
          << place.name << ": " << id << " " << Narrow(texts_.at(id));
    }
  }
  for (const std::vector<int>& row : kTabRows) placed.insert(row.begin(), row.end());
  for (const auto& [id, text] : texts_) {
    EXPECT_EQ(placed.count(id), 1u) << id << " " << Narrow(text) << " is shown nowhere";
  }
}

TEST_P(TextFit, TheTabsOfAPageStandSideBySide) {
  for (const std::vector<int>& row : kTabRows) {
    int width = 0;
    for (const int id : row) width += ruler_.Width(texts_.at(id)) + kTabChrome;
    EXPECT_LE(width, kTabRow) << Narrow(texts_.at(row.front())) << " ... "
                              << Narrow(texts_.at(row.back()));
  }
}

}  // namespace
}  // namespace tidewell
