// The twelve settings pages, by the index under which the main list opens them.
#pragma once

#include <array>

#include "pages/page_context.h"
#include "pages/page_table.h"

namespace tidewell {

inline constexpr int kPageCount = 12;

enum class PageIndex : int {
  kGeneral,
  kCalendar,
  kTasks,
  kNotes,
  kContacts,
  kMessages,
  kSpecialEvents,
  kFonts,
  kColors,
  kPim,
  kTabs,
  kCategories,
};

struct PageEntry {
  const wchar_t* className;
  int captionId;
  PageTable (*table)(PageContext& context);  // null until the page exists
};

extern const std::array<PageEntry, kPageCount> kPages;

}  // namespace tidewell
