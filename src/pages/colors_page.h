// The Colors page: the colors of the Today item, stored as soon as they are chosen, and the
// schemes.
#pragma once

#include <memory>

#include "pages/page_context.h"
#include "pages/page_rules.h"

namespace tidewell {

namespace colors_ids {
inline constexpr int kChoose = 1200;
inline constexpr int kColors = 1201;
inline constexpr int kName = 1202;
inline constexpr int kSave = 1203;
inline constexpr int kSchemes = 1204;
inline constexpr int kApply = 1205;
inline constexpr int kDelete = 1206;
}  // namespace colors_ids

std::unique_ptr<PageRules> MakeColorsPage(PageContext& context);

}  // namespace tidewell
