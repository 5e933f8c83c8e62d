#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>

#include "tests/fuzz/fuzz_targets.h"

namespace tidewell::fuzz {
namespace {

void VisitSeeds(const std::string& folder,
                const std::function<void(Bytes, const std::string& name)>& visit) {
  int count = 0;
  for (const auto& entry : std::filesystem::directory_iterator(TIDEWELL_FUZZ_SEEDS + folder)) {
    std::ifstream file(entry.path(), std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    visit(std::as_bytes(std::span(bytes)), entry.path().filename().string());
    ++count;
  }
  EXPECT_GE(count, 5) << folder;
}

void FeedSeeds(const std::string& folder, void (*target)(Bytes)) {
  VisitSeeds(folder, [target](Bytes bytes, const std::string&) { target(bytes); });
}

TEST(FuzzSeeds, EveryTargetTakesItsOwn) {
  FeedSeeds("/registry_text", registry_text);
  FeedSeeds("/import_flow", import_flow);
  FeedSeeds("/filters_file", filters_file);
  FeedSeeds("/pim_volume", pim_volume);
  FeedSeeds("/settings_load", settings_load);
}

// Those named so are taken; those that begin so are not when anything is missing at their end.
void ExpectOnlyWholeTaken(const std::string& folder, bool (*check)(Bytes)) {
  VisitSeeds(folder, [check](Bytes bytes, const std::string& name) {
    const bool isWhole = name.starts_with("whole");
    EXPECT_EQ(check(bytes), name.find("whole") != name.npos) << name;
    for (std::size_t size = 0; isWhole && size < bytes.size(); ++size) {
      EXPECT_FALSE(check(bytes.first(size))) << name << " " << size;
    }
  });
}

TEST(FuzzSeeds, OnlyWholePicturesAndLibrariesAreTaken) {
  ExpectOnlyWholeTaken("/bitmap_check", bitmap_check);
  ExpectOnlyWholeTaken("/image_check", image_check);
  ExpectOnlyWholeTaken("/library_check", library_check);
  ExpectOnlyWholeTaken("/tga", tga);
}

}  // namespace
}  // namespace tidewell::fuzz
