#include "platform/bitmap_check.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>

#include "platform/file_start.h"
#include "platform/image_check.h"

namespace tidewell {

namespace {

using Bytes = std::span<const std::byte>;

constexpr std::uint32_t kMagic = 0x4D42;  // "BM"
constexpr std::size_t kFileHeaderSize = 14;
constexpr std::size_t kShortHeaderSize = 12;  // 16-bit sides, a palette of three bytes a colour
constexpr std::size_t kHeaderSize = 40;       // the part that all later headers begin with
constexpr std::array<std::uint32_t, 6> kHeaderSizes = {kHeaderSize, 52, 56, 64, 108, 124};
constexpr std::array<std::uint32_t, 7> kDepths = {1, 2, 4, 8, 16, 24, 32};

enum Compression : std::uint32_t { kPlain = 0, kMasks = 3, kMasksWithAlpha = 6 };

struct Header {
  std::uint32_t size = 0;
  std::int64_t width = 0;
  std::int64_t height = 0;  // below 0 from the top down
  std::uint32_t planes = 0;
  std::uint32_t depth = 0;  // bits of a pixel
  std::uint32_t compression = kPlain;
  std::uint64_t colors = 0;  // of the palette; 0 for all that the depth can tell
};

template <typename Range>
bool Holds(const Range& range, std::uint32_t number) {
  return std::ranges::find(range, number) != range.end();
}

std::int64_t SideAt(Bytes bytes, std::size_t at) {
  return static_cast<std::int32_t>(NumberAt(bytes, at, 4));
}

// From at least the shorter, if there is more at least the longer header's bytes.
std::optional<Header> ReadHeader(Bytes bytes) {
  Header header;
  header.size = NumberAt(bytes, 0, 4);
  if (header.size == kShortHeaderSize) {
    header.width = NumberAt(bytes, 4, 2);
    header.height = NumberAt(bytes, 6, 2);
    header.planes = NumberAt(bytes, 8, 2);
    header.depth = NumberAt(bytes, 10, 2);
    return header;
  }
  if (!Holds(kHeaderSizes, header.size) || bytes.size() < kHeaderSize) return std::nullopt;
  header.width = SideAt(bytes, 4);
  header.height = SideAt(bytes, 8);
  header.planes = NumberAt(bytes, 12, 2);
  header.depth = NumberAt(bytes, 14, 2);
  header.compression = NumberAt(bytes, 16, 4);
  header.colors = NumberAt(bytes, 32, 4);
  return header;
}

std::uint32_t RowsOf(const Header& header) {
  return static_cast<std::uint32_t>(header.height < 0 ? -header.height : header.height);
}

bool IsShowable(const Header& header) {
  if (header.width <= 0 || header.planes != 1) return false;
  if (!FitsImageLimits(static_cast<std::uint32_t>(header.width), RowsOf(header))) return false;
  if (header.depth <= 8 && header.colors > (1u << header.depth)) return false;
  switch (header.compression) {
    case kPlain:
      return Holds(kDepths, header.depth);
    case kMasks:
    case kMasksWithAlpha:
      return header.depth == 16 || header.depth == 32;
    default:
      return false;
  }
}

// Header, colour masks and palette, in bytes.
std::uint64_t SizeBeforePixels(const Header& header) {
  std::uint64_t size = header.size;
  if (header.size == kHeaderSize && header.compression != kPlain) {
    size += header.compression == kMasks ? 12 : 16;
  }
  const std::uint64_t colors =
      header.colors == 0 && header.depth <= 8 ? std::uint64_t{1} << header.depth : header.colors;
  return size + colors * (header.size == kShortHeaderSize ? 3 : 4);
}

bool FitsInto(const Header& header, std::uint64_t pixelBytes) {
  const auto width = static_cast<std::uint64_t>(header.width);
  const std::uint64_t row = (width * header.depth + 31) / 32 * 4;
  return RowsOf(header) <= pixelBytes / row;
}

// Counted from the header on: where the pixels begin (right behind the palette without a place of
// their own), and where everything ends.
bool IsWhole(Bytes head, std::optional<std::uint64_t> pixels, std::uint64_t end) {
  const auto header = ReadHeader(head);
  if (!header || !IsShowable(*header)) return false;
  const std::uint64_t earliest = SizeBeforePixels(*header);
  const std::uint64_t start = pixels.value_or(earliest);
  return start >= earliest && start <= end && FitsInto(*header, end - start);
}

}  // namespace

bool IsWholeBitmap(Files& files, const std::wstring& path) {
  FileStart file(files, path);
  if (file.Size() < kFileHeaderSize + kShortHeaderSize || file.Size() > kMaxImageFile) return false;
  const std::uint64_t size = file.Size() - kFileHeaderSize;
  const auto head = file.At(0, kFileHeaderSize + std::min<std::uint64_t>(size, kHeaderSize));
  if (!head || NumberAt(*head, 0, 2) != kMagic) return false;
  const std::uint32_t pixels = NumberAt(*head, 10, 4);
  return pixels >= kFileHeaderSize &&
         IsWhole(head->subspan(kFileHeaderSize), pixels - kFileHeaderSize, size);
}

bool IsWholeBitmap(std::span<const std::byte> resource) {
  return resource.size() >= kShortHeaderSize && IsWhole(resource, std::nullopt, resource.size());
}

}  // namespace tidewell
