// The Contacts page: the contacts tab of the Today item.
#pragma once

#include <memory>

#include "pages/page_context.h"
#include "pages/page_rules.h"

namespace tidewell {

namespace contacts_ids {
inline constexpr int kSearchBar = 1201;
inline constexpr int kLayout = 1214;
inline constexpr int kPhoneWidthLabel = 1215;
inline constexpr int kPhoneWidth = 1216;
inline constexpr int kHideWithoutPicture = 1217;
}  // namespace contacts_ids

std::unique_ptr<PageRules> MakeContactsPage(PageContext& context);

}  // namespace tidewell
