#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "tests/fuzz/fuzz_targets.h"

namespace tidewell::fuzz {
namespace {

void FeedSeeds(const std::string& folder, void (*target)(Bytes)) {
  int count = 0;
  for (const auto& entry : std::filesystem::directory_iterator(TIDEWELL_FUZZ_SEEDS + folder)) {
    std::ifstream file(entry.path(), std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    target(std::as_bytes(std::span(bytes)));
    ++count;
  }
  EXPECT_GE(count, 5) << folder;
}

TEST(FuzzSeeds, EveryTargetTakesItsOwn) {
  FeedSeeds("/registry_text", registry_text);
  FeedSeeds("/import_flow", import_flow);
  FeedSeeds("/filters_file", filters_file);
  FeedSeeds("/pim_volume", pim_volume);
  FeedSeeds("/settings_load", settings_load);
}

}  // namespace
}  // namespace tidewell::fuzz
