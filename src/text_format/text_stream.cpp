#include "text_format/text_stream.h"

#include <algorithm>

namespace tidewell {

bool BytesSource::Rewind() {
  rest_ = bytes_;
  return true;
}

std::optional<std::size_t> BytesSource::Read(std::span<std::byte> buffer) {
  const std::size_t count = std::min(buffer.size(), rest_.size());
  std::copy_n(rest_.begin(), count, buffer.begin());
  rest_ = rest_.subspan(count);
  return count;
}

std::optional<std::vector<std::byte>> ReadWholeFile(Files& files, const std::wstring& path) {
  const std::unique_ptr<InputStream> input = files.OpenForReading(path);
  if (!input) return std::nullopt;
  std::vector<std::byte> bytes;
  std::size_t used = 0;
  for (;;) {
    if (used == bytes.size()) bytes.resize(std::max<std::size_t>(16 * 1024, used * 2));
    const std::optional<std::size_t> count = input->Read(std::span(bytes).subspan(used));
    if (!count) return std::nullopt;
    if (*count == 0) break;
    used += *count;
  }
  bytes.resize(used);
  return bytes;
}

bool TextReader::Rewind() {
  at_ = end_ = 0;
  line_.resize(kLineCapacity);
  takesLongLines_ = false;
  return source_.Rewind();
}

// Brings at least one whole unit into the buffer, keeping half a unit that is already there.
bool TextReader::Fill() {
  if (at_ < end_) buffer_[0] = buffer_[at_];
  end_ -= at_;
  at_ = 0;
  while (end_ < 2) {
    const std::optional<std::size_t> count = source_.Read(std::span(buffer_).subspan(end_));
    if (!count || *count == 0) return false;
    end_ += *count;
  }
  return true;
}

bool TextReader::MakeRoom() {
  if (takesLongLines_) line_.resize(2 * line_.size());
  return takesLongLines_;
}

bool TextReader::ReadLine(std::wstring_view& line) {
  std::size_t length = 0;
  while ((length < line_.size() || MakeRoom()) && (end_ - at_ >= 2 || Fill())) {
    const auto low = std::to_integer<unsigned>(buffer_[at_]);
    const auto high = std::to_integer<unsigned>(buffer_[at_ + 1]);
    at_ += 2;
    line_[length] = static_cast<wchar_t>(low | (high << 8));
    if (line_[length++] == L'\n') break;
  }
  line = std::wstring_view(line_.data(), length);
  line = line.substr(0, line.find(L'\0'));
  return length != 0;
}

void TextWriter::Write(std::wstring_view text) {
  for (const wchar_t unit : text) {
    if (used_ == buffer_.size()) Flush();
    buffer_[used_++] = static_cast<std::byte>(unit & 0xFF);
    buffer_[used_++] = static_cast<std::byte>((unit >> 8) & 0xFF);
  }
}

bool TextWriter::Flush() {
  if (ok_ && used_ != 0) ok_ = out_.Write(std::span(buffer_).first(used_));
  used_ = 0;
  return ok_;
}

}  // namespace tidewell
