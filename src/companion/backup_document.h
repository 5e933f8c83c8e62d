// A backup as the lines of its file: what the reader makes of each, what is in effect in the end,
// and changes that leave every other line as it is, to the byte.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <memory_resource>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "backup/registry_text_reader.h"
#include "companion/name_index.h"
#include "platform/registry.h"

namespace tidewell {

inline constexpr std::size_t kNowhere = static_cast<std::size_t>(-1);

// What one call of the reader takes: a line, or a piece of one that is too long for it.
struct DocumentLine {
  std::size_t begin = 0;  // in bytes
  std::size_t end = 0;
  LineUse use = LineUse::kIgnored;
};

// The name is the document's, as long as it lives. So are the others below.
struct StoredValue {
  std::size_t line = 0;
  std::size_t key = 0;  // place in Keys
  std::wstring_view name;
  std::uint32_t type = 0;
  std::int32_t number = 0;  // of a number
  // A line before that would be in effect without this one.
  std::size_t earlier = kNowhere;
  bool isExact = false;
  bool isOverruled = false;  // a later line replaces or deletes it
};

struct DocumentKey {
  std::wstring_view path;    // as it is spelled first, one backslash between its names
  std::size_t header = 0;    // the line of its last header
  std::size_t last = 0;      // the last line of that section, the header itself if it has no other
  bool isOfProduct = false;  // the product's own, or below it
};

struct CategoryLines {
  std::size_t firstLine = 0;
  std::size_t lastLine = 0;
  std::wstring_view name;
  std::int32_t flags = 0;
  std::int32_t color = 0;
};

struct FilterLines {
  std::size_t firstLine = 0;
  std::size_t lastLine = 0;
  std::int32_t index = 0;
  std::wstring_view title;
  bool visible = false;
  bool uncategorized = false;
};

// Whether an import makes the same of both.
bool AreSame(const CategoryLines& left, const CategoryLines& right);
bool AreSame(const FilterLines& left, const FilterLines& right);

// What a value is to be.
struct NewValue {
  bool isNumber = false;
  std::int32_t number = 0;
  std::wstring text;
};

enum class EditStatus : std::uint8_t {
  kDone,
  kUnwritable,  // the format has no line that is read as that value
  kEntangled,   // the line is a piece of a longer one, or the last one has no line end
};

class BackupDocument {
 public:
  // Reads the whole text.
  explicit BackupDocument(std::vector<std::byte> bytes);

  // It begins with an empty line. Otherwise there is nothing else.
  bool IsRegistryText() const { return isRegistryText_; }
  bool IsCopy() const { return isCopy_; }

  const std::vector<DocumentLine>& Lines() const { return lines_; }
  std::wstring TextOf(std::size_t line) const;
  // With its line end.
  bool EndsWhole(std::size_t line) const;
  std::span<const std::byte> BytesIn(std::size_t line) const;
  // In bytes.
  std::size_t Size() const { return bytes_.size(); }

  const std::vector<DocumentKey>& Keys() const { return keys_; }
  // Without regard to letter case; kNowhere without one.
  std::size_t KeyOf(std::wstring_view path) const;
  // Every value line, in the order of the file, and which of them is in effect.
  const std::vector<StoredValue>& Values() const { return values_; }
  bool IsInEffect(std::size_t value) const;
  // What the registry holds of it, and the text that this is; from its line, which keeps it.
  std::vector<std::byte> DataOf(const StoredValue& value) const;
  std::wstring StringOf(const StoredValue& value) const;
  // Without regard to letter case; null when there is none in effect.
  const StoredValue* Find(std::wstring_view path, std::wstring_view name) const;
  const StoredValue* Find(std::size_t key, std::wstring_view name) const;
  // The same, quickest where it is the value at `guess`; that becomes the place behind the one
  // found.
  const StoredValue* Find(std::size_t key, std::wstring_view name, std::size_t& guess) const;

  // In the order of the file. Of those with one name or index the last alone has a say.
  const std::vector<CategoryLines>& Categories() const { return categories_; }
  const std::vector<FilterLines>& Filters() const { return filters_; }
  const CategoryLines* FindCategory(std::wstring_view name) const;
  const FilterLines* FindFilter(std::int32_t index) const;

  // These are kept aside until Edited.
  EditStatus Set(std::wstring_view path, std::wstring_view name, const NewValue& value);
  // As it stands in another document.
  EditStatus Take(const BackupDocument& from, const StoredValue& value);
  EditStatus Remove(const StoredValue& value);
  // Of another document, as this one has them.
  EditStatus TakeCategory(const CategoryLines& category);
  EditStatus TakeFilter(const FilterLines& filter);
  // The line that the last edit was refused for, from 1; 0 when it was another reason.
  std::size_t EntangledLine() const { return entangledLine_; }
  // The whole file with the changes.
  std::vector<std::byte> Edited() const;

 private:
  class Filler;
  // What becomes of a line, and what comes behind it.
  struct Edit {
    bool isReplaced = false;
    std::wstring instead;
    std::wstring behind;
  };

  // The last one of its kind; kNowhere without one.
  struct RecordSection {
    bool IsCutOff() const { return last != header && last != lastTaken; }

    std::size_t header = kNowhere;
    std::size_t last = kNowhere;       // the header itself if it has no other line
    std::size_t lastTaken = kNowhere;  // of the last record
    std::wstring newLines = {};        // of a section that is yet to come, at the end of the file
  };

  std::wstring_view Keep(std::wstring_view text);
  // Of a name in the index of values, and the last value of that name; both may be none.
  std::size_t SlotOf(std::size_t key, std::wstring_view name) const;
  std::size_t LastOf(std::size_t slot) const;
  bool StandsAlone(std::size_t line) const;
  EditStatus SetExactly(std::wstring_view path, const EnumeratedValue& value);
  bool IsTakenOver(std::size_t lastLine) const;
  EditStatus SetLine(std::wstring_view path, std::wstring_view name, std::wstring line);
  EditStatus Insert(std::wstring_view path, const std::wstring& line);
  EditStatus ReplaceRecord(std::size_t firstLine, std::size_t lastLine, const std::wstring& lines);
  EditStatus AddRecord(RecordSection& section, const std::wstring& lines);
  EditStatus Entangled(std::size_t line);

  // Whatever is one of many lies here, so that a large file costs no call for each.
  std::unique_ptr<std::pmr::monotonic_buffer_resource> arena_;
  std::vector<std::byte> bytes_;
  bool isRegistryText_ = false;
  bool isCopy_ = false;
  std::vector<DocumentLine> lines_;
  std::vector<DocumentKey> keys_;
  std::vector<StoredValue> values_;
  std::vector<CategoryLines> categories_;
  std::vector<FilterLines> filters_;
  NameIndex keyPlaces_;
  NameIndex valuePlaces_;  // of the last value of each name
  std::pmr::unordered_map<std::wstring_view, std::size_t> lastCategories_;
  std::pmr::unordered_map<std::int32_t, std::size_t> lastFilters_;
  RecordSection categorySection_;
  RecordSection filterSection_;
  // The last line that deletes what stands before it; kNowhere without one.
  std::size_t productHeader_ = kNowhere;
  std::size_t entangledLine_ = 0;
  std::map<std::size_t, Edit> edits_;
  std::map<std::wstring, std::wstring> added_;  // lines of sections that are yet to come
};

// Whether both leave the same in the registry.
bool AreSame(const BackupDocument& left, const StoredValue& inLeft, const BackupDocument& right,
             const StoredValue& inRight);

}  // namespace tidewell
