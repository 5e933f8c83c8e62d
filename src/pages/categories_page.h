// The Categories page: the device's categories, the 32 filters, and which category is in which.
#pragma once

#include <memory>

#include "pages/page_context.h"
#include "pages/page_rules.h"

namespace tidewell {

namespace categories_ids {
inline constexpr int kCategoryList = 1205;
inline constexpr int kColor = 1206;
inline constexpr int kSensitivity = 1208;
inline constexpr int kUncategorized = 1209;
inline constexpr int kFilterList = 1210;
inline constexpr int kTitle = 1211;
inline constexpr int kReset = 1212;
inline constexpr int kFilter = 1214;
inline constexpr int kMemberList = 1215;
}  // namespace categories_ids

std::unique_ptr<PageRules> MakeCategoriesPage(PageContext& context);

}  // namespace tidewell
