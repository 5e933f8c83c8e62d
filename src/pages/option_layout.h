// Where the controls of an option's editor stand: in the strip above the list of options.
#pragma once

#include <vector>

#include "pages/page_tabs.h"

namespace tidewell {

inline constexpr int kOptionListOffset = 8;  // of the list, at 96 dots per inch

// Those that the editor has. Pixels.
std::vector<ControlPlace> PlaceOptionEditor(const PageMetrics& metrics, const OptionEditor& editor);
Rect PlaceOptionList(const PageMetrics& metrics);

// The controls that an option shows while it is selected.
std::vector<int> ControlsOf(const Option& option, const OptionEditor& editor);

}  // namespace tidewell
