// A decoded picture in memory.
#pragma once

#include <algorithm>
#include <cstdint>
#include <span>
#include <vector>

namespace tidewell {

// 0xAARRGGBB.
using Argb = std::uint32_t;
inline constexpr Argb kAlphaMask = 0xFF000000;

// The colour multiplied with its transparency, as drawing wants it.
constexpr Argb Premultiplied(Argb point) {
  const std::uint32_t alpha = point >> 24;
  const auto channel = [&](int shift) {
    return ((point >> shift & 0xFF) * alpha + 127) / 255 << shift;
  };
  return (point & kAlphaMask) | channel(16) | channel(8) | channel(0);
}

// For bitmaps of 32 bits: without a promise of transparency, points that are clear all over are
// opaque, for their makers left the byte at 0.
inline void MultiplyWithAlpha(std::span<Argb> points, bool isPromised) {
  const bool isOpaque = !isPromised && std::ranges::none_of(points, [](Argb point) {
    return (point & kAlphaMask) != 0;
  });
  for (Argb& point : points) point = isOpaque ? point | kAlphaMask : Premultiplied(point);
}

struct Pixels {
  int width = 0;
  int height = 0;
  std::vector<Argb> points;  // row by row from the top left
};

}  // namespace tidewell
