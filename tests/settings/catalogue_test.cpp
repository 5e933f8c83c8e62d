// docs/settings.md was compared value for value with what the Today item reads, so a catalogue that
// says the same is right.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "settings/settings_table.h"
#include "tests/support/utf8.h"

namespace tidewell {
namespace {

TEST(Catalogue, IsWhatTheSettingsPageSays) {
  std::ifstream page(TIDEWELL_SETTINGS_PAGE, std::ios::binary);
  SettingsStore store;
  EXPECT_EQ(Utf8(SettingsTable(store)), std::string(std::istreambuf_iterator<char>(page), {}))
      << "docs/settings.md is stale: it tells how to write it again";
}

}  // namespace
}  // namespace tidewell
