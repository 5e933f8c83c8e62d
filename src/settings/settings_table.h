// The settings as a document: what docs/settings.md holds.
#pragma once

#include <string>

#include "settings/settings_store.h"

namespace tidewell {

// A default as it reads in a document: 7, ScaleX(12), `"Tahoma"`.
std::wstring DescribeDefault(const DwordDefault& rule);
std::wstring DescribeDefault(const StringDefault& rule);

// Markdown in plain ASCII, lines ended by a line feed.
std::wstring SettingsTable(SettingsStore& store);

}  // namespace tidewell
