#include "categories/filters_file.h"

#include "platform/text.h"
#include "text_format/value_lines.h"

namespace tidewell {

namespace {

// Every byte is a character, zero bytes excepted, and a line ends at a byte 10: the Today item
// writes 16-bit characters and reads bytes, so characters above U+00FF do not survive, and the
// carriage return stays as the one final unit that the line parsers drop.
class ByteLineReader {
 public:
  explicit ByteLineReader(std::span<const std::byte> rest) : rest_(rest) {}

  // False at the end of the file; a last line without its end counts.
  bool ReadLine(std::wstring& line) {
    line.clear();
    std::size_t used = 0;
    while (used < rest_.size()) {
      const auto code = std::to_integer<unsigned>(rest_[used++]);
      if (code == '\n') break;
      if (code != 0) line += static_cast<wchar_t>(code);
    }
    rest_ = rest_.subspan(used);
    return used != 0;
  }

 private:
  std::span<const std::byte> rest_;
};

// What a line does not tell, because it is missing or malformed, keeps its default.
FilterRecord ReadFilter(ByteLineReader& lines, std::int32_t index) {
  FilterRecord filter = DefaultFilter(index);
  std::wstring line;
  std::wstring name;
  if (lines.ReadLine(line)) ParseStringValueLine(line, name, filter.title);

  const auto readNumber = [&](std::int32_t number) {
    if (lines.ReadLine(line)) ParseDwordValueLine(line, name, number, 10);
    return number;
  };
  filter.sensitivity = readNumber(filter.sensitivity);
  filter.visible = readNumber(filter.visible) != 0;
  filter.includeUncategorized = readNumber(filter.includeUncategorized) != 0;
  return filter;
}

std::wstring HeaderOf(std::int32_t number) {
  return L"[FILTER" + FormatDecimal(number) + L"]";
}

}  // namespace

FilterRecord DefaultFilter(std::int32_t index) {
  FilterRecord filter;
  filter.title = L"Filter " + FormatDecimal(index);
  filter.index = index;
  return filter;
}

FilterSet DefaultFilters() {
  FilterSet filters;
  for (std::int32_t i = 0; i < kFilterCount; ++i) {
    filters[static_cast<std::size_t>(i)] = DefaultFilter(i + 1);
  }
  return filters;
}

std::wstring FormatFilters(const FilterSet& filters) {
  constexpr std::wstring_view kLineEnd = L"\r\n";
  std::wstring text;
  std::int32_t number = 0;
  for (const FilterRecord& filter : filters) {
    text += HeaderOf(number++);
    text += kLineEnd;
    AppendStringLine(text, L"Title", filter.title);
    text += kLineEnd;
    AppendDwordLine(text, L"Sensitivity", static_cast<std::uint32_t>(filter.sensitivity));
    text += kLineEnd;
    AppendDwordLine(text, L"Visible", filter.visible ? 1 : 0);
    text += kLineEnd;
    AppendDwordLine(text, L"Uncategorized", filter.includeUncategorized ? 1 : 0);
    text += kLineEnd;
  }
  return text;
}

std::optional<FilterSet> ReadFilters(std::span<const std::byte> file) {
  ByteLineReader lines(file);
  FilterSet filters;
  std::wstring line;
  std::int32_t count = 0;
  std::wstring header = HeaderOf(count);
  while (lines.ReadLine(line)) {
    if (line.find(header) == std::wstring::npos) continue;
    if (count == kFilterCount) return std::nullopt;
    filters[static_cast<std::size_t>(count)] = ReadFilter(lines, count + 1);
    header = HeaderOf(++count);
  }
  if (count != kFilterCount) return std::nullopt;
  return filters;
}

}  // namespace tidewell
