#include "backup/value_lines.h"

#include <gtest/gtest.h>

#include "platform/text.h"
#include "tests/support/utf8.h"

namespace tidewell {
namespace {

const std::wstring kNone = L"-";

std::wstring Header(std::wstring_view line) {
  std::wstring name;
  return ParseSectionHeader(line, name) ? name : kNone;
}

std::wstring String(std::wstring_view line) {
  std::wstring name, value;
  return ParseStringValueLine(line, name, value) ? name + L" | " + value : kNone;
}

std::wstring Number(std::wstring_view line, int base = 10) {
  std::wstring name;
  std::int32_t number = 0;
  if (!ParseDwordValueLine(line, name, number, base)) return kNone;
  return name + L" | " + FormatDecimal(number);
}

struct Case {
  std::wstring line, parsed;
};

TEST(ValueLines, AHeaderStandsInBracketsBeforeOneFinalUnit) {
  for (const Case& c : {Case{L"[Software\\Velmont]\n", L"Software\\Velmont"},
                        {L"[]\n", L""},
                        {L"[a]\r", L"a"},
                        {L"[a]]\n", L"a]"},
                        {L"[ a \n]\n", L" a \n"},
                        {L"", kNone},
                        {L"\n", kNone},
                        {L"[]", kNone},
                        {L"[a]", kNone},  // the last line of a file without its end
                        {L"[a]\r\n", kNone},
                        {L" [a]\n", kNone},
                        {L"[a\n", kNone},
                        {L"a]\n", kNone}}) {
    EXPECT_EQ(Header(c.line), c.parsed) << Utf8(c.line);
  }
}

TEST(ValueLines, AStringLineEndsItsNameAtTheFirstMarker) {
  for (const Case& c : {Case{L"\"a\"=\"bcd\"\n", L"a | bcd"},
                        {L"\"a\"=\"bcd\"\r", L"a | bcd"},
                        {L"\"a\"=\"b\"\n", L"a | b"},
                        {L"\"a\"=\"\"\n", kNone},  // seven units
                        {L"\"name\"=\"\"\n", L"name | "},
                        {L"\"\"=\"ab\"\n", L" | ab"},
                        {L"\"a\"=\"b\"c\"d\"\n", L"a | b\"c\"d"},
                        {L"\"a\"=\"b\"=\"c\"\n", L"a | b\"=\"c"},
                        {L"\"100%\"=\"%s%d\"\n", L"100% | %s%d"},
                        {L"\"=\"abcd\"\n", L" | abcd"},  // the marker at the very front
                        {L"\"abcd\"=\"\n", L"abcd | "},  // its last quote is the marker's own
                        {L"\"a\"=\"bcd\"", kNone},       // no final unit
                        {L"\"a\"=\"bcd\"\r\n", kNone},   // two of them
                        {L" \"a\"=\"bcd\"\n", kNone},
                        {L"a\"=\"bcdefg\"\n", kNone},
                        {L"\"a\"=bcdefgh\"\n", kNone},
                        {L"\"a\"=\"bcdefg\n", kNone},
                        {L"", kNone}}) {
    EXPECT_EQ(String(c.line), c.parsed) << Utf8(c.line);
  }
}

TEST(ValueLines, ANumberLineEndsItsNameAtTheFirstEqualsSign) {
  for (const Case& c : {Case{L"\"a\"=dword:5\n", L"a | 5"},
                        {L"\"a\"=dword:-1\n", L"a | -1"},
                        {L"\"a\"=dword:5", L"a | 5"},
                        {L"\"a\"=dword:5\r", L"a | 5"},
                        {L"\"a\"=dword:\n", L"a | 0"},
                        {L"\"a\"=dword:", kNone},
                        {L"\"a\"=dword:x\n", L"a | 0"},
                        {L"\"a\"=dword:4294967295\n", L"a | 2147483647"},
                        {L"\"a\"=dword:-99999999999\n", L"a | -2147483648"},
                        {L"\"a\"=dword:0x10\n", L"a | 0"},
                        {L"\"a\"=dword: 12 \n", L"a | 12"},
                        {L"\"a\"=dwordx12\n", L"a | 12"},
                        {L"\"a\"=\"dword:5\"\n", kNone},
                        {L"\"\"=dword:5\n", L" | 5"},
                        {L"=dword:5\n", L" | 5"},
                        {L"x=dword:5\n", L" | 5"},
                        {L"\"ab=c\"=dword:5\n", L"a | 5"},
                        {L"\"a\"=dword:5=dword:6\n", L"a | 5"},
                        {L"\"%s%n%%%d\"=dword:5\n", L"%s%n%%d | 5"},
                        {L"\"a\"dword:5\n", kNone},
                        {L"", kNone}}) {
    EXPECT_EQ(Number(c.line), c.parsed) << Utf8(c.line);
  }
  EXPECT_EQ(Number(L"\"a\"=dword:0xff\n", 16), L"a | 255");
  EXPECT_EQ(Number(L"\"a\"=dword:0xff\n", 0), L"a | 255");
}

TEST(ValueLines, TheNameOfANumberIsCutAt127UnitsAfterItsTemplate) {
  const std::wstring end = L"\"=dword:1\n";
  EXPECT_EQ(Number(L"\"" + std::wstring(200, L'n') + end), std::wstring(127, L'n') + L" | 1");
  EXPECT_EQ(Number(L"\"" + std::wstring(254, L'%') + end), std::wstring(127, L'%') + L" | 1");
}

}  // namespace
}  // namespace tidewell
