#include "pages/special_events_page.h"

#include "pages/page_choices.h"
#include "resources/text/text_ids.h"

namespace tidewell {

namespace {

// Today in each format, so that the user sees an example.
Choices DateFormats(Locale& locale) {
  const LocalTime today = locale.Now();
  Choices choices{IDS_EVENTS_DATE_AS_DEVICE};
  for (const wchar_t* picture : {L"MM/dd", L"MM/dd/yy", L"dd/MM", L"dd/MM/yy"}) {
    choices.emplace_back(locale.FormatDate(today, picture));
  }
  return choices;
}

Choices Categories(const CategoryCatalog& catalog) {
  Choices choices{IDS_NONE_SELECTED};
  for (const auto& category : catalog.Categories()) choices.emplace_back(category->name);
  return choices;
}

Choices DaySpans() {
  return {{L"15", 15}, {L"30", 30}, {L"60", 60}, {L"120", 120}, {L"365", 365}};
}
constexpr int kThirtyDays = 1;

}  // namespace

std::unique_ptr<PageRules> MakeSpecialEventsPage(PageContext& context) {
  SpecialEventsSettings& s = context.settings.specialEvents;
  const Choices categories = Categories(context.categories);
  return std::make_unique<NoRules>(PageTabs{
      RowTab(IDS_EVENTS_TAB_EVENTS,
             {
                 List(1200, 1201, IDS_EVENTS_AHEAD, s.SEventDays,
                      {IDS_EVENTS_AHEAD_WEEK, IDS_EVENTS_AHEAD_TWO_WEEKS, IDS_EVENTS_AHEAD_MONTH}),
                 List(1202, 1203, IDS_EVENTS_ALERT, s.SEAlertBeforeDays, Numbers(1, 16, 1)),
                 List(1204, 1205, IDS_EVENTS_DATE_FORMAT, s.SEDateFormat,
                      DateFormats(context.machine.locale)),
                 List(1206, 1207, IDS_NAME_FORMAT, s.SEContactFormat,
                      {IDS_NAME_FIRST_LAST, IDS_NAME_LAST_FIRST, IDS_NAME_AS_FILED}),
             }),
      RowTab(
          IDS_EVENTS_TAB_FILTERS,
          {
              DataList(1208, 1209, IDS_EVENTS_SEARCH_DAYS, s.SEApptsDaySpan, DaySpans(),
                       kThirtyDays, 0),
              List(1210, 1211, IDS_EVENTS_FILTER_ALERT, s.SEFilterAlertBeforeDays,
                   Numbers(1, 16, 1)),
              NameList(1212, 1213, IDS_EVENTS_EXTRA_CATEGORY_1, s.AdditionalFilterCat1, categories),
              NameList(1214, 1215, IDS_EVENTS_EXTRA_CATEGORY_2, s.AdditionalFilterCat2, categories),
              NameList(1216, 1217, IDS_EVENTS_EXTRA_CATEGORY_3, s.AdditionalFilterCat3, categories),
              NameList(1218, 1219, IDS_EVENTS_EXTRA_CATEGORY_4, s.AdditionalFilterCat4, categories),
          }),
      RowTab(IDS_PAGE_TAB_DISPLAY,
             {
                 List(1220, 1221, IDS_DIVIDER, s.BreakLineStyle, DividingLines()),
                 Check(1222, IDS_SHOW_FOLD_BUTTONS, s.IncldFoldBttns),
                 Check(1223, IDS_SHOW_COUNTERS, s.IncldCounters),
             }),
  });
}

}  // namespace tidewell
