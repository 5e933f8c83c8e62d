#include "backup/text_stream.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "platform/text.h"
#include "tests/support/catalog_support.h"

namespace tidewell {
namespace {

// Gives its bytes in portions of one size, and an error after `errorAfter` of them.
class PortionedSource final : public TextSource {
 public:
  PortionedSource(std::vector<std::byte> bytes, std::size_t portion, std::size_t errorAfter = ~0u)
      : bytes_(std::move(bytes)), portion_(portion), errorAfter_(errorAfter) {}
  bool Rewind() override {
    at_ = 0;
    return true;
  }
  std::optional<std::size_t> Read(std::span<std::byte> buffer) override {
    if (at_ >= errorAfter_) return std::nullopt;
    const std::size_t count = std::min({buffer.size(), portion_, bytes_.size() - at_});
    std::copy_n(bytes_.begin() + static_cast<std::ptrdiff_t>(at_), count, buffer.begin());
    at_ += count;
    return count;
  }

 private:
  std::vector<std::byte> bytes_;
  std::size_t portion_;
  std::size_t errorAfter_;
  std::size_t at_ = 0;
};

std::vector<std::wstring> LinesOf(TextSource& source) {
  TextReader reader(source);
  EXPECT_TRUE(reader.Rewind());
  std::vector<std::wstring> lines;
  for (std::wstring_view line; reader.ReadLine(line);) lines.emplace_back(line);
  return lines;
}

std::vector<std::wstring> LinesOf(std::wstring_view text) {
  const std::vector<std::byte> bytes = BytesOf(text);
  BytesSource source(bytes);
  return LinesOf(source);
}

using Lines = std::vector<std::wstring>;

TEST(TextReader, LinesKeepTheirEndAndEveryOtherUnit) {
  EXPECT_EQ(LinesOf(L""), Lines{});
  EXPECT_EQ(LinesOf(L"\n\na"), (Lines{L"\n", L"\n", L"a"}));
  EXPECT_EQ(LinesOf(L"a\r\nb\x20AC\xD83D\n\xFEFF"),
            (Lines{L"a\r\n", L"b\x20AC\xD83D\n", L"\xFEFF"}));
}

TEST(TextReader, ALineEndsForItsReaderAtItsFirstZero) {
  using namespace std::string_literals;
  EXPECT_EQ(LinesOf(L"ab\0cd\nef\n"s), (Lines{L"ab", L"ef\n"}));
  EXPECT_EQ(LinesOf(L"\0\n\0"s), (Lines{L"", L""}));
}

TEST(TextReader, ALongLineComesInPiecesOf1023Units) {
  const std::wstring full(1023, L'x');
  EXPECT_EQ(LinesOf(full.substr(1) + L"\n"), Lines{full.substr(1) + L"\n"});
  EXPECT_EQ(LinesOf(full + L"\n"), (Lines{full, L"\n"}));
  EXPECT_EQ(LinesOf(full + full + L"yz\na\n"), (Lines{full, full, L"yz\n", L"a\n"}));
}

TEST(TextReader, AMegabyteInOneLineIsReadToItsEnd) {
  const Lines lines = LinesOf(std::wstring(1 << 20, L'x') + L"\nend");
  ASSERT_EQ(lines.size(), (1u << 20) / 1023 + 2);
  EXPECT_EQ(lines.back(), L"end");
}

TEST(TextReader, ThePortionsOfTheSourceDoNotShow) {
  std::wstring text;
  for (int i = 0; i < 3000; ++i)
    text += std::wstring(static_cast<std::size_t>(i % 37), L'a') + L"\n";
  const Lines expected = LinesOf(text);
  for (const std::size_t portion : {1u, 2u, 3u, 1021u, 16384u}) {
    PortionedSource source(BytesOf(text), portion);
    EXPECT_EQ(LinesOf(source), expected) << portion;
  }
}

TEST(TextReader, AnOddByteOrAnErrorEndsTheText) {
  std::vector<std::byte> bytes = BytesOf(L"ab\ncd");
  bytes.pop_back();
  PortionedSource odd(bytes, 100);
  EXPECT_EQ(LinesOf(odd), (Lines{L"ab\n", L"c"}));
  PortionedSource broken(BytesOf(L"ab\ncd\n"), 8, 8);
  EXPECT_EQ(LinesOf(broken), (Lines{L"ab\n", L"c"}));
}

TEST(TextReader, RewindingStartsAgain) {
  const std::vector<std::byte> bytes = BytesOf(L"a\nb\n");
  BytesSource source(bytes);
  EXPECT_EQ(LinesOf(source), LinesOf(source));
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
