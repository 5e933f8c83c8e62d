#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <random>
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
  FeedSeeds("/backup_document", backup_document);
  FeedSeeds("/backup_check", backup_check);
}

// Pieces of a backup taken out, moved, or with other signs in them.
TEST(FuzzSeeds, MutationsOfABackupKeepTheirBytesAndAreCheckedRight) {
  std::string seed;
  VisitSeeds("/backup_document", [&](Bytes bytes, const std::string& name) {
    const auto* const text = reinterpret_cast<const char*>(bytes.data());
    if (name == "backup") seed.assign(text, bytes.size());
  });
  ASSERT_GT(seed.size(), 1000u);
  std::mt19937 random(20081115);
  const auto upTo = [&](std::size_t limit) { return random() % limit; };
  for (int i = 0; i < 10'000; ++i) {
    std::string mutation = seed;
    mutation[0] = static_cast<char>(upTo(256));
    for (std::size_t changes = upTo(4); changes > 0; --changes) {
      const std::size_t from = 3 + 2 * upTo(mutation.size() / 2 - 2);
      const std::size_t to = 3 + 2 * upTo(mutation.size() / 2 - 2);
      const std::string piece = mutation.substr(from, 2 * upTo(100));
      if (changes == 1) mutation[from] = "\n\r\"[]=%\0"[upTo(8)];
      if (changes == 2) mutation.erase(from, std::min(piece.size(), mutation.size() - 100));
      if (changes == 3) mutation.insert(to, piece);
    }
    const Bytes bytes = std::as_bytes(std::span(mutation));
    backup_document(bytes);
    if (i % 4 == 0) backup_check(bytes.subspan(1));
  }
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
