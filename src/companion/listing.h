// What a command has found, as lines: aligned for a terminal, plain for a pipe, or as JSON.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "companion/meanings.h"

namespace tidewell {

struct Field {
  const char* key;  // in JSON
  std::wstring text;
  bool isNumber = false;  // in JSON
  bool isInJsonOnly = false;
};

struct Record {
  std::wstring page;
  std::wstring tab;  // may be empty
  std::vector<Field> fields;
  std::vector<MeaningChoice> choices = {};  // in JSON alone
};

enum class ListingStyle : std::uint8_t {
  kPlain,    // each record in one line, page and tab before it, tabs between
  kAligned,  // headings, and columns below them
  kColored,  // the same with its headings in bold
  kJson,
};

// Without what breaks a line, turns its direction, or would be an order to a terminal.
std::wstring OnOneLine(std::wstring text);
std::string OnOneLine(std::string_view utf8);

std::string Render(const std::vector<Record>& records, ListingStyle style);

}  // namespace tidewell
