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

// 32 headers, the text of some records replaced.
std::wstring FileWith(std::int32_t number, std::wstring_view record) {
  std::wstring text;
  for (std::int32_t i = 0; i < kFilterCount; ++i) {
    text += L"[FILTER" + FormatDecimal(i) + L"]\r\n";
    if (i == number)
      text += record;
    else
      text +=
          L"\"Title\"=\"T\"\r\n\"Sensitivity\"=dword:0\r\n\"Visible\"=dword:1\r\n\"U\"=dword:0\r\n";
  }
  return text;
}

std::string Show(const FilterRecord& filter) {
  return Utf8(filter.title) + ' ' + std::to_string(filter.sensitivity) +
         (filter.visible ? " visible" : " hidden") + (filter.includeUncategorized ? " all" : "") +
         ' ' + std::to_string(filter.index);
}

TEST(FiltersFile, IsWrittenToTheByte) {
  FilterSet filters = DefaultFilters();
  filters[0] = {L"\x00DC\"x", -5, false, true, 1};
  std::wstring expected =
      L"[FILTER0]\r\n\"Title\"=\"\x00DC\"x\"\r\n\"Sensitivity\"=dword:-5\r\n"
      L"\"Visible\"=dword:0\r\n\"Uncategorized\"=dword:1\r\n";
  for (std::int32_t i = 1; i < kFilterCount; ++i) {
    expected += L"[FILTER" + FormatDecimal(i) + L"]\r\n\"Title\"=\"Filter " + FormatDecimal(i + 1) +
                L"\"\r\n\"Sensitivity\"=dword:0\r\n\"Visible\"=dword:1\r\n"
                L"\"Uncategorized\"=dword:0\r\n";
  }
  EXPECT_EQ(Utf8(FormatFilters(filters)), Utf8(expected));
}

TEST(FiltersFile, ComesBackTheSameUpToU00FF) {
  FilterSet filters = DefaultFilters();
  filters[3] = {L"\x00FC\x00FF \"=\" [FILTER4]", INT32_MIN, false, true, 4};
  filters[31].title = L"x";
  const auto read = Read(FormatFilters(filters));
  ASSERT_TRUE(read.has_value());
  EXPECT_EQ(Utf8(FormatFilters(*read)), Utf8(FormatFilters(filters)));
  EXPECT_EQ((*read)[31].index, 32);
}

TEST(FiltersFile, ACharacterAboveU00FFComesBackAsItsTwoBytes) {
  struct Case {
    const wchar_t* written;
    const wchar_t* read;
  };
  const Case cases[] = {
      {L"a\x20AC", L"a\x00AC\x0020"},
      {L"\x0100z", L"\x0001z"},
      // A byte 10 in a character ends the line: what is left is no title, and the rest of the
      // line stands where the sensitivity is expected.
      {L"ab\x0A42", L"Filter 1"},
      {L"ab\x420A", L"Filter 1"},
  };
  for (const Case& c : cases) {
    FilterSet filters = DefaultFilters();
    filters[0].title = c.written;
    const auto read = Read(FormatFilters(filters));
    ASSERT_TRUE(read.has_value()) << Utf8(c.written);
    EXPECT_EQ(Utf8((*read)[0].title), Utf8(c.read));
    EXPECT_EQ((*read)[1].title, L"Filter 2");
  }
}

TEST(FiltersFile, EveryRecordIsReadByTheLineRules) {
  struct Case {
    const char* what;
    const wchar_t* record;
    const char* shown;
  };
  const Case cases[] = {
      {"any number but 0 is true",
       L"\"Title\"=\"A\"\r\n\"S\"=dword:7\r\n\"V\"=dword:-2\r\n\"U\"=dword:2\r\n",
       "A 7 visible all 3"},
      {"names do not matter", L"\"\"=\"ABC\"\r\n\"\"=dword:1\r\n=dword:0\r\nx=dword:1\r\n",
       "ABC 1 hidden all 3"},
      {"malformed lines leave the defaults", L"Title\r\n\r\n\"V\"=1\r\n\"U\"=dword\r\n",
       "Filter 3 0 visible 3"},
      {"a line without its carriage return loses its last character",
       L"\"Title\"=\"AB\"\"\n\"S\"=dword:12\n\"V\"=dword:0\n\"U\"=dword:1\n", "AB 12 hidden all 3"},
      {"a title without its carriage return is none",
       L"\"Title\"=\"AB\"\n\"S\"=dword:12\n\"V\"=dword:0\n\"U\"=dword:1\n",
       "Filter 3 12 hidden all 3"},
      {"noise after the record",
       L"\"Title\"=\"A\"\r\n\"S\"=dword:1\r\n\"V\"=dword:0\r\n\"U\"=dword:1\r\n\r\n[FILTER9]\r\n?"
       L"\n",
       "A 1 hidden all 3"},
  };
  for (const Case& c : cases) {
    const auto read = Read(FileWith(2, c.record));
    ASSERT_TRUE(read.has_value()) << c.what;
    EXPECT_EQ(Show((*read)[2]), c.shown) << c.what;
  }
}

TEST(FiltersFile, OneBytePerCharacterReadsAsWell) {
  const std::vector<std::byte> wide = BytesOf(FileWith(0, L"\"Title\"=\"A\xE9\"\r\n"));
  std::vector<std::byte> narrow;
  for (std::size_t i = 0; i < wide.size(); i += 2) narrow.push_back(wide[i]);
  const auto fromNarrow = Read(narrow);
  ASSERT_FALSE(fromNarrow.has_value());  // the next header was read as a number line
  const std::wstring whole = FormatFilters(DefaultFilters());
  const std::vector<std::byte> bytes = BytesOf(whole);
  narrow.clear();
  for (std::size_t i = 0; i < bytes.size(); i += 2) narrow.push_back(bytes[i]);
  EXPECT_TRUE(Read(narrow).has_value());
}

TEST(FiltersFile, OnlyHeadersInOrderCount) {
  const auto header = [](std::int32_t number) {
    return L"[FILTER" + FormatDecimal(number) + L"]\r\n";
  };
  const auto records = [&](std::int32_t first, std::int32_t count) {
    std::wstring text;
    for (std::int32_t i = first; i < first + count; ++i) {
      text += header(i) + L"\"Title\"=\"" + FormatDecimal(i) + L"\"\r\n1\r\n2\r\n3\r\n";
    }
    return text;
  };
  struct Case {
    const char* what;
    std::wstring text;
    bool isWhole;
  };
  const Case cases[] = {
      {"nothing", L"", false},
      {"31 records", records(0, 31), false},
      {"32 records", records(0, 32), true},
      {"33 records", records(0, 33), false},
      {"records before the first are skipped", records(5, 3) + records(0, 32), true},
      {"numbered from 1", records(1, 32), false},
      {"one is missing in the middle", records(0, 16) + records(17, 16), false},
      {"a later one twice", records(0, 16) + records(3, 2) + records(16, 16), true},
      {"a header within a line", L"xx" + records(0, 32), true},
      {"another letter case", L"[filter0]\r\n", false},
      {"the last record cut off after its header", records(0, 31) + L"[FILTER31]", true},
      {"a line of a megabyte", std::wstring(1 << 20, L'x') + L"\n" + records(0, 32), true},
  };
  for (const Case& c : cases) EXPECT_EQ(Read(c.text).has_value(), c.isWhole) << c.what;
}

}  // namespace
}  // namespace tidewell
