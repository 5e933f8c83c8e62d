// The tasks tab.
#pragma once

#include "settings/setting.h"

namespace tidewell {

struct TasksSettings : SettingGroup {
  TasksSettings() : SettingGroup(SettingKey::kTasks) {}

  DwordSetting TsksDateFrmt{*this, L"TsksDateFrmt", 3};
  DwordSetting TsksLimitFutureDate{*this, L"TsksLimitFutureDate", 0};
  DwordSetting HideCompletedTasks{*this, L"HideCompletedTasks", 0};
  DwordSetting HidePastCompletedTasks{*this, L"HidePastCompletedTasks", 1};
  DwordSetting ConfirmTaskCompleteTsks{*this, L"ConfirmTaskCompleteTsks", 1};
  DwordSetting RemoveUndatedLeadingStr{*this, L"RemoveUndatedLeadingStr", 0};
  DwordSetting RemoveUndatedTsks{*this, L"RemoveUndatedTsks", 0};
  DwordSetting TsksLineBreaker{*this, L"TsksLineBreaker", 1};
  DwordSetting TsksFoldingType{*this, L"TsksFoldingType", 2};
  DwordSetting TsksUseSmartFolding{*this, L"TsksUseSmartFolding", 1};
  DwordSetting IncludeCountersTsks{*this, L"IncludeCountersTsks", 1};
  DwordSetting TaskTabLeftAlignIcon1{*this, L"TaskTabLeftAlignIcon1", 0};
  DwordSetting TaskTabLeftAlignIcon2{*this, L"TaskTabLeftAlignIcon2", 0};
  DwordSetting TasksRightIcons{*this, L"TasksRightIcons", 0x17F};
  DwordSetting UseCustomDateTsks{*this, L"UseCustomDateTsks", 0};
  DwordSetting TsksCustomDateStruct{*this, L"TsksCustomDateStruct", 1};
  StringSetting CustomDateFrmtStart{*this, L"CustomDateFrmtStart", L""};
  StringSetting CustomDateFrmtEnd{*this, L"CustomDateFrmtEnd", L""};
  StringSetting TasksSelCategory{*this, L"TasksSelCategory", L"", kReadOnly};
  DwordSetting TasksSelFilter{*this, L"TasksSelFilter", 0, kReadOnly};
  StringSetting TasksRecentFilters{*this, L"TasksRecentFilters", L"", kReadOnly};
  DwordSetting TsksGrouping{*this, L"TsksGrouping", 15, kReadOnly};
  DwordSetting TsksGroupingDirctn{*this, L"TsksGroupingDirctn", 1, kReadOnly};
  DwordSetting TsksSrt1{*this, L"TsksSrt1", 0, kReadOnly};
  DwordSetting TsksSrt1Dirctn{*this, L"TsksSrt1Dirctn", 1, kReadOnly};
  DwordSetting TsksSrt2{*this, L"TsksSrt2", 2, kReadOnly};
  DwordSetting TsksSrt2Dirctn{*this, L"TsksSrt2Dirctn", 1, kReadOnly};
  DwordSetting TsksSrt3{*this, L"TsksSrt3", 5, kReadOnly};
  DwordSetting TsksSrt3Dirctn{*this, L"TsksSrt3Dirctn", 1, kReadOnly};
  FlagArraySetting FoldState{*this, L"FoldState", 41, FlagFill::kAllClear};
  StringSetting FoldStateCategory{*this, L"FoldStateCategory", L"", kReadOnly};
};

}  // namespace tidewell
