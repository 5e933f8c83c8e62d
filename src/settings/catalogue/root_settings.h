// The settings of the item as a whole.
#pragma once

#include "settings/setting.h"

namespace tidewell {

struct RootSettings : SettingGroup {
  RootSettings() : SettingGroup(SettingKey::kRoot) {}

  DwordSetting OnClick{*this, L"OnClick", 0};
  DwordSetting OnDoubleClick{*this, L"OnDoubleClick", 0};
  StringSetting SelectedLangResFile{*this, L"SelectedLangResFile",
                                    L"\\Program Files\\Velmont\\Tidewell\\LangRes\\TWEngRc.dll"};
  StringSetting SkinPath{*this, L"SkinPath", L""};
  DwordSetting EnableSoundEffect{*this, L"EnableSoundEffect", 1};
  DwordSetting RemoveHighlight{*this, L"RemoveHighlight", 0};
  DwordSetting GoofyMode{*this, L"GoofyMode", 0};
  DwordSetting IndentItems{*this, L"IndentItems", 0};
  DwordSetting AutoHeight{*this, L"AutoHeight", 1};
  DwordSetting dHeightLimit{*this, L"dHeightLimit", ScaledY(160)};
  // 0: no limit of its own in landscape.
  DwordSetting dHeightLimitLandscape{*this, L"dHeightLimitLandscape", 0, WithinAtSave(60, 500)};
  DwordSetting DPadEnabled{*this, L"DPadEnabled", 1};
  DwordSetting DPadCompleteAction{*this, L"DPadCompleteAction", 2};
  DwordSetting DPadDoubleClickTabSwitching{*this, L"DPadDoubleClickTabSwitching", 0};
  DwordSetting DPadScrollingAction{*this, L"DPadScrollingAction", 0};
  DwordSetting ExclusiveDPadNavig{*this, L"ExclusiveDPadNavig", 0};
  DwordSetting UseDoubleClickScroll{*this, L"UseDoubleClickScroll", 1};
  DwordSetting UseFullScrollings{*this, L"UseFullScrollings", 1};
  // Doubles every length. Read before everything else, when the main window is created.
  DwordSetting MyVgaMode{*this, L"MyVgaMode", 0};
  DwordSetting UseThinLines{*this, L"UseThinLines", 0};
  DwordSetting LoadingDelay{*this, L"LoadingDelay", 0};
  StringSetting TWFiltersFileFolder{*this, L"TWFiltersFileFolder", InstallFolder(), kReadOnly};
  StringSetting TWIconsFolder{*this, L"TWIconsFolder", InstallFolder(L"\\CategoryIcons"),
                              kReadOnly};
  DwordSetting NoteZoom{*this, L"NoteZoom", 100, kReadOnly};
  DwordSetting ActiveTab{*this, L"ActiveTab", 1, kReadOnly};
  DwordSetting FirstTimeSettingsMsg{*this, L"FirstTimeSettingsMsg", 0};
};

}  // namespace tidewell
