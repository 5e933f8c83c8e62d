// The Tasks page: the tasks tab of the Today item.
#pragma once

#include <memory>

#include "pages/page_context.h"
#include "pages/page_rules.h"

namespace tidewell {

namespace tasks_ids {
inline constexpr int kCustomDate = 1212;
inline constexpr int kStructureLabel = 1213;
inline constexpr int kStructure = 1214;
inline constexpr int kStartFormatLabel = 1215;
inline constexpr int kStartFormat = 1216;
inline constexpr int kEndFormatLabel = 1217;
inline constexpr int kEndFormat = 1218;
}  // namespace tasks_ids

std::unique_ptr<PageRules> MakeTasksPage(PageContext& context);

}  // namespace tidewell
