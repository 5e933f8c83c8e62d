// The names of the copies that are made before imports: "TW_BeforeImport_2026_11_15_235907.twsb",
// and "..._235907_2.twsb" for a second one of that moment.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/locale.h"

namespace tidewell {

// Fits every copy's name, and some others.
inline constexpr std::wstring_view kCopyPattern = L"TW_BeforeImport_*.twsb";

// The name of a copy that is made now, in a folder that holds these files.
std::wstring NextCopyName(const LocalTime& time, const std::vector<std::wstring>& files);
// Spelled exactly as NextCopyName spells.
bool IsCopyName(std::wstring_view name);
// Sorts names of copies, the newest first.
void SortNewestFirst(std::vector<std::wstring>& copies);

}  // namespace tidewell
