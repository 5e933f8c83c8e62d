// Colours as the settings hold them: Windows COLORREFs, red in the low byte.
#pragma once

#include <cstdint>

namespace tidewell {

using Color = std::uint32_t;

constexpr Color Rgb(std::uint32_t red, std::uint32_t green, std::uint32_t blue) {
  return red | green << 8 | blue << 16;
}

// The mix of two colours; of 255 parts `weight` (0 to 255) are `a`'s. Rounds exactly.
constexpr Color Blend(Color a, Color b, std::uint32_t weight) {
  const auto channel = [&](int shift) {
    const std::uint32_t sum =
        (a >> shift & 0xFF) * weight + (b >> shift & 0xFF) * (255 - weight) + 128;
    return (sum + sum / 256) / 256;
  };
  return Rgb(channel(0), channel(8), channel(16));
}

// How well one of two colours is read on the other: 1 for the same, 21 for black and white; texts
// want 4.5.
double Contrast(Color a, Color b);

inline constexpr Color kBlack = Rgb(0, 0, 0);
inline constexpr Color kWhite = Rgb(255, 255, 255);
inline constexpr Color kRed = Rgb(255, 0, 0);

// How bright an eye finds a colour, 0 to 255.
constexpr std::uint32_t Brightness(Color color) {
  return ((color & 0xFF) * 299 + (color >> 8 & 0xFF) * 587 + (color >> 16 & 0xFF) * 114) / 1000;
}

// Black or white, whichever is read better on `ground`.
constexpr Color InkOn(Color ground) {
  return Brightness(ground) > 127 ? kBlack : kWhite;
}

}  // namespace tidewell
