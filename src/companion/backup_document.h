// A backup as the lines of its file: what the reader makes of each, what is in effect in the end,
// and changes that leave every other line as it is, to the byte.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "backup/registry_text_reader.h"
#include "platform/registry.h"

namespace tidewell {

inline constexpr std::size_t kNowhere = static_cast<std::size_t>(-1);

// What one call of the reader takes: a line, or a piece of one that is too long for it.
struct DocumentLine {
  std::size_t begin = 0;  // in bytes
  std::size_t end = 0;
  LineUse use = LineUse::kIgnored;
};

struct StoredValue {
  std::size_t line = 0;
  std::size_t key = 0;  // place in Keys
  std::wstring name;
  std::uint32_t type = 0;
  std::int32_t number = 0;           // of a number
  std::wstring text = {};            // of a string
  std::vector<std::byte> data = {};  // of an exact line alone
  // A line before that would be in effect without this one.
  std::size_t earlier = kNowhere;
};
// Whether both leave the same in the registry.
bool AreSame(const StoredValue& left, const StoredValue& right);

struct DocumentKey {
  std::wstring path;       // as it is spelled first
  std::size_t header = 0;  // the line of its last header
  std::size_t last = 0;    // the last line of that section, the header itself if it has no other
};

struct CategoryLines {
  std::size_t firstLine = 0;
  std::size_t lastLine = 0;
  std::wstring name;
  std::int32_t flags = 0;
  std::int32_t color = 0;
};

struct FilterLines {
  std::size_t firstLine = 0;
  std::size_t lastLine = 0;
  std::int32_t index = 0;
  std::wstring title;
  bool visible = false;
  bool uncategorized = false;
};

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
  // From 1, as editors count them.
  std::size_t NumberOf(std::size_t line) const;

  const std::vector<DocumentKey>& Keys() const { return keys_; }
  // Every value line, in the order of the file, and which of them is in effect.
  const std::vector<StoredValue>& Values() const { return values_; }
  bool IsInEffect(std::size_t value) const;
  // Without regard to letter case; null when there is none in effect.
  const StoredValue* Find(std::wstring_view path, std::wstring_view name) const;
  // The last line that has a say; kNowhere without one.
  std::size_t ProductHeader() const { return productHeader_; }

  const std::vector<CategoryLines>& Categories() const { return categories_; }
  const std::vector<FilterLines>& Filters() const { return filters_; }

  // These are kept aside until Edited.
  EditStatus Set(const std::wstring& path, const std::wstring& name, const NewValue& value);
  // As it stands in another document.
  EditStatus Take(const BackupDocument& from, const StoredValue& value);
  EditStatus Remove(const StoredValue& value);
  EditStatus TakeCategory(const BackupDocument& from, const CategoryLines& category);
  EditStatus TakeFilter(const BackupDocument& from, const FilterLines& filter);
  bool HasEdits() const { return !edits_.empty(); }
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

  std::wstring EffectId(std::size_t key, std::wstring_view name) const;
  std::size_t KeyOf(std::wstring_view path) const;
  bool EndsWhole(std::size_t line) const;
  bool StandsAlone(std::size_t line) const;
  EditStatus SetLine(const std::wstring& path, const std::wstring& name, std::wstring line);
  EditStatus Insert(const std::wstring& path, const std::wstring& line);
  EditStatus ReplaceRecord(std::size_t firstLine, std::size_t lastLine, const std::wstring& lines);
  EditStatus AddRecord(LineUse section, const std::wstring& lines);
  std::wstring LinesOf(std::size_t firstLine, std::size_t lastLine) const;

  std::vector<std::byte> bytes_;
  bool isRegistryText_ = false;
  bool isCopy_ = false;
  std::vector<DocumentLine> lines_;
  std::vector<DocumentKey> keys_;
  std::vector<StoredValue> values_;
  std::vector<CategoryLines> categories_;
  std::vector<FilterLines> filters_;
  std::unordered_map<std::wstring, std::size_t> keyPlaces_;  // by folded path
  std::unordered_map<std::wstring, std::size_t> inEffect_;   // by key and folded name
  std::size_t productHeader_ = kNowhere;
  std::map<std::size_t, Edit> edits_;
  std::map<std::wstring, std::wstring> added_;  // lines of sections that are yet to come
};

// The name of each key on the way, folded, one backslash between them: as the registry finds it.
std::wstring FoldedPath(std::wstring_view path);
std::wstring Folded(std::wstring_view text);

}  // namespace tidewell
