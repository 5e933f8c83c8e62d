#include "platform/file_start.h"

#include <algorithm>

namespace tidewell {

namespace {

constexpr std::uint64_t kLongestStart = 16u << 20;
constexpr std::size_t kPiece = 4096;  // less costs a system as much

}  // namespace

FileStart::FileStart(Files& files, const std::wstring& path) {
  const auto entry = files.Find(path);
  if (!entry || entry->isFolder) return;
  stream_ = files.OpenForReading(path).stream;
  if (stream_) size_ = entry->size;
}

std::optional<std::span<const std::byte>> FileStart::At(std::uint64_t offset, std::uint64_t size) {
  if (offset > size_ || size > size_ - offset || offset + size > kLongestStart) return std::nullopt;
  if (!ReadTo(static_cast<std::size_t>(offset + size))) return std::nullopt;
  return std::span(bytes_).subspan(static_cast<std::size_t>(offset),
                                   static_cast<std::size_t>(size));
}

bool FileStart::ReadTo(std::size_t end) {
  while (bytes_.size() < end) {
    const std::size_t before = bytes_.size();
    bytes_.resize(std::max(end, before + kPiece));
    const std::size_t count = stream_->Read(std::span(bytes_).subspan(before)).value_or(0);
    bytes_.resize(before + count);
    if (count == 0) return false;
  }
  return true;
}

}  // namespace tidewell
