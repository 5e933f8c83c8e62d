#include "platform/name_pattern.h"

#include "platform/text.h"

namespace tidewell {

bool FitsPattern(std::wstring_view name, std::wstring_view pattern) {
  if (pattern == L"*.*") return true;
  constexpr std::size_t kNone = std::wstring_view::npos;
  std::size_t at = 0;
  std::size_t rule = 0;
  // Where to take up again when the run of the last star turns out too short.
  std::size_t retryRule = kNone;
  std::size_t retryAt = 0;
  while (at < name.size()) {
    if (rule < pattern.size() && pattern[rule] == L'*') {
      retryRule = ++rule;
      retryAt = at;
    } else if (rule < pattern.size() &&
               (pattern[rule] == L'?' || FoldCase(pattern[rule]) == FoldCase(name[at]))) {
      ++rule;
      ++at;
    } else if (retryRule != kNone) {
      rule = retryRule;
      at = ++retryAt;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of(L'*', rule) == kNone;
}

}  // namespace tidewell
