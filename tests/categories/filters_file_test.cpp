#include "categories/filters_file.h"

#include <gtest/gtest.h>

#include "platform/text.h"
#include "tests/support/utf8.h"

namespace tidewell {
namespace {

std::optional<FilterSet> Read(std::wstring_view text) {
  return ReadFilters(BytesOf(text));
}

std::wstring Record(std::int32_t number, std::wstring_view lines) {
  return L"[FILTER" + FormatDecimal(number) + L"]\r\n" + std::wstring(lines);
}
std::wstring Records(std::int32_t first, std::int32_t count) {
  std::wstring text;
  for (std::int32_t i = first; i < first + count; ++i) text += Record(i, L"\r\n\r\n\r\n\r\n");
  return text;
}

TEST(FiltersFile, IsWrittenToTheByteAndComesBackTheSameUpToU00FF) {
  FilterSet filters = DefaultFilters();
  filters[0] = {L"\x00FC\x00FF\"=\"x [FILTER4]", INT32_MIN, false, true, 1};
  const std::wstring text = FormatFilters(filters);
  EXPECT_TRUE(text.starts_with(
      Record(0,
             L"\"Title\"=\"\x00FC\x00FF\"=\"x [FILTER4]\"\r\n\"Sensitivity\"=dword:-2147483648\r\n"
             L"\"Visible\"=dword:0\r\n\"Uncategorized\"=dword:1\r\n")));
  EXPECT_TRUE(text.ends_with(Record(31,
                                    L"\"Title\"=\"Filter 32\"\r\n\"Sensitivity\"=dword:0\r\n"
                                    L"\"Visible\"=dword:1\r\n\"Uncategorized\"=dword:0\r\n")));
  EXPECT_EQ(Utf8(FormatFilters(Read(text).value())), Utf8(text));

  std::string narrow(text.begin(), text.end());
  EXPECT_EQ(FormatFilters(ReadFilters(std::as_bytes(std::span(narrow))).value()), text);
}

TEST(FiltersFile, EveryRecordIsReadByTheLineRules) {
  constexpr std::pair<const wchar_t*, const char*> kCases[] = {
      // Any number but 0 is true; names do not matter; malformed lines leave the defaults.
      {L"\"\"=\"A\"\r\n\"S\"=dword:7\r\n\"V\"=dword:-2\r\nx=dword:2\r\n", "Filter 3 7 visible all"},
      {L"Title\r\n\r\n\"V\"=1\r\n\"U\"=dword\r\n", "Filter 3 0 visible"},
      // Without its carriage return a line loses its last character.
      {L"\"Title\"=\"AB\"\"\n\"S\"=dword:12\n\"V\"=dword:0\n\"U\"=dword:1\n", "AB 12 hidden all"},
      // A character above U+00FF comes back as its two bytes, and a byte 10 ends the line.
      {L"\"T\"=\"a\x20AC\"\r\n\r\n\r\n\r\n", "a\xC2\xAC  0 visible"},
      {L"\"T\"=\"ab\x420A\"\r\n\r\n\r\n\r\n", "Filter 3 0 visible"},
  };
  for (const auto& [record, shown] : kCases) {
    const FilterRecord filter = Read(Records(0, 2) + Record(2, record) + Records(3, 29)).value()[2];
    EXPECT_EQ(Utf8(filter.title) + ' ' + std::to_string(filter.sensitivity) +
                  (filter.visible ? " visible" : " hidden") +
                  (filter.includeUncategorized ? " all" : ""),
              shown)
        << Utf8(record);
  }
}

TEST(FiltersFile, OnlyHeadersInOrderCount) {
  const std::tuple<const char*, std::wstring, bool> cases[] = {
      {"33 records", Records(0, 33), false},
      {"one is missing in the middle", Records(0, 16) + Records(17, 16), false},
      {"a later one twice", Records(0, 16) + Records(3, 2) + Records(16, 16), true},
      {"a header where a number is expected", Record(0, L"\r\n") + Records(1, 31), false},
      {"the last record cut off after its header", Records(0, 31) + L"[FILTER31]", true},
      {"a line of a megabyte", std::wstring(1 << 20, L'x') + Records(0, 32), true},
  };
  for (const auto& [what, text, isWhole] : cases) {
    EXPECT_EQ(Read(text).has_value(), isWhole) << what;
  }
}

}  // namespace
}  // namespace tidewell
