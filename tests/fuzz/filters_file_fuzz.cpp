#include "categories/filters_file.h"

#include "platform/text.h"
#include "tests/fuzz/fuzz_targets.h"

namespace tidewell::fuzz {

// Since its characters were bytes, writing what a file holds and reading it again changes nothing.
void filters_file(Bytes bytes) {
  const std::optional<FilterSet> filters = ReadFilters(bytes);
  if (!filters) return;
  const std::wstring text = FormatFilters(*filters);
  const std::optional<FilterSet> again = ReadFilters(BytesOf(text));
  Require(again && FormatFilters(*again) == text);
}

}  // namespace tidewell::fuzz
