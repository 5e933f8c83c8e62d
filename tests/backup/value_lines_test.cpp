#include "backup/value_lines.h"

#include <gtest/gtest.h>

namespace tidewell {
namespace {

TEST(ValueLines, AHeaderStandsInBracketsBeforeOneFinalUnit) {
  struct Case {
    const wchar_t* line;
    bool isHeader;
    const wchar_t* name;
  };
  const Case cases[] = {
      {L"[Software\\Velmont]\n", true, L"Software\\Velmont"},
      {L"[]\n", true, L""},
      {L"[a]\r", true, L"a"},
      {L"[a]]\n", true, L"a]"},
      {L"[ a \n]\n", true, L" a \n"},
      {L"", false, L""},
      {L"\n", false, L""},
      {L"[]", false, L""},   // no final unit
      {L"[a]", false, L""},  // the last line of a file without its end
      {L"[a]\r\n", false, L""},
      {L" [a]\n", false, L""},
      {L"[a\n", false, L""},
      {L"a]\n", false, L""},
  };
  for (const Case& c : cases) {
    std::wstring name;
    EXPECT_EQ(ParseSectionHeader(c.line, name), c.isHeader) << testing::PrintToString(c.line);
    EXPECT_EQ(name, c.name) << testing::PrintToString(c.line);
  }
}

TEST(ValueLines, AStringLineEndsItsNameAtTheFirstMarker) {
  struct Case {
    const wchar_t* line;
    bool isString;
    const wchar_t* name;
    const wchar_t* value;
  };
  const Case cases[] = {
      {L"\"a\"=\"bcd\"\n", true, L"a", L"bcd"},
      {L"\"name\"=\"\"\n", true, L"name", L""},
      {L"\"\"=\"ab\"\n", true, L"", L"ab"},
      {L"\"a\"=\"b\"c\"d\"\n", true, L"a", L"b\"c\"d"},
      {L"\"a\"=\"b\"=\"c\"\n", true, L"a", L"b\"=\"c"},
      {L"\"100%\"=\"%s%d\"\n", true, L"100%", L"%s%d"},
      {L"\"a\"=\"dword:5\"\n", true, L"a", L"dword:5"},
      {L"\"a\"=\"bcd\"\r", true, L"a", L"bcd"},
      {L"\"=\"abcd\"\n", true, L"", L"abcd"},  // the marker at the very front
      {L"\"abcd\"=\"\n", true, L"abcd", L""},  // its last quote is the marker's own
      {L"\"a\"=\"\"\n", false, L"-", L"-"},    // seven units
      {L"\"a\"=\"b\"\n", true, L"a", L"b"},
      {L"\"a\"=\"bcd\"", false, L"-", L"-"},      // no final unit
      {L"\"a\"=\"bcd\"\r\n", false, L"-", L"-"},  // two of them
      {L" \"a\"=\"bcd\"\n", false, L"-", L"-"},
      {L"a\"=\"bcdefg\"\n", false, L"-", L"-"},
      {L"\"a\"=bcdefgh\"\n", false, L"-", L"-"},
      {L"\"a\"=\"bcdefg\n", false, L"-", L"-"},
      {L"", false, L"-", L"-"},
  };
  for (const Case& c : cases) {
    std::wstring name = L"-";
    std::wstring value = L"-";
    EXPECT_EQ(ParseStringValueLine(c.line, name, value), c.isString)
        << testing::PrintToString(c.line);
    EXPECT_EQ(name, c.name) << testing::PrintToString(c.line);
    EXPECT_EQ(value, c.value) << testing::PrintToString(c.line);
  }
}

TEST(ValueLines, ANumberLineEndsItsNameAtTheFirstEqualsSign) {
  struct Case {
    const wchar_t* line;
    bool isNumber;
    const wchar_t* name;
    std::int32_t number;
  };
  const Case cases[] = {
      {L"\"a\"=dword:5\n", true, L"a", 5},
      {L"\"a\"=dword:-1\n", true, L"a", -1},
      {L"\"a\"=dword:5", true, L"a", 5},
      {L"\"a\"=dword:5\r", true, L"a", 5},
      {L"\"a\"=dword:\n", true, L"a", 0},
      {L"\"a\"=dword:", false, L"a", 77},  // the name is told all the same
      {L"\"a\"=dword:x\n", true, L"a", 0},
      {L"\"a\"=dword:4294967295\n", true, L"a", INT32_MAX},
      {L"\"a\"=dword:-99999999999\n", true, L"a", INT32_MIN},
      {L"\"a\"=dword:0x10\n", true, L"a", 0},
      {L"\"a\"=dword: 12 \n", true, L"a", 12},
      {L"\"a\"=dwordx12\n", true, L"a", 12},
      {L"\"a\"=\"dword:5\"\n", false, L"a", 77},
      {L"\"\"=dword:5\n", true, L"", 5},
      {L"=dword:5\n", true, L"", 5},
      {L"x=dword:5\n", true, L"", 5},
      {L"\"a=b\"=dword:5\n", true, L"", 5},
      {L"\"ab=c\"=dword:5\n", true, L"a", 5},
      {L"\"a\"=dword:5=dword:6\n", true, L"a", 5},
      {L"\"50%\"=dword:5\n", true, L"50%", 5},
      {L"\"50%%\"=dword:5\n", true, L"50%", 5},
      {L"\"%s%n%%%d\"=dword:5\n", true, L"%s%n%%d", 5},
      {L"\"a\"dword:5\n", false, L"-", 77},
      {L"\n", false, L"-", 77},
      {L"", false, L"-", 77},
  };
  for (const Case& c : cases) {
    std::wstring name = L"-";
    std::int32_t number = 77;
    EXPECT_EQ(ParseDwordValueLine(c.line, name, number, 10), c.isNumber)
        << testing::PrintToString(c.line);
    EXPECT_EQ(name, c.name) << testing::PrintToString(c.line);
    EXPECT_EQ(number, c.number) << testing::PrintToString(c.line);
  }
}

TEST(ValueLines, TheNameOfANumberIsCutAt127UnitsAfterItsTemplate) {
  const std::wstring end = L"\"=dword:1\n";
  std::wstring name;
  std::int32_t number = 0;
  ASSERT_TRUE(ParseDwordValueLine(L"\"" + std::wstring(200, L'n') + end, name, number, 10));
  EXPECT_EQ(name, std::wstring(127, L'n'));
  std::wstring percents;
  for (int i = 0; i < 127; ++i) percents += L"%%";
  ASSERT_TRUE(ParseDwordValueLine(L"\"" + percents + end, name, number, 10));
  EXPECT_EQ(name, std::wstring(127, L'%'));
}

TEST(ValueLines, NumbersReadInTheirBase) {
  std::wstring name;
  std::int32_t number = 0;
  ASSERT_TRUE(ParseDwordValueLine(L"\"a\"=dword:0xff\n", name, number, 16));
  EXPECT_EQ(number, 255);
  ASSERT_TRUE(ParseDwordValueLine(L"\"a\"=dword:0xff\n", name, number, 0));
  EXPECT_EQ(number, 255);
}

}  // namespace
}  // namespace tidewell
