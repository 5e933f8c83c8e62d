#include "platform/bitmap_check.h"

#include "platform/memory/memory_files.h"
#include "tests/fuzz/fuzz_targets.h"

namespace tidewell::fuzz {

namespace {

// Goes where the headers lead as a loader does, which looks nowhere; `pixels` 0 for right behind
// the palette.
void LoadBlindly(Bytes bytes, std::uint64_t at, std::uint64_t pixels) {
  const std::uint64_t size = NumberIn(bytes, at, 4);
  const bool isShort = size == 12;
  const std::uint64_t width = NumberIn(bytes, at + 4, isShort ? 2 : 4);
  const auto side =
      static_cast<std::int32_t>(NumberIn(bytes, at + (isShort ? 6 : 8), isShort ? 2 : 4));
  const std::uint64_t depth = NumberIn(bytes, at + (isShort ? 10 : 14), 2);
  const std::uint64_t masks = isShort || size > 40 ? 0 : NumberIn(bytes, at + 16, 4);
  std::uint64_t colors = isShort ? 0 : NumberIn(bytes, at + 32, 4);
  if (colors == 0 && depth <= 8) colors = std::uint64_t{1} << depth;
  const std::uint64_t palette = at + size + (masks == 3 ? 12 : masks == 6 ? 16 : 0);
  const std::uint64_t paletteSize = colors * (isShort ? 3 : 4);
  RequireIn(bytes, palette, paletteSize);
  std::uint64_t row = pixels ? pixels : palette + paletteSize;
  const std::int64_t height = side;
  for (std::int64_t y = 0; y < (height < 0 ? -height : height); ++y) {
    RequireIn(bytes, row, (width * depth + 7) / 8);
    row += (width * depth + 31) / 32 * 4;
  }
}

}  // namespace

bool bitmap_check(Bytes bytes) {
  MemoryFiles files;
  files.Put(L"\\a.bmp", bytes);
  if (IsWholeBitmap(bytes)) LoadBlindly(bytes, 0, 0);
  const bool isWhole = IsWholeBitmap(files, L"\\a.bmp");
  if (isWhole) LoadBlindly(bytes, 14, NumberIn(bytes, 10, 4));
  return isWhole;
}

}  // namespace tidewell::fuzz
