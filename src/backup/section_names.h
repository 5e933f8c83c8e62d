// What the writer and the reader of a registry text must spell alike.
#pragma once

#include <string_view>

namespace tidewell {

inline constexpr std::wstring_view kCategoriesSection = L"::Categories::";
inline constexpr std::wstring_view kFiltersSection = L"::Filters::";
// A string value that an import deletes instead of storing it.
inline constexpr std::wstring_view kDeletedString = L"not_the_same";

}  // namespace tidewell
