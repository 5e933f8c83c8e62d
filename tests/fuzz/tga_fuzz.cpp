#include "platform/tga.h"

#include <algorithm>

#include "tests/fuzz/fuzz_targets.h"

namespace tidewell::fuzz {

bool tga(Bytes bytes) {
  const auto pixels = DecodeTga(bytes);
  if (!pixels) return false;
  const auto width = static_cast<std::size_t>(pixels->width);
  Require(width <= 2048 && pixels->height <= 2048);
  Require(pixels->points.size() == width * static_cast<std::size_t>(pixels->height));
  for (const Argb point : pixels->points) {
    for (int shift = 0; shift < 24; shift += 8) Require((point >> shift & 0xFF) <= point >> 24);
  }
  return true;
}

}  // namespace tidewell::fuzz
