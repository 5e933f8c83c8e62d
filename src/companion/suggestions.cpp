#include "companion/suggestions.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "platform/text.h"

namespace tidewell {

namespace {

// Letters to change, to add and to take away.
std::size_t ChangesBetween(std::wstring_view from, std::wstring_view to) {
  std::vector<std::size_t> changes(to.size() + 1);
  std::iota(changes.begin(), changes.end(), std::size_t{0});
  for (std::size_t i = 0; i < from.size(); ++i) {
    std::size_t before = std::exchange(changes[0], i + 1);
    for (std::size_t j = 0; j < to.size(); ++j) {
      const std::size_t changed = before + (FoldCase(from[i]) == FoldCase(to[j]) ? 0 : 1);
      before = changes[j + 1];
      changes[j + 1] = std::min({changed, before + 1, changes[j] + 1});
    }
  }
  return changes.back();
}

}  // namespace

std::wstring NearestOf(const std::vector<std::wstring>& names, std::wstring_view word) {
  std::wstring nearest;
  // Half of its letters may be wrong.
  std::size_t fewest = word.size() / 2 + 1;
  for (const std::wstring& name : names) {
    const std::size_t changes = ChangesBetween(word, name);
    if (changes >= fewest) continue;
    fewest = changes;
    nearest = name;
  }
  return nearest;
}

}  // namespace tidewell
