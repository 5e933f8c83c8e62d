#include "backup/registry_text_reader.h"

#include <algorithm>

#include "backup/exact_lines.h"
#include "backup/registry_text.h"
#include "backup/section_names.h"
#include "platform/text.h"

namespace tidewell {

namespace {

constexpr std::wstring_view kEmptyLine = L"\n";

LineUse UseOfHeader(std::wstring_view name) {
  if (name == kCategoriesSection) return LineUse::kCategories;
  return name == kFiltersSection ? LineUse::kFilters : LineUse::kKey;
}

}  // namespace

bool RegistryTextReader::Begin() {
  stream_.Rewind();
  if (!stream_.ReadLine(line_) || line_ != kEmptyLine) return false;
  target_.TakeLine(LineUse::kEmpty);
  return true;
}

bool RegistryTextReader::Read() {
  if (!stream_.ReadLine(line_)) return true;
  isCopy_ = line_ == kCopyMark;
  if (isCopy_) stream_.TakeLongLines();
  std::wstring section;
  do {
    const bool isHeader = ParseSectionHeader(line_, section);
    if (isHeader) {
      target_.TakeLine(UseOfHeader(section));
      if (!ReadSection(section)) return false;
      continue;
    }
    const LineUse other = line_ == kEmptyLine ? LineUse::kEmpty : LineUse::kIgnored;
    target_.TakeLine(line_ == kCopyMark && isCopy_ ? LineUse::kMark : other);
  } while (stream_.ReadLine(line_));
  return true;
}

bool RegistryTextReader::ReadSection(std::wstring& name) {
  switch (UseOfHeader(name)) {
    case LineUse::kCategories:
      ReadCategories();
      return true;
    case LineUse::kFilters:
      ReadFilterTitles();
      return true;
    default:
      break;
  }
  if (isCopy_) ParseExactSectionName(std::wstring(name), name);
  if (!target_.OpenKey(name)) return false;
  ReadValues();
  return true;
}

bool RegistryTextReader::ReadSectionLine() {
  if (!stream_.ReadLine(line_)) return false;
  if (line_ != kEmptyLine) return true;
  target_.TakeLine(LineUse::kEmpty);
  return false;
}

void RegistryTextReader::ReadValues() {
  while (ReadSectionLine()) {
    if (isCopy_ && ParseExactLine(line_, exact_)) {
      target_.TakeLine(LineUse::kExactValue);
      target_.TakeExactValue(exact_);
    } else if (ParseValueLine(line_, value_)) {
      target_.TakeLine(LineUse::kValue);
      target_.TakeValue(value_);
    } else {
      target_.TakeLine(LineUse::kIgnored);
    }
  }
}

void RegistryTextReader::ParseRecordText(std::wstring& text) {
  LineUse use = LineUse::kRecordStart;
  if (isCopy_ && ParseExactLine(line_, exact_)) {
    text = TextOfBytes(exact_.data);
    text.resize(std::min(text.find(L'\0'), text.size()));
  } else if (!ParseStringValueLine(line_, name_, text)) {
    use = LineUse::kMalformed;
  }
  target_.TakeLine(use);
}

bool RegistryTextReader::ReadNumberLine(std::int32_t& number) {
  if (!stream_.ReadLine(line_)) return false;
  name_.clear();
  const bool isNumber = ParseDwordValueLine(line_, name_, number, 10);
  target_.TakeLine(isNumber ? LineUse::kRecordNumber : LineUse::kMalformed);
  return true;
}

// A record that the end of the text cuts off is not taken.
void RegistryTextReader::ReadCategories() {
  while (ReadSectionLine()) {
    std::wstring category;
    std::int32_t flags = 0;
    std::int32_t color = -1;
    ParseRecordText(category);
    if (!ReadNumberLine(flags) || !ReadNumberLine(color)) return;
    // Some writers put one more line in front of the colour.
    if (!EqualIgnoringCase(name_, L"Color") && !ReadNumberLine(color)) return;
    target_.TakeCategory(category, flags, color);
  }
}

// A malformed line leaves the value of the record before it.
void RegistryTextReader::ReadFilterTitles() {
  std::wstring title;
  std::int32_t index = 0;
  std::int32_t visible = 0;
  std::int32_t uncategorized = 0;
  while (ReadSectionLine()) {
    ParseRecordText(title);
    if (!ReadNumberLine(index) || !ReadNumberLine(visible) || !ReadNumberLine(uncategorized)) {
      return;
    }
    target_.TakeFilter(index, title, visible != 0, uncategorized != 0);
  }
}

}  // namespace tidewell
