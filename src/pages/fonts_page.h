// The Fonts page: sizes, face and shadow of all texts, and the font of each kind of item, which is
// stored as soon as it is changed.
#pragma once

#include <memory>

#include "pages/page_context.h"
#include "pages/page_rules.h"

namespace tidewell {

namespace fonts_ids {
inline constexpr int kFace = 1205;
inline constexpr int kShadow = 1207;
inline constexpr int kClearType = 1208;
inline constexpr int kOwnFonts = 1209;
inline constexpr int kFonts = 1210;
inline constexpr int kChange = 1211;
}  // namespace fonts_ids

std::unique_ptr<PageRules> MakeFontsPage(PageContext& context);

}  // namespace tidewell
