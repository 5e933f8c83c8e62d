#include "settings/theme_colors.h"

#include <numeric>

#include <gtest/gtest.h>

#include "tests/support/test_device.h"

namespace tidewell {
namespace {

class ThemeColorsTest : public testing::Test, protected TestDevice {
 protected:
  void PutColor(const std::wstring& name, const std::vector<unsigned char>& bytes) {
    PutBytes({RegistryRoot::kLocalMachine, L"SOFTWARE\\Microsoft\\Color"}, name, bytes);
  }
  // A table whose bytes count up from 0.
  void PutTable(std::size_t size) {
    std::vector<unsigned char> table(size);
    std::iota(table.begin(), table.end(), static_cast<unsigned char>(0));
    PutColor(L"SHColor", table);
  }
};

TEST_F(ThemeColorsTest, AColorComesFromItsOwnValueElseFromTheTableElseFromTheDefault) {
  const auto find = [&](std::uint32_t index) {
    return ThemeColorLookup(registry).Find(index, 0x123456);
  };
  EXPECT_EQ(find(34), 0x123456u) << "no key";
  PutTable(140);
  EXPECT_EQ(find(34), 0x123456u) << "the table ends with the entry";
  PutTable(141);
  EXPECT_EQ(find(34), 0x8A8988u) << "bytes 136 to 138";
  const std::vector<unsigned char> own = {10, 20, 30, 40, 50};
  for (const int size : {2, 3, 4, 5}) {
    PutColor(L"34", {own.begin(), own.begin() + size});
    EXPECT_EQ(find(34), size == 3 || size == 4 ? 0x1E140Au : 0x8A8988u) << size << " bytes";
  }
}

TEST_F(ThemeColorsTest, TheHighlightPairIsReadOnNewerSystemsOnly) {
  const auto colors = [&](SystemVersion version) {
    const ThemeColors read = ReadThemeColors(recorded, version);
    return std::vector{read.color1, read.color2,    read.color3,
                       read.color4, read.highlight, read.highlightText};
  };
  using Colors = std::vector<std::uint32_t>;
  EXPECT_EQ(colors({5, 2}), (Colors{0, 0xEF8E73, 0x9C4D2C, 0xFFFFFF, 0x9C4D2C, 0xFFFFFF}));
  PutTable(150);
  EXPECT_EQ(colors({4, 20}), (Colors{0x121110, 0x1A1918, 0x222120, 0x262524, 0x9C4D2C, 0xFFFFFF}));
  recorded.Calls().Reset();
  EXPECT_EQ(colors({5, 1}), (Colors{0x121110, 0x1A1918, 0x222120, 0x262524, 0x8A8988, 0x8E8D8C}));
  EXPECT_EQ(recorded.Count(RegistryCall::kOpen), 1);
  EXPECT_EQ(recorded.Count(RegistryCall::kQuery), 6 + 2)
      << "six names, the table's size, the table";
}

}  // namespace
}  // namespace tidewell
