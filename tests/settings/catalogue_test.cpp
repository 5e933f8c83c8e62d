// That the catalogue says what the Today item expects, and docs/settings.md what the catalogue
// says.
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

TEST(Catalogue, SaysWhatTheTodayItemExpectsAndTheSettingsPageSaysTheSame) {
  SettingsStore store;
  const std::string page = Utf8(SettingsTable(store));
  std::string keysAndValues;
  std::istringstream lines(page);
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with("`HKEY_") || line.starts_with("| `")) keysAndValues += line + "\n";
  }
  EXPECT_EQ(keysAndValues, FileText(TIDEWELL_CATALOGUE_EXPECTED));
  EXPECT_EQ(page, FileText(TIDEWELL_SETTINGS_PAGE))
      << "docs/settings.md is stale: it tells how to write it again";
}

}  // namespace
}  // namespace tidewell
