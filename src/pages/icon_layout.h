// Where the labels and strips of an icon picker stand.
#pragma once

#include "pages/page_tabs.h"

namespace tidewell {

// At `y`, in pixels; the labels are not fitted into their places yet.
RowPlace PlaceTwoRowPicker(const PageMetrics& metrics, const TwoRowPicker& picker, int y);

}  // namespace tidewell
