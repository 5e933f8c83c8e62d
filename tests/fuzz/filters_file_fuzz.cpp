#include "categories/filters_file.h"

#include "platform/text.h"
#include "tests/fuzz/fuzz_targets.h"
#include "text_format/text_stream.h"

namespace tidewell::fuzz {

// Since its characters were bytes, writing what a file holds and reading it again changes nothing.
void filters_file(Bytes bytes) {
  BytesSource source(bytes);
  const std::optional<FilterSet> filters = ReadFilters(source);
  if (!filters) return;
  const std::wstring text = FormatFilters(*filters);
  const std::vector<std::byte> written = BytesOf(text);
  BytesSource writtenSource(written);
  const std::optional<FilterSet> again = ReadFilters(writtenSource);
  Require(again && FormatFilters(*again) == text);
}

}  // namespace tidewell::fuzz
