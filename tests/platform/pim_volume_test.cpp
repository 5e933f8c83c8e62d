#include "platform/desktop/pim_volume.h"

#include <gtest/gtest.h>

namespace tidewell {
namespace {

PimVolume Sample() {
  PimVolume volume;
  volume.databases.push_back(
      {L"CategoryMainDB",
       {{{{0x00010066, 7, {}}, {0x0002001F, 0, L"caf\x00E9 \xD83D"}, {0x00030003, 1, {}}}},
        {{}},
        {{{0x0002001F, 0, L""}, {0x00040041, 0xFFFFFFFF, {}}}}}});
  volume.databases.push_back({L"", {}});
  return volume;
}

TEST(PimVolume, IsLaidOutAsDocumented) {
  PimVolume volume;
  volume.databases.push_back({L"A", {{{{0x00010066, 0x01020304, {}}, {0x0002001F, 0, L"B"}}}}});
  const std::vector<std::byte> bytes = FormatPimVolume(volume);
  const unsigned char body[] = {1, 0, 1, 0, 'A', 0, 1,    0, 0, 0, 2, 0, 0x66, 0,
                                1, 0, 4, 3, 2,   1, 0x1F, 0, 2, 0, 1, 0, 'B',  0};
  ASSERT_EQ(bytes.size(), 20 + sizeof body);
  EXPECT_EQ(std::string(reinterpret_cast<const char*>(bytes.data()), 8), "TWPIMVOL");
  EXPECT_EQ(bytes, WrapVolumeBody(std::as_bytes(std::span(body))));
  EXPECT_EQ(bytes[8], std::byte{1});
  EXPECT_EQ(bytes[12], std::byte{sizeof body});
}

TEST(PimVolume, ComesBackTheSame) {
  const std::vector<std::byte> bytes = FormatPimVolume(Sample());
  const auto volume = ParsePimVolume(bytes);
  ASSERT_TRUE(volume.has_value());
  ASSERT_EQ(volume->databases.size(), 2u);
  ASSERT_EQ(volume->databases[0].records.size(), 3u);
  EXPECT_EQ(volume->databases[0].records[0].properties[1].text, L"caf\x00E9 \xD83D");
  EXPECT_EQ(volume->databases[0].records[2].properties[1].number, 0xFFFFFFFFu);
  EXPECT_EQ(FormatPimVolume(*volume), bytes);
}

TEST(PimVolume, CutOffOrLongerByAByteIsNone) {
  std::vector<std::byte> bytes = FormatPimVolume(Sample());
  for (std::size_t size = 0; size < bytes.size(); ++size) {
    EXPECT_FALSE(ParsePimVolume(std::span(bytes).first(size)).has_value()) << size;
  }
  bytes.push_back(std::byte{});
  EXPECT_FALSE(ParsePimVolume(bytes).has_value());
}

TEST(PimVolume, NoChangedByteGoesUnseen) {
  const std::vector<std::byte> bytes = FormatPimVolume(Sample());
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    std::vector<std::byte> changed = bytes;
    changed[i] ^= std::byte{0x40};
    EXPECT_FALSE(ParsePimVolume(changed).has_value()) << i;
  }
}

// The checksum is right; what it covers is not.
TEST(PimVolume, ABodyThatPromisesMoreThanItHoldsIsNone) {
  const std::vector<std::byte> bytes = FormatPimVolume(Sample());
  const std::span<const std::byte> body = std::span(bytes).subspan(20);
  for (std::size_t size = 0; size < body.size(); ++size) {
    EXPECT_FALSE(ParsePimVolume(WrapVolumeBody(body.first(size))).has_value()) << size;
  }
  const std::vector<std::byte> all(40, std::byte{0xFF});
  EXPECT_FALSE(ParsePimVolume(WrapVolumeBody(all)).has_value());
}

}  // namespace
}  // namespace tidewell
