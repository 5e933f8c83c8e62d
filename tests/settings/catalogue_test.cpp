// docs/settings.md was compared value for value with what the Today item reads, so a catalogue that
// says the same is right.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "settings/settings_table.h"
#include "tests/support/utf8.h"

namespace tidewell {
namespace {

std::string FileText(const char* path) {
  std::ostringstream text;
  text << std::ifstream(path, std::ios::binary).rdbuf();
  return text.str();
}

TEST(Catalogue, IsWhatTheSettingsPageSays) {
  SettingsStore store;
  EXPECT_EQ(Utf8(SettingsTable(store)), FileText(TIDEWELL_SETTINGS_PAGE))
      << "docs/settings.md is stale: it tells how to write it again";
}

}  // namespace
}  // namespace tidewell
