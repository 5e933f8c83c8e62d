#include "platform/tga.h"

#include <algorithm>
#include <cstdlib>
#include <memory>

#include "platform/file_start.h"
#include "platform/image_check.h"

#define STB_IMAGE_IMPLEMENTATION
#define STB_IMAGE_STATIC
#define STBI_ONLY_TGA
#define STBI_NO_STDIO
#define STBI_NO_SIMD
#define STBI_NO_THREAD_LOCALS
#define STBI_NO_FAILURE_STRINGS
#include <stb_image.h>

namespace tidewell {

namespace {

using Bytes = std::span<const std::byte>;

constexpr std::size_t kHeaderSize = 18;

enum Kind : std::uint32_t { kPalette = 1, kColors = 2, kGreys = 3, kInRuns = 8 };
enum Descriptor : std::uint32_t { kAlphaBits = 0x0F, kFromRight = 0x10 };

struct Header {
  explicit Header(Bytes bytes)
      : nameSize(NumberAt(bytes, 0, 1)),
        hasPalette(NumberAt(bytes, 1, 1)),
        kind(NumberAt(bytes, 2, 1) & ~kInRuns),
        isInRuns(NumberAt(bytes, 2, 1) & kInRuns),
        firstColor(NumberAt(bytes, 3, 2)),
        colors(NumberAt(bytes, 5, 2)),
        colorBits(NumberAt(bytes, 7, 1)),
        width(NumberAt(bytes, 12, 2)),
        height(NumberAt(bytes, 14, 2)),
        bits(NumberAt(bytes, 16, 1)),
        descriptor(NumberAt(bytes, 17, 1)) {}

  std::uint32_t nameSize;  // of a text behind the header
  std::uint32_t hasPalette;
  std::uint32_t kind;
  bool isInRuns;
  std::uint32_t firstColor;
  std::uint32_t colors;  // of the palette
  std::uint32_t colorBits;
  std::uint32_t width;
  std::uint32_t height;
  std::uint32_t bits;  // of a point
  std::uint32_t descriptor;
};

constexpr std::size_t BytesOfBits(std::uint32_t bits) {
  return (bits + 7) / 8;
}

bool AreColorBits(std::uint32_t bits) {
  return bits == 15 || bits == 16 || bits == 24 || bits == 32;
}

bool IsShowable(const Header& header) {
  if (!FitsImageLimits(header.width, header.height)) return false;
  switch (header.kind) {
    case kPalette:
      return header.hasPalette == 1 && header.firstColor == 0 && header.colors > 0 &&
             AreColorBits(header.colorBits) && (header.bits == 8 || header.bits == 16);
    case kColors:
      return header.hasPalette == 0 && AreColorBits(header.bits);
    case kGreys:
      return header.hasPalette == 0 && (header.bits == 8 || header.bits == 16);
    default:
      return false;
  }
}

// That the runs make up the picture exactly.
bool AreWholeRuns(Bytes bytes, std::size_t points, std::size_t pointSize) {
  while (points > 0 && !bytes.empty()) {
    const std::uint32_t run = NumberAt(bytes, 0, 1);
    const std::size_t length = 1 + (run & 0x7F);
    const std::size_t size = 1 + (run & 0x80 ? 1 : length) * pointSize;
    if (length > points || size > bytes.size()) return false;
    points -= length;
    bytes = bytes.subspan(size);
  }
  return points == 0;
}

// The decoder takes what is missing for zeros.
bool IsWhole(const Header& header, Bytes bytes) {
  const std::size_t palette =
      header.kind == kPalette ? header.colors * BytesOfBits(header.colorBits) : 0;
  const std::size_t start = kHeaderSize + header.nameSize + palette;
  if (start > bytes.size()) return false;
  const Bytes data = bytes.subspan(start);
  const std::size_t points = std::size_t{header.width} * header.height;
  const std::size_t pointSize = BytesOfBits(header.bits);
  return header.isInRuns ? AreWholeRuns(data, points, pointSize)
                         : points * pointSize <= data.size();
}

struct Free {
  void operator()(stbi_uc* bytes) const { stbi_image_free(bytes); }
};
// Red, green, blue and transparency of each point, from the top left.
using Channels = std::unique_ptr<stbi_uc, Free>;

Channels Decode(Bytes file) {
  int width = 0, height = 0, channels = 0;
  return Channels(stbi_load_from_memory(reinterpret_cast<const stbi_uc*>(file.data()),
                                        static_cast<int>(file.size()), &width, &height, &channels,
                                        STBI_rgb_alpha));
}

Argb PointOf(const stbi_uc* channels) {
  return static_cast<Argb>(channels[3]) << 24 | static_cast<Argb>(channels[0]) << 16 |
         static_cast<Argb>(channels[1]) << 8 | channels[2];
}

void MirrorRows(Pixels& pixels) {
  for (auto row = pixels.points.begin(); row != pixels.points.end(); row += pixels.width) {
    std::reverse(row, row + pixels.width);
  }
}

}  // namespace

std::optional<Pixels> DecodeTga(Bytes file) {
  if (file.size() < kHeaderSize || file.size() > kMaxImageFile) return std::nullopt;
  const Header header(file);
  if (!IsShowable(header) || !IsWhole(header, file)) return std::nullopt;
  const Channels channels = Decode(file);
  if (!channels) return std::nullopt;

  Pixels pixels{static_cast<int>(header.width), static_cast<int>(header.height), {}};
  pixels.points.resize(std::size_t{header.width} * header.height);
  const stbi_uc* next = channels.get();
  for (Argb& point : pixels.points) {
    point = PointOf(next);
    next += 4;
  }
  MultiplyWithAlpha(pixels.points, (header.descriptor & kAlphaBits) != 0);
  if (header.descriptor & kFromRight) MirrorRows(pixels);
  return pixels;
}

}  // namespace tidewell
