#include "platform/desktop/pim_volume.h"

#include <gtest/gtest.h>

namespace tidewell {
namespace {

PimVolume Sample() {
  PimVolume volume;
  volume.databases.push_back(
      {L"A", {{{{0x00010066, 0xF1020304, {}}, {0x0002001F, 0, L"\xD83D"}}}}});
  volume.databases.push_back({L"", {{{}}}});
  return volume;
}

TEST(PimVolume, IsLaidOutAsDocumentedAndComesBackTheSame) {
  const std::vector<std::byte> bytes = FormatPimVolume(Sample());
  const unsigned char body[] = {2,    0, 1,    0,    'A', 0, 1, 0,    0,    0, 2, 0,
                                0x66, 0, 1,    0,    4,   3, 2, 0xF1, 0x1F, 0, 2, 0,
                                1,    0, 0x3D, 0xD8, 0,   0, 1, 0,    0,    0, 0, 0};
  EXPECT_EQ(bytes, WrapVolumeBody(std::as_bytes(std::span(body))));
  EXPECT_EQ(std::string(reinterpret_cast<const char*>(bytes.data()), 8), "TWPIMVOL");
  EXPECT_EQ(bytes[8], std::byte{1});
  EXPECT_EQ(bytes[12], std::byte{sizeof body});
  const auto volume = ParsePimVolume(bytes);
  ASSERT_TRUE(volume.has_value());
  EXPECT_EQ(FormatPimVolume(*volume), bytes);
}

}  // namespace
}  // namespace tidewell
