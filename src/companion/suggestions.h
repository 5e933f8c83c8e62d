// What a user may have meant by a word that there is none of.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tidewell {

// The one of the names that takes the fewest changes of letters, whatever their case; none when
// even that would be another word.
std::wstring NearestOf(const std::vector<std::wstring>& names, std::wstring_view word);

}  // namespace tidewell
