// The contacts tab.
#pragma once

#include "settings/setting.h"

namespace tidewell {

struct ContactsSettings : SettingGroup {
  ContactsSettings() : SettingGroup(SettingKey::kContacts) {}

  DwordSetting CntctsActiveLanguages{*this, L"CntctsActiveLanguages", 1};
  DwordSetting CntctsActiveSearchBar{*this, L"CntctsActiveSearchBar", 1};
  StringSetting ContactsCustomSearchBarSelected{*this, L"ContactsCustomSearchBarSelected", L""};
  DwordSetting CntctsTitleStruct{*this, L"CntctsTitleStruct", 0};
  DwordSetting CntctsDPadActionOverride{*this, L"CntctsDPadActionOverride", 1};
  DwordSetting CntctsOnClickActionOpenItem{*this, L"CntctsOnClickActionOpenItem", 0};
  DwordSetting CntctsPrvwDlgUponOpenItem{*this, L"CntctsPrvwDlgUponOpenItem", 0};
  DwordSetting ContactsTxtByCategoryClr{*this, L"ContactsTxtByCategoryClr", 0};
  DwordSetting CntctsBreakLineStyle{*this, L"CntctsBreakLineStyle", 1};
  DwordSetting CntctsIncldFoldBttns{*this, L"CntctsIncldFoldBttns", 1};
  DwordSetting CntctsIncldCounters{*this, L"CntctsIncldCounters", 1};
  DwordSetting ContactsLayout{*this, L"ContactsLayout", 0};
  DwordSetting CntctsPhoneColumnWidth{*this, L"CntctsPhoneColumnWidth", 90};
  DwordSetting CntctsHideNoPicture{*this, L"CntctsHideNoPicture", 0};
  StringSetting ContactsSelCategory{*this, L"ContactsSelCategory", L"", kReadOnly};
  DwordSetting ContactsSelFilter{*this, L"ContactsSelFilter", 0, kReadOnly};
  StringSetting ContactsRecentFilters{*this, L"ContactsRecentFilters", L"", kReadOnly};
  DwordSetting ContactsGrouping{*this, L"ContactsGrouping", 0, kReadOnly};
  DwordSetting ContactsGroupingDirection{*this, L"ContactsGroupingDirection", 1, kReadOnly};
  DwordSetting ContactsSortDirection{*this, L"ContactsSortDirection", 1, kReadOnly};
  DwordSetting ContactsSearchMode{*this, L"ContactsSearchMode", 0, kReadOnly};
  DwordSetting FoldingStateNone{*this, L"FoldingStateNone", 0, kReadOnly};
  StringSetting FoldingStateCategory{*this, L"FoldingStateCategory", L"", kReadOnly};
  StringSetting FoldingStateCompany{*this, L"FoldingStateCompany", L"", kReadOnly};
};

}  // namespace tidewell
