// The start of a file, read as far as somebody asks: for checks that look into a file before the
// system is given it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "platform/files.h"

namespace tidewell {

// A little-endian number of `size` bytes, 1 to 4; the bytes must be there.
constexpr std::uint32_t NumberAt(std::span<const std::byte> bytes, std::size_t at,
                                 std::size_t size) {
  std::uint32_t number = 0;
  for (std::size_t i = 0; i < size; ++i) {
    number |= std::to_integer<std::uint32_t>(bytes[at + i]) << (8 * i);
  }
  return number;
}

class FileStart {
 public:
  // A file that is absent, a folder, or cannot be opened is empty.
  FileStart(Files& files, const std::wstring& path);

  // Of the whole file.
  std::uint64_t Size() const { return size_; }
  // The bytes of that place, valid until the next call. Nothing where the file ends before, cannot
  // be read, or asks for more than 16 MiB to be read.
  std::optional<std::span<const std::byte>> At(std::uint64_t offset, std::uint64_t size);

 private:
  bool ReadTo(std::size_t end);

  std::unique_ptr<InputStream> stream_;
  std::uint64_t size_ = 0;
  std::vector<std::byte> bytes_;  // all that was read so far
};

}  // namespace tidewell
