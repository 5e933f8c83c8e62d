#include "categories/filters_file.h"

#include <gtest/gtest.h>

#include "backup/text_stream.h"
#include "platform/text.h"
#include "tests/support/utf8.h"

namespace tidewell {
namespace {

std::optional<FilterSet> Read(std::span<const std::byte> bytes) {
  BytesSource source(bytes);
  return ReadFilters(source);
}
std::optional<FilterSet> Read(std::wstring_view text) {
  return Read(BytesOf(text));
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
  std::wstring expected =
      L"[FILTER0]\r\n\"Title\"=\"\x00FC\x00FF\"=\"x [FILTER4]\"\r\n"
      L"\"Sensitivity\"=dword:-2147483648\r\n\"Visible\"=dword:0\r\n\"Uncategorized\"=dword:1\r\n";
  for (std::int32_t i = 1; i < kFilterCount; ++i) {
    expected += Record(i, L"\"Title\"=\"Filter " + FormatDecimal(i + 1) +
                              L"\"\r\n\"Sensitivity\"=dword:0\r\n\"Visible\"=dword:1\r\n"
                              L"\"Uncategorized\"=dword:0\r\n");
  }
  EXPECT_EQ(Utf8(FormatFilters(filters)), Utf8(expected));
  const auto read = Read(expected);
  ASSERT_TRUE(read.has_value());
  EXPECT_EQ(Utf8(FormatFilters(*read)), Utf8(expected));
  EXPECT_EQ((*read)[31].index, 32);

  std::vector<std::byte> narrow;
  for (const wchar_t unit : expected) narrow.push_back(static_cast<std::byte>(unit));
  EXPECT_EQ(FormatFilters(Read(narrow).value()), expected) << "one byte a character";
}

TEST(FiltersFile, ACharacterAboveU00FFComesBackAsItsTwoBytes) {
  // A byte 10 in a character ends the line: what is left is no title, and the rest of the line
  // stands where the sensitivity is expected.
  for (const auto& [written, expected] : {std::pair(L"a\x20AC", L"a\x00AC\x0020"),
                                          {L"\x0100z", L"\x0001z"},
                                          {L"ab\x0A42", L"Filter 1"},
                                          {L"ab\x420A", L"Filter 1"}}) {
    FilterSet filters = DefaultFilters();
    filters[0].title = written;
    const auto read = Read(FormatFilters(filters));
    ASSERT_TRUE(read.has_value()) << Utf8(written);
    EXPECT_EQ(Utf8((*read)[0].title), Utf8(expected));
    EXPECT_EQ((*read)[1].title, L"Filter 2");
  }
}

TEST(FiltersFile, EveryRecordIsReadByTheLineRules) {
  struct Case {
    const wchar_t* record;
    const char* shown;
  };
  constexpr Case kCases[] = {
      // Any number but 0 is true; names do not matter; malformed lines leave the defaults.
      {L"\"Title\"=\"A\"\r\n\"S\"=dword:7\r\n\"V\"=dword:-2\r\n\"U\"=dword:2\r\n",
       "A 7 visible all 3"},
      {L"\"\"=\"ABC\"\r\n\"\"=dword:1\r\n=dword:0\r\nx=dword:1\r\n", "ABC 1 hidden all 3"},
      {L"Title\r\n\r\n\"V\"=1\r\n\"U\"=dword\r\n", "Filter 3 0 visible 3"},
      // Without its carriage return a line loses its last character.
      {L"\"Title\"=\"AB\"\"\n\"S\"=dword:12\n\"V\"=dword:0\n\"U\"=dword:1\n", "AB 12 hidden all 3"},
      {L"\"Title\"=\"AB\"\n\"S\"=dword:12\n\"V\"=dword:0\n\"U\"=dword:1\n",
       "Filter 3 12 hidden all 3"},
      // Noise behind the record.
      {L"\"T\"=\"A\"\r\n\"S\"=dword:1\r\n\"V\"=dword:0\r\n\"U\"=dword:1\r\n\r\n[FILTER9]\r\n?\n",
       "A 1 hidden all 3"},
  };
  for (const Case& c : kCases) {
    const auto read = Read(Records(0, 2) + Record(2, c.record) + Records(3, 29));
    ASSERT_TRUE(read.has_value()) << Utf8(c.record);
    const FilterRecord& filter = (*read)[2];
    const std::string shown = Utf8(filter.title) + ' ' + std::to_string(filter.sensitivity) +
                              (filter.visible ? " visible" : " hidden") +
                              (filter.includeUncategorized ? " all " : " ") +
                              std::to_string(filter.index);
    EXPECT_EQ(shown, c.shown) << Utf8(c.record);
  }
}

TEST(FiltersFile, OnlyHeadersInOrderCount) {
  struct Case {
    const char* what;
    std::wstring text;
    bool isWhole;
  };
  const Case cases[] = {
      {"nothing", L"", false},
      {"31 records", Records(0, 31), false},
      {"32 records", Records(0, 32), true},
      {"33 records", Records(0, 33), false},
      {"records before the first are skipped", Records(5, 3) + Records(0, 32), true},
      {"numbered from 1", Records(1, 32), false},
      {"one is missing in the middle", Records(0, 16) + Records(17, 16), false},
      {"a later one twice", Records(0, 16) + Records(3, 2) + Records(16, 16), true},
      {"a header within a line", L"xx" + Records(0, 32), true},
      {"another letter case", L"[filter0]\r\n" + Records(1, 31), false},
      {"a header where a number is expected", Record(0, L"\r\n") + Records(1, 31), false},
      {"the last record cut off after its header", Records(0, 31) + L"[FILTER31]", true},
      {"a line of a megabyte", std::wstring(1 << 20, L'x') + L"\n" + Records(0, 32), true},
  };
  for (const Case& c : cases) EXPECT_EQ(Read(c.text).has_value(), c.isWhole) << c.what;
}

}  // namespace
}  // namespace tidewell
