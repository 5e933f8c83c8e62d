// The lines of a list view, all at once. Windows only.
#pragma once

#include <windows.h>

#include <functional>
#include <vector>

#include "pages/page_rules.h"

namespace tidewell {

std::vector<ListLine> LinesOf(HWND list);
// Replaces all lines; none is selected. `imageOf` tells a line's image in the list's small icons.
void ShowLines(HWND list, const std::vector<ListLine>& lines,
               const std::function<int(const ListLine&)>& imageOf = {});

// Makes the one column as wide as the list beside its scroll bar, if it has one: a desktop's list
// view scrolls sideways otherwise. To be called after each change of the lines or of the place; a
// list gets its column from the first call, for each line added beside a column moves its header.
void FitColumn(HWND list);

}  // namespace tidewell
