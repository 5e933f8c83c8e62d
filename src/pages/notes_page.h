// The Notes page: the notes tab of the Today item, the files that count as notes and their folders.
#pragma once

#include <memory>

#include "pages/page_context.h"
#include "pages/page_rules.h"

namespace tidewell {

namespace notes_ids {
inline constexpr int kSearchBar = 1201;
inline constexpr int kFirstType = 1208;
inline constexpr int kListwise = 1213;
inline constexpr int kFolderList = 1215;
inline constexpr int kAdd = 1216;
inline constexpr int kRemove = 1217;
}  // namespace notes_ids

std::unique_ptr<PageRules> MakeNotesPage(PageContext& context);

}  // namespace tidewell
