// The one reader of registry texts: it takes a text line by line, tells a target what it finds, and
// what becomes of each line. docs/backup-format.md has the rules.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/registry.h"
#include "text_format/text_stream.h"
#include "text_format/value_lines.h"

namespace tidewell {

// What the reader takes a line for.
enum class LineUse : std::uint8_t {
  kEmpty,       // the first line, and the end of a section
  kMark,        // of a copy
  kKey,         // the header of a key
  kCategories,  // the header of the categories
  kFilters,     // the header of the filters
  kValue,
  kExactValue,
  kRecordStart,  // the text that begins a category or a filter
  kRecordNumber,
  kMalformed,  // of a record: leaves the text or the number as it was
  kIgnored,
};

// Where the reader puts what it finds.
class TextTarget {
 public:
  virtual ~TextTarget() = default;
  // Told before what follows from the line.
  virtual void TakeLine(LineUse /*use*/) {}
  // The key that takes the values until the next one is opened. False ends the reading.
  virtual bool OpenKey(const std::wstring& path) = 0;
  virtual void TakeValue(const ParsedValue&) {}
  virtual void TakeExactValue(const EnumeratedValue&) {}
  virtual void TakeCategory(const std::wstring& /*name*/, std::int32_t /*flags*/,
                            std::int32_t /*color*/) {}
  virtual void TakeFilter(std::int32_t /*index*/, const std::wstring& /*title*/, bool /*visible*/,
                          bool /*uncategorized*/) {}
};

class RegistryTextReader {
 public:
  RegistryTextReader(TextReader& stream, TextTarget& target) : stream_(stream), target_(target) {}

  // False unless the text begins with an empty line; the rest is then read by Read.
  bool Begin();
  // False when the target refused a key.
  bool Read();

 private:
  bool ReadSection(std::wstring& name);
  // False at the end of a section or of the text.
  bool ReadSectionLine();
  void ReadValues();
  // The string of the line that begins a record; a malformed one leaves it as it was.
  void ParseRecordText(std::wstring& text);
  // A malformed line has no name and leaves the number as it was.
  bool ReadNumberLine(std::int32_t& number);
  void ReadCategories();
  void ReadFilterTitles();

  TextReader& stream_;
  TextTarget& target_;
  bool isCopy_ = false;
  std::wstring_view line_;
  std::wstring name_;
  ParsedValue value_;
  EnumeratedValue exact_;
};

}  // namespace tidewell
