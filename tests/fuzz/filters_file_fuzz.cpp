#include "categories/filters_file.h"

#include "backup/text_stream.h"
#include "platform/text.h"
#include "tests/fuzz/fuzz_targets.h"

namespace tidewell::fuzz {

namespace {

std::optional<FilterSet> Read(Bytes bytes) {
  BytesSource source(bytes);
  return ReadFilters(source);
}

}  // namespace

// A file that counts has the 32 filters; since its characters were bytes, writing and reading it
// again changes nothing.
void filters_file(Bytes bytes) {
  const std::optional<FilterSet> filters = Read(bytes);
  if (!filters) return;
  for (std::size_t i = 0; i < filters->size(); ++i) {
    Require((*filters)[i].index == static_cast<std::int32_t>(i) + 1);
  }
  const std::wstring text = FormatFilters(*filters);
  const std::optional<FilterSet> again = Read(BytesOf(text));
  Require(again && FormatFilters(*again) == text);
}

}  // namespace tidewell::fuzz
