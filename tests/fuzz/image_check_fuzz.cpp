#include "platform/image_check.h"

#include <algorithm>

#include "tests/fuzz/fuzz_targets.h"

namespace tidewell::fuzz {

namespace {

// The other way round than NumberIn.
std::uint64_t BigNumberIn(Bytes bytes, std::uint64_t at, std::size_t size) {
  std::uint64_t number = 0;
  for (std::size_t i = 0; i < size; ++i) number = number << 8 | NumberIn(bytes, at + i, 1);
  return number;
}

void RequireSides(std::uint64_t width, std::uint64_t height) {
  Require(width > 0 && width <= 2048 && height > 0 && height <= 2048);
}

// Each goes through a file as a decoder does, which takes all that it comes upon.

void LoadGif(Bytes bytes) {
  const auto palette = [&](std::uint64_t flags) {
    const std::uint64_t bits = NumberIn(bytes, flags, 1);
    return bits & 0x80 ? std::uint64_t{6} << (bits & 7) : 0;
  };
  int pictures = 0;
  RequireSides(NumberIn(bytes, 6, 2), NumberIn(bytes, 8, 2));
  std::uint64_t at = 13 + palette(10);
  for (std::uint64_t kind = 0; (kind = NumberIn(bytes, at, 1)) != 0x3B;) {
    Require(kind == 0x21 || kind == 0x2C);
    at += 2;
    if (kind == 0x2C) {
      ++pictures;
      RequireSides(NumberIn(bytes, at + 3, 2), NumberIn(bytes, at + 5, 2));
      at += 9 + palette(at + 7);
    }
    for (std::uint64_t size = 1; size > 0; at += 1 + size) size = NumberIn(bytes, at, 1);
  }
  Require(pictures == 1 && at + 1 == bytes.size());
}

void LoadJpeg(Bytes bytes) {
  int frames = 0, scans = 0;
  std::uint64_t at = 2;
  for (std::uint64_t marker = 0; marker != 0xD9; ++at) {
    while (NumberIn(bytes, at, 1) != 0xFF) ++at;
    while ((marker = NumberIn(bytes, at, 1)) == 0xFF) ++at;
    if (marker == 0 || marker == 1 || marker >> 3 == 0xD0 >> 3 || marker == 0xD9) continue;
    if (marker >> 4 == 0xC && marker != 0xC4 && marker != 0xC8 && marker != 0xCC) {
      ++frames;
      RequireSides(BigNumberIn(bytes, at + 6, 2), BigNumberIn(bytes, at + 4, 2));
    }
    scans += marker == 0xDA;
    at += BigNumberIn(bytes, at + 1, 2);
  }
  Require(frames == 1 && scans > 0 && scans <= 16);
}

}  // namespace

bool image_check(Bytes bytes) {
  const std::vector<std::byte> part = DecodablePart({bytes.begin(), bytes.end()});
  if (part.empty()) return false;
  Require(part.size() <= bytes.size());
  switch (NumberIn(part, 0, 1)) {
    case 'G':
      LoadGif(part);
      return true;
    case 0xFF:
      LoadJpeg(part);
      return true;
    default:
      RequireSides(BigNumberIn(part, 16, 4), BigNumberIn(part, 20, 4));
      return true;
  }
}

}  // namespace tidewell::fuzz
