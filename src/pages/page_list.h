// The twelve settings pages, by the index under which the main list opens them. The list's entries,
// the page host, the tests and the documentation come from here.
#pragma once

#include <array>
#include <memory>

#include "pages/page_context.h"
#include "pages/page_rules.h"

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
  int pictureId;  // in the resolution library
  std::unique_ptr<PageRules> (*make)(PageContext& context);
};

extern const std::array<PageEntry, kPageCount> kPages;

}  // namespace tidewell
