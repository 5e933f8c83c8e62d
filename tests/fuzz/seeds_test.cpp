#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#include "tests/fuzz/fuzz_targets.h"

namespace tidewell::fuzz {
namespace {

void FeedSeeds(const char* folder, void (*target)(Bytes)) {
  int count = 0;
  for (const auto& entry :
       std::filesystem::directory_iterator(std::filesystem::path(TIDEWELL_FUZZ_SEEDS) / folder)) {
    SCOPED_TRACE(entry.path().string());
    std::ifstream file(entry.path(), std::ios::binary);
    const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
    target(std::as_bytes(std::span(bytes)));
    ++count;
  }
  EXPECT_GE(count, 5) << folder;
}

TEST(FuzzSeeds, EveryTargetTakesItsOwn) {
  FeedSeeds("registry_text", registry_text);
  FeedSeeds("filters_file", filters_file);
  FeedSeeds("pim_volume", pim_volume);
}

}  // namespace
}  // namespace tidewell::fuzz
