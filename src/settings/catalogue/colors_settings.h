// The colours, as COLORREFs.
#pragma once

#include "settings/setting.h"

namespace tidewell {

struct ColorsSettings : SettingGroup {
  ColorsSettings() : SettingGroup(SettingKey::kColors) {}

  DwordSetting SeperatorLineClr{*this, L"SeperatorLineClr", kNoColor};
  DwordSetting ShadowFontColor{*this, L"ShadowFontColor", kNoColor};
  DwordSetting GeneralFontColor{*this, L"GeneralFontColor", kNoColor};
  DwordSetting HighlightBgClr{*this, L"HighlightBgClr", kNoColor};
  DwordSetting HighlightTextClr{*this, L"HighlightTextClr", kNoColor};
  DwordSetting TimeLinesBgClr{*this, L"TimeLinesBgClr", kNoColor};
  DwordSetting TimeLinesDfltClr{*this, L"TimeLinesDfltClr", kNoColor};
  DwordSetting ClrBreakingLineClr{*this, L"ClrBreakingLineClr", kNoColor};
  DwordSetting ClrPopupClrBg{*this, L"ClrPopupClrBg", kNoColor};
  DwordSetting ClrPopupCurr{*this, L"ClrPopupCurr", kNoColor};
  DwordSetting ClrPopupHighlight{*this, L"ClrPopupHighlight", kNoColor};
  DwordSetting TskBreakingLineClr{*this, L"TskBreakingLineClr", kNoColor};
  DwordSetting ClrStatusFree{*this, L"ClrStatusFree", kNoColor};
  DwordSetting ClrStatusBusy{*this, L"ClrStatusBusy", kNoColor};
  DwordSetting ClrStatusTentative{*this, L"ClrStatusTentative", kNoColor};
  DwordSetting ClrStatusOutofoffice{*this, L"ClrStatusOutofoffice", kNoColor};
};

}  // namespace tidewell
