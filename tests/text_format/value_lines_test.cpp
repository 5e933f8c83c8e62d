#include "text_format/value_lines.h"

#include <gtest/gtest.h>

#include <fstream>

#include "tests/support/utf8.h"
#include "tests/text_format/rules_file.h"

namespace tidewell {
namespace {

std::wstring Parsed(const std::string& kind, std::wstring_view line) {
  std::wstring name;
  std::wstring value;
  std::int32_t number = 0;
  if (kind == "header") return ParseSectionHeader(line, name) ? L"{" + name + L"}" : L"-";
  if (kind == "string" && !ParseStringValueLine(line, name, value)) return L"-";
  if (kind == "number" || kind == "hex") {
    if (!ParseDwordValueLine(line, name, number, kind == "hex" ? 16 : 10)) return L"-";
    value = FormatDecimal(number);
  }
  return L"{" + name + L"}{" + value + L"}";
}

TEST(ValueLines, AreReadByTheirRules) {
  std::ifstream rules(TIDEWELL_LINE_RULES);
  int count = 0;
  for (std::string rule; std::getline(rules, rule);) {
    if (rule.empty() || rule.starts_with('#')) continue;
    const std::size_t space = rule.find(' ');
    const std::size_t arrow = rule.rfind(" => ");
    const std::wstring line = Expanded(rule.substr(space + 1, arrow - space - 1));
    const std::wstring parsed = Parsed(rule.substr(0, space), line);
    EXPECT_EQ(Utf8(parsed), Utf8(Expanded(rule.substr(arrow + 4) + "<END>"))) << rule;
    ++count;
  }
  EXPECT_GT(count, 50);
}

}  // namespace
}  // namespace tidewell
