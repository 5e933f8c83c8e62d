// The Tabs page: the tab strip of the Today item, and other plug-ins that are hosted in its tabs.
#pragma once

#include <memory>

#include "pages/page_context.h"
#include "pages/page_rules.h"

namespace tidewell {

namespace tabs_ids {
inline constexpr int kGestures = 1205;
inline constexpr int kEffectLabel = 1206;
inline constexpr int kEffect = 1207;
inline constexpr int kTabList = 1208;
inline constexpr int kUp = 1209;
inline constexpr int kDown = 1210;
inline constexpr int kAdd = 1211;
inline constexpr int kRemove = 1212;
}  // namespace tabs_ids

std::unique_ptr<PageRules> MakeTabsPage(PageContext& context);

}  // namespace tidewell
