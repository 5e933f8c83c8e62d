#include "platform/tga.h"

#include <gtest/gtest.h>

#include <string>

namespace tidewell {
namespace {

// A picture two points wide and high; `data` is palette and points.
struct Sample {
  const char* name;
  std::uint8_t kind, bits, descriptor, colorBits;
  std::vector<std::uint8_t> data;
  std::vector<Argb> points;
};

std::vector<std::byte> FileOf(const Sample& sample) {
  const bool hasPalette = sample.colorBits > 0;
  std::vector<std::uint8_t> file(18);
  file[1] = hasPalette;
  file[2] = sample.kind;
  file[5] = hasPalette ? 2 : 0;
  file[7] = sample.colorBits;
  file[12] = file[14] = 2;
  file[16] = sample.bits;
  file[17] = sample.descriptor;
  file.insert(file.end(), sample.data.begin(), sample.data.end());
  const auto bytes = std::as_bytes(std::span(file));
  return {bytes.begin(), bytes.end()};
}

TEST(Tga, HasThePointsOfEveryKind) {
  constexpr Argb kR = 0xFFFF0000, kG = 0xFF00FF00, kB = 0xFF0000FF, kW = 0xFFFFFFFF;
  constexpr Argb kHalf = 0x80800000, kNone = 0;
  const std::vector<std::uint8_t> colors = {0, 0, 255, 0, 255, 0, 255, 0, 0, 255, 255, 255};
  const std::vector<std::uint8_t> clear = {0, 0, 255, 128, 9, 9,   9, 0,
                                           0, 0, 255, 255, 0, 255, 0, 255};
  const std::vector<std::uint8_t> dark = {0,   0, 255, 0, 0,   255, 0,   0,
                                          255, 0, 0,   0, 255, 255, 255, 0};
  const std::vector<std::uint8_t> clearPalette = {0, 0, 255, 128, 9, 9, 9, 0, 0, 1, 1, 9};
  const std::vector<Argb> redEnds = {kR, kG, kG, kR};
  const std::vector<Sample> samples = {
      {"from the top", 2, 24, 0x20, 0, colors, {kR, kG, kB, kW}},
      {"from the bottom", 2, 24, 0x00, 0, colors, {kB, kW, kR, kG}},
      {"from the top right", 2, 24, 0x30, 0, colors, {kG, kR, kW, kB}},
      {"from the bottom right", 2, 24, 0x10, 0, colors, {kW, kB, kG, kR}},
      {"in runs", 10, 24, 0x20, 0, {0x81, 0, 0, 255, 1, 0, 255, 0, 255, 0, 0}, {kR, kR, kG, kB}},
      {"16 bits", 2, 16, 0x20, 0, {0, 0x7C, 0xE0, 3, 0x1F, 0, 0xFF, 0x7F}, {kR, kG, kB, kW}},
      {"15 bits in runs", 10, 15, 0x20, 0, {0x83, 0xE0, 3}, {kG, kG, kG, kG}},
      {"transparency", 2, 32, 0x28, 0, clear, {kHalf, kNone, kR, kG}},
      {"none promised, none there", 2, 32, 0x20, 0, dark, {kR, kG, kB, kW}},
      {"clear all over", 2, 32, 0x28, 0, dark, {kNone, kNone, kNone, kNone}},
      {"greys", 3, 8, 0x20, 0, {0, 255, 0, 255}, {0xFF000000, kW, 0xFF000000, kW}},
      {"clear greys", 11, 16, 0x20, 0, {0x83, 255, 51}, std::vector<Argb>(4, 0x33333333)},
      {"palette", 1, 8, 0x20, 24, {0, 0, 255, 0, 255, 0, 0, 1, 1, 0}, redEnds},
      {"wide numbers", 1, 16, 0x20, 24, {0, 0, 255, 0, 255, 0, 0, 0, 1, 0, 1, 0, 0, 0}, redEnds},
      {"palette in runs", 9, 8, 0x20, 16, {0, 0x7C, 0xE0, 3, 0x80, 0, 0x81, 1, 0, 0}, redEnds},
      {"clear palette", 1, 8, 0x28, 32, clearPalette, {kHalf, kNone, kNone, kHalf}},
  };
  for (const Sample& sample : samples) {
    const auto pixels = DecodeTga(FileOf(sample));
    ASSERT_TRUE(pixels) << sample.name;
    EXPECT_EQ(pixels->points, sample.points) << sample.name;
  }
}

}  // namespace
}  // namespace tidewell
