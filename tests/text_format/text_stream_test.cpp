#include "text_format/text_stream.h"

#include <gtest/gtest.h>

#include "platform/text.h"
#include "tests/support/utf8.h"

namespace tidewell {
namespace {

using Lines = std::vector<std::wstring>;

Lines LinesOf(std::span<const std::byte> bytes) {
  TextReader reader(bytes);
  Lines lines;
  for (std::wstring_view line; reader.ReadLine(line);) lines.emplace_back(line);
  return lines;
}

TEST(TextReader, LinesKeepTheirEndAndEveryUnitUpToAZero) {
  using namespace std::string_literals;
  const std::wstring full(1023, L'x');
  const std::pair<std::wstring, Lines> cases[] = {
      {L"", {}},
      {L"\n\na", {L"\n", L"\n", L"a"}},
      {L"a\r\nb\x20AC\xD83D\n\xFEFF", {L"a\r\n", L"b\x20AC\xD83D\n", L"\xFEFF"}},
      {L"ab\0cd\nef\n"s, {L"ab", L"ef\n"}},
      {L"\0\n\0"s, {L"", L""}},
      {full.substr(1) + L"\n", {full.substr(1) + L"\n"}},
      {full + full + L"yz\na\n", {full, full, L"yz\n", L"a\n"}},
      {std::wstring(3, L'\n'), Lines(3, L"\n")},
  };
  for (const auto& [text, lines] : cases) {
    EXPECT_EQ(LinesOf(BytesOf(text)), lines) << Utf8(text);
  }
  const std::vector<std::byte> bytes = BytesOf(L"ab\ncd");
  EXPECT_EQ(LinesOf(std::span(bytes).first(9)), (Lines{L"ab\n", L"c"})) << "an odd byte";
}

}  // namespace
}  // namespace tidewell
