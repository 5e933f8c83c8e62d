// The twelve settings pages, by the index under which the main list opens them.
#pragma once

#include <array>

#include "pages/page_context.h"
#include "pages/page_table.h"

namespace tidewell {

inline constexpr int kPageCount = 12;

enum class PageIndex : int { kGeneral = 0, kMessages = 5, kSpecialEvents = 6, kPim = 9 };

struct PageEntry {
  const wchar_t* className;
  PageTable (*table)(PageContext& context);  // null until the page exists
};

inline constexpr std::size_t IndexOf(PageIndex page) {
  return static_cast<std::size_t>(page);
}

extern const std::array<PageEntry, kPageCount> kPages;

}  // namespace tidewell
