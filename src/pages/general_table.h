// The General page: what concerns the item as a whole.
#pragma once

#include <array>

#include "pages/page_context.h"
#include "pages/page_table.h"

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
}  // namespace general_ids

PageTable GeneralTable(PageContext& context);

// The limits apply to a height that does not fit itself to the content.
std::array<Enabling, 4> HeightRule(bool autoHeight);
// `group` is the line of the selector: 0 full navigation, 1 scrolling.
std::array<Enabling, 8> DPadRule(bool dPadEnabled, int group);

}  // namespace tidewell
