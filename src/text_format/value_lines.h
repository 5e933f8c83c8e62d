// The lines that backups, schemes and the filters file are made of: [header], "name"="text" and
// "name"=dword:number. Nothing in them is escaped, so reading is not the reverse of writing for
// every name; each rule below is how files in the field are read.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tidewell {

inline constexpr std::wstring_view kStringMarker = L"\"=\"";
inline constexpr std::wstring_view kDwordMarker = L"\"=dword:";

// Add a line without its line end.
void AppendStringLine(std::wstring& text, std::wstring_view name, std::wstring_view value);
void AppendDwordLine(std::wstring& text, std::wstring_view name, std::uint32_t number);

// Every parser takes a line with exactly one final unit ("\n" here, "\r" in the filters file) and
// tells whether the line has its form. On false the results may hold what was found so far.

// What a section of values takes from a line.
struct ParsedValue {
  bool isNumber = false;
  std::wstring name;
  std::wstring text;
  std::int32_t number = 0;
};

// A line with "=" between quotes is a string, malformed an empty one without a name; any other
// with "=dword: behind its name is a number. False for every other line.
bool ParseValueLine(std::wstring_view line, ParsedValue& value);

// "[name]" and the final unit; the name may be empty.
bool ParseSectionHeader(std::wstring_view line, std::wstring& name);

// The name ends at the first "=" between quotes; quotes inside the value survive.
bool ParseStringValueLine(std::wstring_view line, std::wstring& name, std::wstring& value);

// The name ends before the quote in front of the first equals sign and is cut at 127 units. It
// passes through a template on its way: "%%" stands for one percent sign, any other percent sign
// for itself. The number is read as strtol reads it on a 32-bit system; no number is 0.
bool ParseDwordValueLine(std::wstring_view line, std::wstring& name, std::int32_t& number,
                         int base);

}  // namespace tidewell
