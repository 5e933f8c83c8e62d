// The calendar tab, and the general settings of mail and weather.
#pragma once

#include "settings/setting.h"

namespace tidewell {

struct CalendarSettings : SettingGroup {
  CalendarSettings() : SettingGroup(SettingKey::kCalendar) {}

  DwordSetting dNumOfDays{*this, L"dNumOfDays", 7, WithinAtLoad(1, 120)};
  DwordSetting HideEmptyGroups{*this, L"HideEmptyGroups", 1};
  DwordSetting HideEmptyGroupsItem{*this, L"HideEmptyGroupsItem", 0};
  DwordSetting SEventsOnClr{*this, L"SEventsOnClr", 0};
  DwordSetting FirstWeekInYear{*this, L"FirstWeekInYear", 0};
  DwordSetting ClrTextColor{*this, L"ClrTextColor", 0};
  DwordSetting ClrSortTsksWithAppts{*this, L"ClrSortTsksWithAppts", 0};
  DwordSetting dAppoPassedToday{*this, L"dAppoPassedToday", 0};
  DwordSetting IncludeYearlyCounters{*this, L"IncludeYearlyCounters", 1};
  DwordSetting LeadingRects{*this, L"LeadingRects", 1};
  DwordSetting Conflicting{*this, L"Conflicting", 1};
  DwordSetting HideAlldayEventIcon{*this, L"HideAlldayEventIcon", 0};
  DwordSetting IncldTasksInCR{*this, L"IncldTasksInCR", 1};
  DwordSetting IncldOverDueTsksInCR{*this, L"IncldOverDueTsksInCR", 1};
  DwordSetting IncldFutureTsksInCR{*this, L"IncldFutureTsksInCR", 1};
  DwordSetting IncldUndatedTsksInCR{*this, L"IncldUndatedTsksInCR", 0};
  DwordSetting DatesToIncldCmpltdTsksOnClr{*this, L"DatesToIncldCmpltdTsksOnClr", 0};
  DwordSetting IncldPastCmpltdTsksInClndr{*this, L"IncldPastCmpltdTsksInClndr", 0};
  DwordSetting FutureLimitTsksOnClr{*this, L"FutureLimitTsksOnClr", 0};
  DwordSetting TasksSubsortOnCal{*this, L"TasksSubsortOnCal", 0};
  DwordSetting SkipActiveTsksWeekends{*this, L"SkipActiveTsksWeekends", 0};
  DwordSetting DueDateTsksDateFrmt{*this, L"DueDateTsksDateFrmt", 0};
  DwordSetting ShowActiveTsksOnCal{*this, L"ShowActiveTsksOnCal", 1};
  DwordSetting PaintTsksBeforeAppts{*this, L"PaintTsksBeforeAppts", 0};
  DwordSetting ConfirmTaskComplete{*this, L"ConfirmTaskComplete", 0};
  DwordSetting DayTtlFrmt{*this, L"DayTtlFrmt", 1};
  DwordSetting dDayBreaker{*this, L"dDayBreaker", 1};
  DwordSetting TimeLines{*this, L"TimeLines", 2};
  DwordSetting ShowTomorrowTtl{*this, L"ShowTomorrowTtl", 1};
  DwordSetting IncldCounters{*this, L"IncldCounters", 0};
  DwordSetting UseSmartFolding{*this, L"UseSmartFolding", 1};
  DwordSetting FoldingType{*this, L"FoldingType", 2};
  DwordSetting FilterFreeApptsFromTL{*this, L"FilterFreeApptsFromTL", 0};
  DwordSetting ForceTodayTitleDsply{*this, L"ForceTodayTitleDsply", 0};
  DwordSetting AppendDateToTodayTtl{*this, L"AppendDateToTodayTtl", 0};
  DwordSetting AppendDaysCountTottl{*this, L"AppendDaysCountTottl", 0};
  DwordSetting AppendWeekNumTottl{*this, L"AppendWeekNumTottl", 0};
  // In hours; the lines begin at 6 o'clock plus the start and end by midnight.
  DwordSetting TimelinesStart{*this, L"TimelinesStart", 0};
  DwordSetting TimelinesLength{*this, L"TimelinesLength", 18};
  DwordSetting TimelinesVertZ{*this, L"TimelinesVertZ", 1};
  DwordSetting TimelinesHorZ{*this, L"TimelinesHorZ", 1};
  DwordSetting ApptLeftAlignIcon1{*this, L"ApptLeftAlignIcon1", 0};
  DwordSetting ApptLeftAlignIcon2{*this, L"ApptLeftAlignIcon2", 0};
  DwordSetting TaskLeftAlignIcon1{*this, L"TaskLeftAlignIcon1", 0};
  DwordSetting TaskLeftAlignIcon2{*this, L"TaskLeftAlignIcon2", 0};
  // Sums of one-bit icon codes, not colours.
  DwordSetting ClrApptRightIcons{*this, L"ClrApptRightIcons", 0x1DF};
  DwordSetting ClrTaskRightIcons{*this, L"ClrTaskRightIcons", 0x17F};
  DwordSetting ApptDisplayFormat{*this, L"ApptDisplayFormat", 6};
  DwordSetting OnPopupMonthCalClick{*this, L"OnPopupMonthCalClick", 0};
  DwordSetting MonthlyPopupCalDateFrmt{*this, L"MonthlyPopupCalDateFrmt", 0};
  DwordSetting MonthlyStartDay{*this, L"MonthlyStartDay", kFirstDayOfWeek};
  DwordSetting FirstWorkDay{*this, L"FirstWorkDay", kFirstDayOfWeek};
  DwordSetting MonthlyPopWithWeekNum{*this, L"MonthlyPopWithWeekNum", 0};
  DwordSetting MonthlyPopTimelines{*this, L"MonthlyPopTimelines", 2};
  DwordSetting MonthlyPopCatIcons{*this, L"MonthlyPopCatIcons", 1};
  DwordSetting MonthlyPopIconsSize{*this, L"MonthlyPopIconsSize", ScaledX(6)};
  DwordSetting PopupClrDPadNavigation{*this, L"PopupClrDPadNavigation", 2};
  // Needs a height limit of at least 200.
  DwordSetting PinnedMonthlyClr{*this, L"PinnedMonthlyClr", 0};
  DwordSetting IncludeMainOnCal{*this, L"IncludeMainOnCal", 0};
  DwordSetting MailHideWhenZeroMsgs{*this, L"MailHideWhenZeroMsgs", 0};
  DwordSetting MailTitleFormat{*this, L"MailTitleFormat", 0};
  DwordSetting MailSoftwareToUse{*this, L"MailSoftwareToUse", 0};
  StringSetting MailCustomInboxStr{*this, L"MailCustomInboxStr", L""};
  DwordSetting HideMailTtlUnderToday{*this, L"HideMailTtlUnderToday", 0};
  DwordSetting ShowMailCounterOnTtl{*this, L"ShowMailCounterOnTtl", 1};
  DwordSetting WeatehrLayout{*this, L"WeatehrLayout", 1};
  DwordSetting WeatehrOnClick{*this, L"WeatehrOnClick", 1};
  DwordSetting Force2DigitsTImeFrmt{*this, L"Force2DigitsTImeFrmt", 0};
  DwordSetting SkinTodayWhenCollpsAll{*this, L"SkinTodayWhenCollpsAll", 0};
  DwordSetting HumanTime{*this, L"HumanTime", 0};
  DwordSetting HideOverDueTsksDayTtl{*this, L"HideOverDueTsksDayTtl", 0};
  DwordSetting HideUndatedTsksDayTtl{*this, L"HideUndatedTsksDayTtl", 0};
  StringSetting CustomDayttlFrmtDefault{*this, L"CustomDayttlFrmtDefault", L""};
  // A permutation of 0 to 5.
  DwordSetting CalTitlesOrder0{*this, L"CalTitlesOrder0", 0};
  DwordSetting CalTitlesOrder1{*this, L"CalTitlesOrder1", 1};
  DwordSetting CalTitlesOrder2{*this, L"CalTitlesOrder2", 2};
  DwordSetting CalTitlesOrder3{*this, L"CalTitlesOrder3", 3};
  DwordSetting CalTitlesOrder4{*this, L"CalTitlesOrder4", 4};
  DwordSetting CalTitlesOrder5{*this, L"CalTitlesOrder5", 5};
  StringSetting CalendarSelCategory{*this, L"CalendarSelCategory", L"", kReadOnly};
  DwordSetting CalendarSelFilter{*this, L"CalendarSelFilter", 0, kReadOnly};
  StringSetting CalendarRecentFilters{*this, L"CalendarRecentFilters", L"", kReadOnly};
  FlagArraySetting FoldState{*this, L"FoldState", 125, FlagFill::kAllClear};
};

}  // namespace tidewell
