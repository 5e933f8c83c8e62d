// Text as backup files hold it: UTF-16 little-endian units, no byte-order mark, lines ended by
// "\n". Neither end changes a unit on its way.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "platform/files.h"

namespace tidewell {

// Bytes that can be read again from their start.
class TextSource : public InputStream {
 public:
  // False when the source cannot be read from its start.
  virtual bool Rewind() = 0;
};

// Bytes in memory, owned by the caller.
class BytesSource final : public TextSource {
 public:
  explicit BytesSource(std::span<const std::byte> bytes) : bytes_(bytes), rest_(bytes) {}
  bool Rewind() override;
  std::optional<std::size_t> Read(std::span<std::byte> buffer) override;

 private:
  std::span<const std::byte> bytes_;
  std::span<const std::byte> rest_;
};

// The whole of a file; nothing when it cannot be opened or read to its end.
std::optional<std::vector<std::byte>> ReadWholeFile(Files& files, const std::wstring& path);

class TextReader {
 public:
  static constexpr std::size_t kLineCapacity = 1023;

  explicit TextReader(TextSource& source) : source_(source), line_(kLineCapacity) {}
  // Back to the start, and to lines of at most kLineCapacity.
  bool Rewind();
  // From here on lines come in one piece, however long they are.
  void TakeLongLines() { takesLongLines_ = true; }
  // The next line with its "\n", valid until the next call; a line longer than kLineCapacity comes
  // in pieces. As for any text of the system, a line ends for its reader at its first zero unit.
  // False at the end of the text, an odd last byte and a read error included.
  bool ReadLine(std::wstring_view& line);

 private:
  bool Fill();
  bool MakeRoom();

  TextSource& source_;
  std::array<std::byte, 16 * 1024> buffer_;
  std::size_t at_ = 0;
  std::size_t end_ = 0;
  std::vector<wchar_t> line_;
  bool takesLongLines_ = false;
};

class TextWriter {
 public:
  explicit TextWriter(OutputStream& out) : out_(out) {}
  void Write(std::wstring_view text);
  // Hands on what is still held back. False when anything written so far was lost.
  bool Flush();

 private:
  OutputStream& out_;
  std::array<std::byte, 16 * 1024> buffer_;
  std::size_t used_ = 0;
  bool ok_ = true;
};

}  // namespace tidewell
