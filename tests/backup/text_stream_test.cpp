#include "backup/text_stream.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/support/catalog_support.h"
#include "tests/support/utf8.h"

namespace tidewell {
namespace {

using Lines = std::vector<std::wstring>;

// Gives its bytes in portions of one size, and an error after so many of them.
class PortionedSource final : public TextSource {
 public:
  PortionedSource(std::span<const std::byte> bytes, std::size_t portion, int portions = -1)
      : source_(bytes), portion_(portion), portions_(portions) {}
  bool Rewind() override { return source_.Rewind(); }
  std::optional<std::size_t> Read(std::span<std::byte> buffer) override {
    if (portions_ == 0) return std::nullopt;
    --portions_;
    return source_.Read(buffer.first(std::min(buffer.size(), portion_)));
  }

 private:
  BytesSource source_;
  std::size_t portion_;
  int portions_;
};

Lines LinesOf(TextSource& source) {
  TextReader reader(source);
  EXPECT_TRUE(reader.Rewind());
  Lines lines;
  for (std::wstring_view line; reader.ReadLine(line);) lines.emplace_back(line);
  return lines;
}

TEST(TextReader, LinesKeepTheirEndAndEveryUnitUpToAZero) {
  using namespace std::string_literals;
  const std::wstring full(1023, L'x');
  struct Case {
    std::wstring text;
    Lines lines;
  };
  const Case cases[] = {
      {L"", {}},
      {L"\n\na", {L"\n", L"\n", L"a"}},
      {L"a\r\nb\x20AC\xD83D\n\xFEFF", {L"a\r\n", L"b\x20AC\xD83D\n", L"\xFEFF"}},
      {L"ab\0cd\nef\n"s, {L"ab", L"ef\n"}},
      {L"\0\n\0"s, {L"", L""}},
      {full.substr(1) + L"\n", {full.substr(1) + L"\n"}},
      {full + L"\n", {full, L"\n"}},
      {full + full + L"yz\na\n", {full, full, L"yz\n", L"a\n"}},
  };
  for (const Case& c : cases) {
    const std::vector<std::byte> bytes = BytesOf(c.text);
    BytesSource source(bytes);
    EXPECT_EQ(LinesOf(source), c.lines) << Utf8(c.text);
    EXPECT_EQ(LinesOf(source), c.lines) << Utf8(c.text) << ", read again";
  }
}

TEST(TextReader, ThePortionsOfTheSourceDoNotShow) {
  std::wstring text;
  Lines expected;
  for (std::size_t i = 0; i < 3000; ++i) {
    expected.push_back(std::wstring(i % 37, L'a') + L"\n");
    text += expected.back();
  }
  const std::vector<std::byte> bytes = BytesOf(text);
  for (const std::size_t portion : {1, 2, 3, 1021, 16384}) {
    PortionedSource source(bytes, portion);
    EXPECT_EQ(LinesOf(source), expected) << portion;
  }
}

TEST(TextReader, AnOddByteOrAnErrorEndsTheText) {
  const std::vector<std::byte> bytes = BytesOf(L"ab\ncd");
  BytesSource odd{std::span(bytes).first(9)};
  EXPECT_EQ(LinesOf(odd), (Lines{L"ab\n", L"c"}));
  PortionedSource broken(bytes, 8, 1);
  EXPECT_EQ(LinesOf(broken), (Lines{L"ab\n", L"c"}));
}

TEST(TextWriter, WritesLittleEndianUnitsAndNothingElse) {
  std::wstring text = L"\n\x20AC\xD83D";
  for (int i = 0; i < 9000; ++i) text += static_cast<wchar_t>(i);
  ByteSink sink;
  TextWriter writer(sink);
  writer.Write(text.substr(0, 5));
  writer.Write(text.substr(5));
  EXPECT_TRUE(writer.Flush());
  EXPECT_EQ(sink.bytes, BytesOf(text));
}

TEST(TextWriter, ALossIsNotForgotten) {
  MemoryFiles files;
  files.SetFreeBytes(20000);
  const auto stream = files.OpenForWriting(L"\\a");
  TextWriter writer(*stream);
  writer.Write(std::wstring(12000, L'a'));
  EXPECT_FALSE(writer.Flush());
  files.SetFreeBytes({});
  writer.Write(L"b");
  EXPECT_FALSE(writer.Flush());
}

}  // namespace
}  // namespace tidewell
