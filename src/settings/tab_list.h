// The tabs of the Today item's tab strip, kept in ascending order.
#pragma once

#include <cstdint>
#include <list>
#include <string>

namespace tidewell {

// Built-in tabs have one bit each; 1 is another Today plug-in, hosted in a tab.
enum class TabType : std::uint32_t {
  kHosted = 1,
  kCalendar = 2,
  kTasks = 4,
  kSpecialEvents = 8,
  kNotes = 16,
  kMail = 32,
  kContacts = 64,
};

struct TabEntry {
  TabType type = TabType::kHosted;
  std::int32_t order = 0;
  std::uint32_t enabled = 0;  // only 1 counts as enabled
  std::wstring caption;       // a hosted plug-in's name
  // Of hosted plug-ins alone:
  std::wstring dll;
  std::wstring installPath;
  std::wstring customIconName;

  bool operator==(const TabEntry&) const = default;
};

// Entries stay where they are in memory while others come and go.
using TabList = std::list<TabEntry>;

// Puts the entry behind those of a lower or the same order.
void InsertByOrder(TabList& tabs, TabEntry entry);
// Entries of the same order stay as they stand.
void SortByOrder(TabList& tabs);
// Gives the entries the orders 1, 2, 3 ... from the front.
void Renumber(TabList& tabs);
// Null when there is none.
const TabEntry* FindByOrder(const TabList& tabs, std::int32_t order);
const TabEntry* FindByType(const TabList& tabs, TabType type);

}  // namespace tidewell
