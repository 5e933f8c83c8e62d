#include "backup/value_lines.h"

#include <gtest/gtest.h>

#include <fstream>

#include "tests/backup/rules_file.h"
#include "tests/support/utf8.h"

namespace tidewell {
namespace {

std::wstring Parsed(const std::string& kind, std::wstring_view line, int base = 10) {
  std::wstring name;
  std::wstring value;
  std::int32_t number = 0;
  if (kind == "header" && ParseSectionHeader(line, name)) return L"{" + name + L"}";
  if (kind == "number" && ParseDwordValueLine(line, name, number, base)) {
    value = FormatDecimal(number);
  } else if (kind != "string" || !ParseStringValueLine(line, name, value)) {
    return L"-";
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

TEST(ValueLines, NumbersAreReadInTheirBase) {
  EXPECT_EQ(Parsed("number", L"\"a\"=dword:0xff\n", 16), L"{a}{255}");
  EXPECT_EQ(Parsed("number", L"\"a\"=dword:0xff\n", 0), L"{a}{255}");
}

}  // namespace
}  // namespace tidewell
