// Text as backup files hold it: UTF-16 little-endian units, no byte-order mark, lines ended by
// "\n". Neither end changes a unit on its way.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "platform/files.h"

namespace tidewell {

// Reads lines from bytes in memory, which must outlive it.
class TextReader {
 public:
  static constexpr std::size_t kLineCapacity = 1023;

  explicit TextReader(std::span<const std::byte> bytes) : bytes_(bytes), rest_(bytes) {}
  // Back to the start, and to lines of at most kLineCapacity.
  void Rewind();
  // From here on lines come in one piece, however long they are.
  void TakeLongLines() { longestLine_ = std::wstring::npos; }
  // The next line with its "\n", valid until the next call; a line longer than kLineCapacity comes
  // in pieces. As for any text of the system, a line ends for its reader at its first zero unit.
  // False at the end of the text; an odd last byte is none of it.
  bool ReadLine(std::wstring_view& line);
  // Where the line that was read last ends, in bytes from the start.
  std::size_t Position() const { return bytes_.size() - rest_.size(); }

 private:
  std::span<const std::byte> bytes_;
  std::span<const std::byte> rest_;
  std::size_t longestLine_ = kLineCapacity;
  std::wstring line_;
};

// What is lost on its way the stream tells when it is closed.
class TextWriter {
 public:
  explicit TextWriter(OutputStream& out) : out_(out) {}
  void Write(std::wstring_view text);
  // Hands on what is still held back.
  void Flush();

 private:
  OutputStream& out_;
  std::array<std::byte, 16 * 1024> buffer_;
  std::size_t used_ = 0;
};

}  // namespace tidewell
