// Where the controls of an option's editor stand: in the strip above the list of options.
#pragma once

#include <vector>

#include "pages/page_tabs.h"

namespace tidewell {

// Those that the editor has. Pixels.
std::vector<ControlPlace> PlaceOptionEditor(const PageMetrics& metrics, const OptionEditor& editor);
// The editor's label and its drop-down list: where a choice needs more room than the list has, it
// takes what the label leaves.
std::vector<ControlPlace> PlaceChoices(const PageMetrics& metrics, const OptionEditor& editor,
                                       const std::wstring& label,
                                       const std::vector<std::wstring>& choices);
// Of the list, at 96 dots per inch.
int OptionListOffset(const PageMetrics& metrics);
Rect PlaceOptionList(const PageMetrics& metrics);

// The control of the editor that holds an option's state.
int StateControlOf(const Option& option, const OptionEditor& editor);
// The controls that an option shows while it is selected.
std::vector<int> ControlsOf(const Option& option, const OptionEditor& editor);

}  // namespace tidewell
