// The General page: what concerns the item as a whole.
#pragma once

#include <memory>

#include "pages/page_context.h"
#include "pages/page_rules.h"

namespace tidewell {

namespace general_ids {
inline constexpr int kAutoHeight = 1206;
inline constexpr int kHeightLabel = 1207;
inline constexpr int kHeight = 1208;
inline constexpr int kLandscapeHeightLabel = 1209;
inline constexpr int kLandscapeHeight = 1210;
inline constexpr int kSkinPath = 1212;
inline constexpr int kClearSkin = 1213;
inline constexpr int kBrowseSkin = 1214;
inline constexpr int kLanguage = 1216;
inline constexpr int kDPadEnabled = 1220;
inline constexpr int kDPadGroupLabel = 1221;
inline constexpr int kDPadGroup = 1222;
inline constexpr int kActionLabel = 1223;
inline constexpr int kAction = 1224;
inline constexpr int kScrollingLabel = 1225;
inline constexpr int kScrolling = 1226;
inline constexpr int kDoublePress = 1227;
inline constexpr int kExclusive = 1228;
inline constexpr int kIconSet = 2001;  // our own begin at 2000
}  // namespace general_ids

std::unique_ptr<PageRules> MakeGeneralPage(PageContext& context);

}  // namespace tidewell
