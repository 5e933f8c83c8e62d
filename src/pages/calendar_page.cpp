#include "pages/calendar_page.h"

#include "pages/page_choices.h"
#include "platform/text.h"
#include "resources/text/text_ids.h"
#include "settings/calendar_programs.h"
#include "ui/user_dialogs.h"

namespace tidewell {

namespace {

using namespace calendar_ids;

constexpr OptionEditor kEditor{1223, 1224, 1225, 1226, 1227, 1228,
                               1229, 1230, 1231, 1237, 1238, 1239};
constexpr int kMostDays = 30;
constexpr int kPinnedLine = 9;      // of the monthly calendar's options
constexpr int kPinnedHeight = 200;  // that a pinned calendar needs, at 96 dots per inch

// A number that is not among the usual ones is the last line.
Choices DaysShown(int present) {
  Choices choices = Numbers(1, kMostDays, 1);
  if (present < 1 || present > kMostDays) {
    choices.emplace_back(FormatDecimal(present), static_cast<std::uint32_t>(present));
  }
  return choices;
}

// Today in each format, so that the user sees an example.
Choices DayTitles(Locale& locale) {
  const LocalTime today = locale.Now();
  Choices choices;
  for (const wchar_t* picture :
       {L"dddd',' MMM dd yyyy", L"dddd',' MMM dd", L"ddd',' MMM dd yyyy", L"ddd',' MMM dd"}) {
    choices.emplace_back(locale.FormatDate(today, picture));
  }
  choices.emplace_back(locale.FormatDate(today, DateStyle::kShort));
  choices.emplace_back(locale.FormatDate(today, DateStyle::kLong));
  choices.emplace_back(locale.FormatDate(today, L"ddd',' dd MMM yyyy"));
  return choices;
}

Choices MonthlyDates(Locale& locale) {
  const LocalTime today = locale.Now();
  return {Choice(locale.FormatDate(today, L"MM'/'dd")),
          Choice(locale.FormatDate(today, L"dd'/'MM"))};
}

Choices DayNames(Locale& locale) {
  Choices choices;
  for (int day = 0; day < 7; ++day) choices.emplace_back(locale.DayName(day));
  return choices;
}

Choices Hours(Locale& locale, std::uint16_t last) {
  Choices choices;
  for (LocalTime time{2000, 1, 1, 0, 0, 0}; time.hour <= last; ++time.hour) {
    choices.emplace_back(locale.FormatTime(time));
  }
  return choices;
}

// Up to 8 o'clock in the morning, with either clock.
Choices NightHours(Locale& locale) {
  const wchar_t* half = locale.TimeStyle() == L"0" ? L":00 AM" : L":00";
  Choices choices;
  for (int hour = 0; hour <= 8; ++hour) choices.emplace_back(FormatDecimal(hour) + half);
  return choices;
}

PageTab GeneralTab(CalendarSettings& s) {
  return RowTab(
      IDS_PAGE_TAB_GENERAL,
      {
          DataList(1200, 1201, IDS_CAL_DAYS_SHOWN, s.dNumOfDays, DaysShown(s.dNumOfDays.Signed())),
          List(1202, 1203, IDS_CAL_FIRST_WEEK, s.FirstWeekInYear,
               {IDS_CAL_FIRST_WEEK_SYSTEM, IDS_CAL_FIRST_WEEK_JANUARY_1, IDS_CAL_FIRST_WEEK_FULL,
                IDS_CAL_FIRST_WEEK_4_DAYS}),
          List(1204, 1205, IDS_CAL_TEXT_COLOR, s.ClrTextColor,
               {IDS_CAL_TEXT_COLOR_OWN, IDS_CAL_TEXT_COLOR_CATEGORY, IDS_CAL_TEXT_COLOR_STATUS}),
          Check(kHideEmptyGroups, IDS_CAL_HIDE_EMPTY_GROUPS, s.HideEmptyGroups).ReducedSpacing(3),
          Check(kHideEmptyLines, IDS_CAL_HIDE_EMPTY_LINES, s.HideEmptyGroupsItem).ReducedSpacing(3),
          Check(1208, IDS_CAL_SPECIAL_EVENTS, s.SEventsOnClr).ReducedSpacing(3),
          Check(1209, IDS_CAL_SORT_TASKS, s.ClrSortTsksWithAppts).ReducedSpacing(3),
      });
}

PageTab AppointmentsTab(CalendarSettings& s) {
  return RowTab(
      IDS_CAL_TAB_APPOINTMENTS,
      {
          List(1210, 1211, IDS_CAL_PASSED, s.dAppoPassedToday,
               {IDS_CAL_PASSED_SHOWN, IDS_CAL_PASSED_HIDDEN}),
          List(1212, 1213, IDS_CAL_LEADING_RECTS, s.LeadingRects,
               {IDS_CAL_LEADING_RECTS_NONE, IDS_CAL_LEADING_RECTS_STATUS,
                IDS_CAL_LEADING_RECTS_CATEGORY}),
          List(1214, 1215, IDS_CAL_CONFLICTS, s.Conflicting,
               {IDS_CAL_CONFLICTS_NOT_MARKED, IDS_CAL_CONFLICTS_BAR, IDS_CAL_CONFLICTS_TEXT}),
          Check(1216, IDS_CAL_YEARLY_COUNTERS, s.IncludeYearlyCounters),
          Check(1217, IDS_CAL_HIDE_ALLDAY_ICON, s.HideAlldayEventIcon),
      });
}

std::vector<Option> TaskOptions(CalendarSettings& s, Locale& locale) {
  return {
      CheckOption(IDS_CAL_TASKS, IDS_CAL_TASKS_CAPTION, IDS_CAL_TASKS_TIP, s.IncldTasksInCR),
      CheckOption(IDS_CAL_OVERDUE, IDS_CAL_OVERDUE_CAPTION, IDS_CAL_OVERDUE_TIP,
                  s.IncldOverDueTsksInCR),
      CheckOption(IDS_CAL_FUTURE, IDS_CAL_FUTURE_CAPTION, IDS_CAL_FUTURE_TIP,
                  s.IncldFutureTsksInCR),
      CheckOption(IDS_CAL_UNDATED, IDS_CAL_UNDATED_CAPTION, IDS_CAL_UNDATED_TIP,
                  s.IncldUndatedTsksInCR),
      ListOption(IDS_CAL_COMPLETED, IDS_CAL_COMPLETED_LABEL, IDS_CAL_COMPLETED_TIP,
                 s.DatesToIncldCmpltdTsksOnClr,
                 {IDS_CAL_COMPLETED_NO_DAY, IDS_CAL_COMPLETED_TODAY, IDS_CAL_COMPLETED_FROM_TODAY,
                  IDS_CAL_COMPLETED_ALL}),
      CheckOption(IDS_CAL_PAST_COMPLETED, IDS_CAL_PAST_COMPLETED_CAPTION,
                  IDS_CAL_PAST_COMPLETED_TIP, s.IncldPastCmpltdTsksInClndr),
      ListOption(IDS_CAL_FUTURE_LIMIT, IDS_CAL_FUTURE_LIMIT_LABEL, IDS_CAL_FUTURE_LIMIT_TIP,
                 s.FutureLimitTsksOnClr, FutureLimits()),
      ListOption(IDS_CAL_TASK_ORDER, IDS_CAL_TASK_ORDER_LABEL, IDS_CAL_TASK_ORDER_TIP,
                 s.TasksSubsortOnCal,
                 {IDS_CAL_TASK_ORDER_DUE, IDS_CAL_TASK_ORDER_START, IDS_CAL_TASK_ORDER_IMPORTANCE,
                  IDS_CAL_TASK_ORDER_COMPLETION, IDS_CAL_TASK_ORDER_ACTIVITY,
                  IDS_CAL_TASK_ORDER_SUBJECT, IDS_CAL_TASK_ORDER_CATEGORY}),
      ListOption(IDS_CAL_WEEKENDS, IDS_CAL_WEEKENDS_LABEL, IDS_CAL_WEEKENDS_TIP,
                 s.SkipActiveTsksWeekends,
                 {IDS_CAL_WEEKENDS_NONE, IDS_CAL_WEEKENDS_SATURDAY, IDS_CAL_WEEKENDS_SUNDAY,
                  IDS_CAL_WEEKENDS_BOTH}),
      ListOption(IDS_CAL_TASK_DATE, IDS_CAL_TASK_DATE_LABEL, IDS_CAL_TASK_DATE_TIP,
                 s.DueDateTsksDateFrmt, TaskDates(locale)),
      CheckOption(IDS_CAL_ACTIVE, IDS_CAL_ACTIVE_CAPTION, IDS_CAL_ACTIVE_TIP,
                  s.ShowActiveTsksOnCal),
      CheckOption(IDS_CAL_TASKS_FIRST, IDS_CAL_TASKS_FIRST_CAPTION, IDS_CAL_TASKS_FIRST_TIP,
                  s.PaintTsksBeforeAppts),
      CheckOption(IDS_CAL_CONFIRM, IDS_CONFIRM_COMPLETION, IDS_CAL_CONFIRM_TIP,
                  s.ConfirmTaskComplete),
  };
}

std::vector<Option> DayOptions(CalendarSettings& s, Locale& locale) {
  return {
      ListOption(IDS_CAL_DAY_TITLE, IDS_CAL_DAY_TITLE_LABEL, IDS_CAL_DAY_TITLE_TIP, s.DayTtlFrmt,
                 DayTitles(locale)),
      ListOption(IDS_CAL_DAY_DIVIDER, IDS_CAL_DAY_DIVIDER_LABEL, IDS_CAL_DAY_DIVIDER_TIP,
                 s.dDayBreaker, DividingLines()),
      ListOption(IDS_CAL_TIME_LINES, IDS_CAL_TIME_LINES_LABEL, IDS_CAL_TIME_LINES_TIP, s.TimeLines,
                 {IDS_CAL_TIME_LINES_OFF, IDS_CAL_TIME_LINES_TODAY, IDS_CAL_TIME_LINES_ALL}),
      CheckOption(IDS_CAL_TOMORROW, IDS_CAL_TOMORROW_CAPTION, IDS_CAL_TOMORROW_TIP,
                  s.ShowTomorrowTtl),
      CheckOption(IDS_CAL_COUNTERS, IDS_CAL_COUNTERS_CAPTION, IDS_CAL_COUNTERS_TIP,
                  s.IncldCounters),
      CheckOption(IDS_CAL_SMART_FOLDING, IDS_SMART_FOLDING, IDS_CAL_SMART_FOLDING_TIP,
                  s.UseSmartFolding),
      ListOption(IDS_CAL_WRAP, IDS_WRAP_TITLES, IDS_CAL_WRAP_TIP, s.FoldingType, TitleWraps()),
      CheckOption(IDS_CAL_FREE, IDS_CAL_FREE_CAPTION, IDS_CAL_FREE_TIP, s.FilterFreeApptsFromTL),
      CheckOption(IDS_CAL_TODAY_TITLE, IDS_CAL_TODAY_TITLE_CAPTION, IDS_CAL_TODAY_TITLE_TIP,
                  s.ForceTodayTitleDsply),
      CheckOption(IDS_CAL_TODAY_DATE, IDS_CAL_TODAY_DATE_CAPTION, IDS_CAL_TODAY_DATE_TIP,
                  s.AppendDateToTodayTtl),
      CheckOption(IDS_CAL_DAY_COUNT, IDS_CAL_DAY_COUNT_CAPTION, IDS_CAL_DAY_COUNT_TIP,
                  s.AppendDaysCountTottl),
      CheckOption(IDS_CAL_WEEK_NUMBER, IDS_CAL_WEEK_NUMBER_CAPTION, IDS_CAL_WEEK_NUMBER_TIP,
                  s.AppendWeekNumTottl),
      ListOption(IDS_CAL_LINES_START, IDS_CAL_LINES_START_LABEL, IDS_CAL_LINES_START_TIP,
                 s.TimelinesStart, Hours(locale, 18)),
      ListOption(IDS_CAL_LINES_LENGTH, IDS_CAL_LINES_LENGTH_LABEL, IDS_CAL_LINES_LENGTH_TIP,
                 s.TimelinesLength, Numbers(6, 24, 1)),
      DataOption(IDS_CAL_LINES_HEIGHT, IDS_CAL_LINES_HEIGHT_LABEL, IDS_CAL_LINES_HEIGHT_TIP,
                 s.TimelinesVertZ, Numbers(1, 2, 1), kNoChoice, 0),
      DataOption(IDS_CAL_LINES_WIDTH, IDS_CAL_LINES_WIDTH_LABEL, IDS_CAL_LINES_WIDTH_TIP,
                 s.TimelinesHorZ, Numbers(1, 2, 1), kNoChoice, 0),
  };
}

std::vector<Option> MonthOptions(CalendarSettings& s, Locale& locale, const ScreenScale& scale) {
  Option pinned =
      CheckOption(IDS_CAL_PINNED, IDS_CAL_PINNED_CAPTION, IDS_CAL_PINNED_TIP, s.PinnedMonthlyClr);
  pinned.tipNumber = scale.ScaleY(kPinnedHeight);
  return {
      ListOption(IDS_CAL_MONTH_TAP, IDS_CAL_MONTH_TAP_LABEL, IDS_CAL_MONTH_TAP_TIP,
                 s.OnPopupMonthCalClick,
                 {IDS_CAL_MONTH_TAP_DAY, IDS_CAL_MONTH_TAP_WEEK, IDS_CAL_MONTH_TAP_MONTH,
                  IDS_CAL_MONTH_TAP_NEW}),
      ListOption(IDS_CAL_MONTH_DATE, IDS_CAL_MONTH_DATE_LABEL, IDS_CAL_MONTH_DATE_TIP,
                 s.MonthlyPopupCalDateFrmt, MonthlyDates(locale)),
      ListOption(IDS_CAL_WEEK_START, IDS_CAL_WEEK_START_LABEL, IDS_CAL_WEEK_START_TIP,
                 s.MonthlyStartDay, DayNames(locale)),
      ListOption(IDS_CAL_WORK_START, IDS_CAL_WORK_START_LABEL, IDS_CAL_WORK_START_TIP,
                 s.FirstWorkDay, DayNames(locale)),
      CheckOption(IDS_CAL_MONTH_WEEKS, IDS_CAL_MONTH_WEEKS_CAPTION, IDS_CAL_MONTH_WEEKS_TIP,
                  s.MonthlyPopWithWeekNum),
      ListOption(IDS_CAL_MONTH_LINES, IDS_CAL_MONTH_LINES_LABEL, IDS_CAL_MONTH_LINES_TIP,
                 s.MonthlyPopTimelines,
                 {IDS_CAL_MONTH_LINES_OFF, IDS_CAL_MONTH_LINES_TODAY, IDS_CAL_MONTH_LINES_ALL}),
      CheckOption(IDS_CAL_MONTH_ICONS, IDS_CAL_MONTH_ICONS_CAPTION, IDS_CAL_MONTH_ICONS_TIP,
                  s.MonthlyPopCatIcons),
      DataOption(IDS_CAL_MONTH_ICON_SIZE, IDS_CAL_MONTH_ICON_SIZE_LABEL,
                 IDS_CAL_MONTH_ICON_SIZE_TIP, s.MonthlyPopIconsSize,
                 Numbers(scale.ScaleX(6), scale.ScaleX(14), 1), 0),
      ListOption(IDS_CAL_MONTH_DPAD, IDS_CAL_MONTH_DPAD, IDS_CAL_MONTH_DPAD_TIP,
                 s.PopupClrDPadNavigation,
                 {IDS_CAL_MONTH_DPAD_OFF, IDS_CAL_MONTH_DPAD_MONTHS, IDS_CAL_MONTH_DPAD_DAYS}),
      pinned,
  };
}

std::vector<Option> MailOptions(CalendarSettings& s) {
  return {
      CheckOption(IDS_CAL_MAIL, IDS_CAL_MAIL_CAPTION, IDS_CAL_MAIL_TIP, s.IncludeMainOnCal),
      CheckOption(IDS_CAL_MAIL_HIDE, IDS_CAL_MAIL_HIDE_CAPTION, IDS_CAL_MAIL_HIDE_TIP,
                  s.MailHideWhenZeroMsgs),
      ListOption(IDS_CAL_MAIL_FORMAT, IDS_CAL_MAIL_FORMAT_LABEL, IDS_CAL_MAIL_FORMAT_TIP,
                 s.MailTitleFormat,
                 {IDS_CAL_MAIL_UNREAD, IDS_CAL_MAIL_UNREAD_AND_ALL, IDS_CAL_MAIL_ACCOUNTS,
                  IDS_CAL_MAIL_ACCOUNTS_UNREAD}),
      ListOption(IDS_CAL_MAIL_PROGRAM, IDS_CAL_MAIL_PROGRAM_LABEL, IDS_CAL_MAIL_PROGRAM_TIP,
                 s.MailSoftwareToUse, {IDS_CAL_MAIL_PROGRAM_SYSTEM, IDS_CAL_MAIL_PROGRAM_OTHER}),
      PathOption(IDS_CAL_MAIL_OTHER, IDS_CAL_MAIL_OTHER_TIP, s.MailCustomInboxStr,
                 {L"Custom Mail App.", L"*.exe"}),
      CheckOption(IDS_CAL_MAIL_TITLE, IDS_CAL_MAIL_TITLE_CAPTION, IDS_CAL_MAIL_TITLE_TIP,
                  s.HideMailTtlUnderToday),
      CheckOption(IDS_CAL_MAIL_COUNTER, IDS_CAL_MAIL_COUNTER_CAPTION, IDS_CAL_MAIL_COUNTER_TIP,
                  s.ShowMailCounterOnTtl),
  };
}

std::vector<Option> OtherOptions(CalendarSettings& s, Locale& locale) {
  return {
      CheckOption(IDS_CAL_TWO_DIGITS, IDS_CAL_TWO_DIGITS_CAPTION, IDS_CAL_TWO_DIGITS_TIP,
                  s.Force2DigitsTImeFrmt),
      CheckOption(IDS_CAL_SKIN, IDS_CAL_SKIN_CAPTION, IDS_CAL_SKIN_TIP, s.SkinTodayWhenCollpsAll),
      ListOption(IDS_CAL_NIGHT, IDS_CAL_NIGHT_LABEL, IDS_CAL_NIGHT_TIP, s.HumanTime,
                 NightHours(locale)),
      CheckOption(IDS_CAL_OVERDUE_TITLE, IDS_CAL_OVERDUE_TITLE_CAPTION, IDS_CAL_OVERDUE_TITLE_TIP,
                  s.HideOverDueTsksDayTtl),
      CheckOption(IDS_CAL_UNDATED_TITLE, IDS_CAL_UNDATED_TITLE_CAPTION, IDS_CAL_UNDATED_TITLE_TIP,
                  s.HideUndatedTsksDayTtl),
      TextOption(IDS_CAL_OWN_FORMAT, IDS_CAL_OWN_FORMAT_TIP, s.CustomDayttlFrmtDefault),
      {IDS_CAL_TITLES_ORDER, 0,
       Order({&s.CalTitlesOrder0, &s.CalTitlesOrder1, &s.CalTitlesOrder2, &s.CalTitlesOrder3,
              &s.CalTitlesOrder4, &s.CalTitlesOrder5},
             {IDS_CAL_TITLE_OVERDUE, IDS_CAL_TITLE_UNDATED, IDS_CAL_TITLE_TODAY, IDS_CAL_TITLE_MAIL,
              IDS_CAL_TITLE_WEATHER, IDS_CAL_TITLE_EVENTS})},
  };
}

PageTab IconsTab(CalendarSettings& s) {
  const auto appointment = AppointmentMarkerChoices();
  const auto task = TaskMarkerChoices();
  const TwoRowPicker appointments{
      {Icon(1240, 1241, IDS_CAL_LEFT_ICON_1, s.ApptLeftAlignIcon1, appointment),
       Icon(1242, 1243, IDS_CAL_LEFT_ICON_2, s.ApptLeftAlignIcon2, appointment)},
      {Icons(1244, 1245, IDS_CAL_RIGHT_ICONS, s.ClrApptRightIcons, appointment)}};
  const TwoRowPicker tasks{
      {Icon(1246, 1247, IDS_CAL_TASK_LEFT_ICON_1, s.TaskLeftAlignIcon1, task),
       Icon(1248, 1249, IDS_CAL_TASK_LEFT_ICON_2, s.TaskLeftAlignIcon2, task)},
      {Icons(1250, 1251, IDS_CAL_TASK_RIGHT_ICONS, s.ClrTaskRightIcons, task)}};
  return {IDS_PAGE_TAB_ICONS,
          IconPickers{{appointments, tasks}},
          {kTodayPreviewHeight, PaintedRoom::Place::kBelow}};
}

PageTab WeatherTab(CalendarSettings& s, bool hasWeather) {
  return RowTab(IDS_CAL_TAB_WEATHER,
                {
                    Notice(1232, IDS_CAL_WEATHER_MISSING).When(!hasWeather),
                    List(1233, 1234, IDS_CAL_WEATHER_LAYOUT, s.WeatehrLayout,
                         {IDS_CAL_WEATHER_ONE_LINE, IDS_CAL_WEATHER_TWO_LINES,
                          IDS_CAL_WEATHER_ICONS, IDS_CAL_WEATHER_ICONS_AND_TEXT})
                        .When(hasWeather),
                    List(1235, 1236, IDS_CAL_WEATHER_TAP, s.WeatehrOnClick,
                         {IDS_CAL_WEATHER_FORECAST, IDS_CAL_WEATHER_PROGRAM})
                        .When(hasWeather),
                });
}

class CalendarRules final : public PageRules {
 public:
  explicit CalendarRules(PageContext& context) : context_(context), preview_(PreviewOf(context)) {}

  PageTabs Tabs() override;
  void OnEvent(PageView& view, const PageEvent& event) override;
  std::vector<Enabling> Enabled(const PageView& view) const override;
  void PaintRoom(Canvas& canvas, int width, int, int) override {
    preview_.DrawAppointment(canvas, width, 0);
  }

 private:
  CalendarSettings& Settings() const { return context_.settings.calendar; }
  void CheckPinnedCalendar() const;

  PageContext& context_;
  TodayPreview preview_;
};

PageTabs CalendarRules::Tabs() {
  CalendarSettings& s = Settings();
  const Machine& machine = context_.machine;
  return {
      GeneralTab(s),
      AppointmentsTab(s),
      {IDS_CAL_TAB_TASKS, OptionList{kTaskOptions, kEditor, TaskOptions(s, machine.locale)}},
      {IDS_CAL_TAB_DAYS, OptionList{kDayOptions, kEditor, DayOptions(s, machine.locale)}},
      IconsTab(s),
      {IDS_CAL_TAB_MONTH,
       OptionList{kMonthOptions, kEditor, MonthOptions(s, machine.locale, context_.scale)}},
      {IDS_CAL_TAB_MAIL, OptionList{kMailOptions, kEditor, MailOptions(s)}},
      WeatherTab(s, HasWeather(machine.registry, machine.files)),
      {IDS_PAGE_TAB_OTHER, OptionList{kOtherOptions, kEditor, OtherOptions(s, machine.locale)}},
  };
}

void CalendarRules::OnEvent(PageView& view, const PageEvent& event) {
  if (event.kind == PageEventKind::kChosen) view.Repaint();
  const PageEvent pinnedStored{kMonthOptions, PageEventKind::kDeselected, kPinnedLine};
  if (event == pinnedStored) CheckPinnedCalendar();
}

// A pinned calendar needs a Today item that may be that high.
void CalendarRules::CheckPinnedCalendar() const {
  const int needed = context_.scale.ScaleX(kPinnedHeight);
  DwordSetting& pinned = Settings().PinnedMonthlyClr;
  if (pinned.Value() != 1 || context_.settings.root.dHeightLimit.Signed() >= needed) return;
  const Language& language = context_.language;
  if (context_.dialogs) {
    context_.dialogs->ShowMessage(WithNumber(language.Text(IDS_CAL_PINNED_TOO_LOW), needed),
                                  language.Text(IDS_CAL_PINNED_TOO_LOW_CAPTION));
  }
  pinned.Set(0);
}

std::vector<Enabling> CalendarRules::Enabled(const PageView& view) const {
  return {{kHideEmptyLines, !view.State(kHideEmptyGroups).checked}};
}

}  // namespace

std::unique_ptr<PageRules> MakeCalendarPage(PageContext& context) {
  return std::make_unique<CalendarRules>(context);
}

}  // namespace tidewell
