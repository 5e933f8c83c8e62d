#include "text_format/text_stream.h"

#include <algorithm>

namespace tidewell {

void TextReader::Rewind() {
  rest_ = bytes_;
  longestLine_ = kLineCapacity;
}

bool TextReader::ReadLine(std::wstring_view& line) {
  const std::size_t longest = std::min(longestLine_, rest_.size() / 2);
  line_.clear();
  while (line_.size() < longest && !line_.ends_with(L'\n')) {
    const std::byte* unit = rest_.data() + 2 * line_.size();
    line_ += static_cast<wchar_t>(std::to_integer<unsigned>(unit[0]) |
                                  std::to_integer<unsigned>(unit[1]) << 8);
  }
  rest_ = rest_.subspan(2 * line_.size());
  line = std::wstring_view(line_).substr(0, line_.find(L'\0'));
  return !line_.empty();
}

void TextWriter::Write(std::wstring_view text) {
  for (const wchar_t unit : text) {
    if (used_ == buffer_.size()) Flush();
    buffer_[used_++] = static_cast<std::byte>(unit & 0xFF);
    buffer_[used_++] = static_cast<std::byte>((unit >> 8) & 0xFF);
  }
}

void TextWriter::Flush() {
  if (used_ != 0) out_.Write(std::span(buffer_).first(used_));
  used_ = 0;
}

}  // namespace tidewell
