// The notes tab.
#pragma once

#include "settings/setting.h"

namespace tidewell {

struct NotesSettings : SettingGroup {
  NotesSettings() : SettingGroup(SettingKey::kNotes) {}

  DwordSetting NotesActiveSearchBar{*this, L"NotesActiveSearchBar", 1};
  StringSetting NotesCustomSearchBarSelected{*this, L"NotesCustomSearchBarSelected", L""};
  DwordSetting NotesPreviewNotesState{*this, L"NotesPreviewNotesState", 2};
  DwordSetting NotesBreakLineStyle{*this, L"NotesBreakLineStyle", 1};
  DwordSetting NotesIncldFoldBttns{*this, L"NotesIncldFoldBttns", 1};
  DwordSetting NotesIncldCounters{*this, L"NotesIncldCounters", 1};
  DwordSetting NotesScannedFileTypes{*this, L"NotesScannedFileTypes", 0x33F};
  StringSetting NotesSelFolder{*this, L"NotesSelFolder", L"", kReadOnly};
  DwordSetting NotesTabGrouping{*this, L"NotesTabGrouping", 1, kReadOnly};
  DwordSetting NotesGroupingDirctn{*this, L"NotesGroupingDirctn", 1, kReadOnly};
  DwordSetting DisplayOnNotesTab{*this, L"DisplayOnNotesTab", 5, kReadOnly};
  DwordSetting NotesTab1Sort{*this, L"NotesTab1Sort", 0, kReadOnly};
  DwordSetting NotesTab1SortDirect{*this, L"NotesTab1SortDirect", 1, kReadOnly};
  DwordSetting NotesSearchMode{*this, L"NotesSearchMode", 0, kReadOnly};
  DwordSetting FoldingStateNone{*this, L"FoldingStateNone", 0, kReadOnly};
  StringSetting FoldingStateFolder{*this, L"FoldingStateFolder", L"", kReadOnly};
  DwordSetting FoldingStateProgress{*this, L"FoldingStateProgress", 0, kReadOnly};
  DwordSetting FoldingStateType{*this, L"FoldingStateType", 0, kReadOnly};
};

}  // namespace tidewell
