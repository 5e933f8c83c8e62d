// The mail tab.
#pragma once

#include "settings/setting.h"

namespace tidewell {

struct MessagesSettings : SettingGroup {
  MessagesSettings() : SettingGroup(SettingKey::kMessages) {}

  DwordSetting MsgsDPadActionOverride{*this, L"MsgsDPadActionOverride", 1};
  DwordSetting MsgsOpenOnClick{*this, L"MsgsOpenOnClick", 0};
  DwordSetting MsgsPreviewWhenOpen{*this, L"MsgsPreviewWhenOpen", 0};
  DwordSetting MsgsMrkReadOnPrev{*this, L"MsgsMrkReadOnPrev", 1};
  DwordSetting MsgsBreakLineStyle{*this, L"MsgsBreakLineStyle", 1};
  DwordSetting MsgsIncldCounters{*this, L"MsgsIncldCounters", 1};
  DwordSetting MsgsIncldFoldBttns{*this, L"MsgsIncldFoldBttns", 1};
  DwordSetting MessagesSort{*this, L"MessagesSort", 0, kReadOnly};
  DwordSetting MessagesSortDirection{*this, L"MessagesSortDirection", 1, kReadOnly};
  StringSetting FoldingStateAcct{*this, L"FoldingStateAcct", L"", kReadOnly};
  DwordSetting MsgsShowReadMessages{*this, L"MsgsShowReadMessages", 1, kReadOnly};
  DwordSetting MsgsShowEmptyAccounts{*this, L"MsgsShowEmptyAccounts", 0, kReadOnly};
};

}  // namespace tidewell
