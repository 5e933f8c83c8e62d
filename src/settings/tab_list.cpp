#include "settings/tab_list.h"

#include <algorithm>
#include <utility>

namespace tidewell {

namespace {

template <typename Predicate>
const TabEntry* FindEntry(const TabList& tabs, Predicate fits) {
  const auto found = std::find_if(tabs.begin(), tabs.end(), fits);
  return found == tabs.end() ? nullptr : &*found;
}

}  // namespace

void InsertByOrder(TabList& tabs, TabEntry entry) {
  const auto before = std::find_if(tabs.rbegin(), tabs.rend(), [&](const TabEntry& other) {
    return other.order <= entry.order;
  });
  tabs.insert(before.base(), std::move(entry));
}

void SortByOrder(TabList& tabs) {
  tabs.sort([](const TabEntry& left, const TabEntry& right) { return left.order < right.order; });
}

void Renumber(TabList& tabs) {
  std::int32_t order = 0;
  for (TabEntry& entry : tabs) entry.order = ++order;
}

const TabEntry* FindByOrder(const TabList& tabs, std::int32_t order) {
  return FindEntry(tabs, [&](const TabEntry& entry) { return entry.order == order; });
}

const TabEntry* FindByType(const TabList& tabs, TabType type) {
  return FindEntry(tabs, [&](const TabEntry& entry) { return entry.type == type; });
}

}  // namespace tidewell
