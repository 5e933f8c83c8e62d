// The fonts. Each is six values: the name given here and lfWeight, lfItalic and so on.
#pragma once

#include "settings/setting.h"

namespace tidewell {

struct FontsSettings : SettingGroup {
  FontsSettings() : SettingGroup(SettingKey::kFonts) {}

  DwordSetting FontGnrlSize{*this, L"FontGnrlSize", ScaledX(12)};
  DwordSetting FontGnrlTitlesSize{*this, L"FontGnrlTitlesSize", ScaledX(12)};
  DwordSetting FontGnrlUseAdvncd{*this, L"FontGnrlUseAdvncd", 0};
  StringSetting FontFaceToUse{*this, L"FontFaceToUse", L"Tahoma"};
  DwordSetting UseShadowColor{*this, L"UseShadowColor", 0};
  DwordSetting ForceClearType{*this, L"ForceClearType", 0};

  const FontLook look{FontFaceToUse, ForceClearType};

  FontSetting FontGeneral{*this, L"FontGeneral", look, kFontThin};
  FontSetting FontCalTasks{*this, L"FontCalTasks", look, kFontThin};
  FontSetting FontCalTasksOverdue{*this, L"FontCalTasksOverdue", look, kFontThin};
  FontSetting FontCalTasksFuture{*this, L"FontCalTasksFuture", look, kFontThin};
  FontSetting FontCalTasksCompleted{*this, L"FontCalTasksCompleted", look, kFontThin};
  FontSetting FontCalTasksUndated{*this, L"FontCalTasksUndated", look, kFontThin};
  FontSetting FontCalApptBusy{*this, L"FontCalApptBusy", look, kFontThin};
  FontSetting FontCalApptFree{*this, L"FontCalApptFree", look, kFontThin};
  FontSetting FontCalApptOutOfOffice{*this, L"FontCalApptOutOfOffice", look, kFontThin};
  FontSetting FontCalTentative{*this, L"FontCalTentative", look, kFontThin};
  FontSetting FontCalPast{*this, L"FontCalPast", look, kFontThin, 1};
  FontSetting FontCalCompleted{*this, L"FontCalCompleted", look, kFontThin, 1};
  FontSetting FontMailRead{*this, L"FontMailRead", look, kFontThin};
  FontSetting FontMailUnread{*this, L"FontMailUnread", look, kFontBold};
  FontSetting FontCalDayTitles{*this, L"FontCalDayTitles", look, kFontBold};
  FontSetting FontTskOverdue{*this, L"FontTskOverdue", look, kFontThin};
  FontSetting FontTskDueToday{*this, L"FontTskDueToday", look, kFontThin};
  FontSetting FontTskNoDue{*this, L"FontTskNoDue", look, kFontThin};
  FontSetting FontTskFutureDue{*this, L"FontTskFutureDue", look, kFontThin};
  FontSetting FontTskGroupingTtls{*this, L"FontTskGroupingTtls", look, kFontBold};
  FontSetting FontNoteItems{*this, L"FontNoteItems", look, kFontThin};
  FontSetting FontNoteTitles{*this, L"FontNoteTitles", look, kFontBold};
  FontSetting FontContactItems{*this, L"FontContactItems", look, kFontThin};
  FontSetting FontContactTitles{*this, L"FontContactTitles", look, kFontBold};
  FontSetting FontMsgsUnread{*this, L"FontMsgsUnread", look, kFontBold};
  FontSetting FontMsgsRead{*this, L"FontMsgsRead", look, kFontThin};
  FontSetting FontMsgsTitles{*this, L"FontMsgsTitles", look, kFontBold};
  FontSetting FontSEGeneral{*this, L"FontSEGeneral", look, kFontThin};
  FontSetting FontSEFilter1{*this, L"FontSEFilter1", look, kFontThin};
  FontSetting FontSEFilter2{*this, L"FontSEFilter2", look, kFontThin};
  FontSetting FontSEFilter3{*this, L"FontSEFilter3", look, kFontThin};
  FontSetting FontSEFilter4{*this, L"FontSEFilter4", look, kFontThin};
  FontSetting FontSEGroupingTtls{*this, L"FontSEGroupingTtls", look, kFontBold};
};

}  // namespace tidewell
