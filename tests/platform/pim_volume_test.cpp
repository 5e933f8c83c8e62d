#include "platform/desktop/pim_volume.h"

#include <gtest/gtest.h>

namespace tidewell {
namespace {

constexpr auto kNone = std::nullopt;

TEST(PimVolume, EachLineIsARecord) {
  const struct {
    std::string_view text;
    std::vector<PimRecord> records;
  } cases[] = {
      {"", {}},
      {"\xEF\xBB\xBF"
       "1\t0\tWork\r\n\r\n# 2 0 No\n \n  3  1  At  home \t",
       {{1, 0, "Work"}, {3, 1, "At  home"}}},
      {"- 1 a\n2 - b\n- - -\n4\n5 1\n-",
       {{kNone, 1, "a"}, {2, kNone, "b"}, {kNone, kNone, "-"}, {4, kNone, ""}, {5, 1, ""}, {}}},
      {"Work\n1 Work\n1x 0 Work\n-1 0 Work\n4294967296 0 Work\n1 0x Work\n4294967295 7 #1",
       {{4294967295, 7, "#1"}}},
  };
  for (const auto& [text, records] : cases) EXPECT_EQ(ParsePimVolume(text), records) << text;
}

}  // namespace
}  // namespace tidewell
