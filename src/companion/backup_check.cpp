#include "companion/backup_check.h"

#include <algorithm>
#include <map>
#include <set>

#include "backup/exact_lines.h"
#include "backup/registry_text.h"
#include "backup/settings_backup.h"
#include "platform/text.h"
#include "text_format/value_lines.h"

namespace tidewell {

namespace {

// What the registry takes, in characters.
constexpr std::size_t kLongestKeyName = 255;
constexpr std::size_t kLongestValueName = 16383;

std::string Quoted(const std::wstring& text) {
  return "\"" + ToUtf8(text) + "\"";
}

std::wstring WithoutLineEnd(std::wstring line) {
  if (line.ends_with(L'\n')) line.pop_back();
  return line;
}

std::wstring StringLine(std::wstring_view name, std::wstring_view text) {
  std::wstring line;
  AppendStringLine(line, name, text);
  return line;
}
std::wstring NumberLine(std::wstring_view name, std::int32_t number) {
  std::wstring line;
  AppendDwordLine(line, name, static_cast<std::uint32_t>(number));
  return line;
}

bool IsWithinProduct(const std::wstring& path) {
  const std::wstring product = FoldedPath(kProductKey);
  const std::wstring folded = FoldedPath(path);
  return folded == product || folded.starts_with(product + L'\\');
}

bool HasTooLongName(const std::wstring& path) {
  std::size_t length = 0;
  for (const wchar_t unit : path) {
    length = unit == L'\\' ? 0 : length + 1;
    if (length > kLongestKeyName) return true;
  }
  return false;
}

class Checker {
 public:
  Checker(BackupSettings& backup, std::size_t size)
      : backup_(backup), document_(backup.Document()), size_(size) {}

  std::vector<Finding> Run() {
    NumberLines();
    CheckFile();
    for (std::size_t line = 0; line < document_.Lines().size(); ++line) CheckLine(line);
    for (std::size_t i = 0; i < document_.Values().size(); ++i) CheckValue(i);
    CheckCategories();
    CheckFilters();
    CheckMeanings();
    std::ranges::stable_sort(findings_, {}, &Finding::line);
    return std::move(findings_);
  }

 private:
  void NumberLines() {
    std::size_t number = 1;
    for (std::size_t line = 0; line < document_.Lines().size(); ++line) {
      numbers_.push_back(number);
      if (EndsWhole(line)) ++number;
    }
  }
  bool EndsWhole(std::size_t line) const { return document_.TextOf(line).ends_with(L'\n'); }

  void Loss(std::size_t line, std::size_t column, std::string text) {
    findings_.push_back({numbers_[line], column, true, std::move(text)});
  }
  void Note(std::size_t line, std::string text) {
    findings_.push_back({numbers_[line], 0, false, std::move(text)});
  }

  void CheckFile() {
    if (!document_.IsCopy() && size_ > kLargestBackup) {
      findings_.push_back({0, 0, true, "larger than 16 MiB: an import refuses it"});
    }
    const std::size_t end = document_.Lines().empty() ? 0 : document_.Lines().back().end;
    if (end != size_) {
      findings_.push_back({0, 0, true, "its last byte is half a character and is not read"});
    }
  }

  void CheckLine(std::size_t line) {
    const std::wstring text = document_.TextOf(line);
    const bool isLast = line + 1 == document_.Lines().size();
    const bool goesOn = line > 0 && !EndsWhole(line - 1);
    if (!goesOn && !isLast && !text.ends_with(L'\n')) {
      Loss(line, text.size() + 1, "longer than 1023 characters: it is read as several lines");
    }
    const std::size_t zero = text.find(L'\0');
    if (zero != std::wstring::npos) {
      Loss(line, zero + 1, "what follows the zero character is not read");
    }
    switch (document_.Lines()[line].use) {
      case LineUse::kKey:
        return CheckKey(line, text);
      case LineUse::kIgnored:
        return CheckIgnored(line, text);
      case LineUse::kValue:
        return CheckValueLine(line, text.substr(0, zero));
      case LineUse::kExactValue:
        return CheckExactLine(line, text);
      case LineUse::kMalformed:
        return Loss(line, 1, "no line of a record: the value before it stays");
      default:
        break;
    }
  }

  void CheckKey(std::size_t line, const std::wstring& text) {
    std::wstring path;
    ParseSectionHeader(text, path);
    if (document_.IsCopy()) ParseExactSectionName(std::wstring(path), path);
    if (HasTooLongName(path)) {
      Loss(line, 1, "no key can have so long a name: the import ends here");
    } else if (!IsWithinProduct(path)) {
      Note(line, "writes outside the product's key: the import asks first");
    } else if (FoldedPath(path) == FoldedPath(kProductKey) && path != kProductKey) {
      Note(line, "not spelled " + ToUtf8(kProductKey) +
                     ": values that the device has and the file has not stay");
    }
  }

  void CheckIgnored(std::size_t line, const std::wstring& text) {
    if (text.starts_with(L"[") && text.ends_with(L"\r\n")) {
      return Loss(line, text.size() - 1, "no header because of its carriage return: not read");
    }
    if (text.starts_with(L"[") && !text.ends_with(L'\n')) {
      return Loss(line, text.size() + 1, "no header without its line end: not read");
    }
    Loss(line, 1, "not read");
  }

  // What the reader makes of it, written anew, is what stands there.
  void CheckValueLine(std::size_t line, const std::wstring& text) {
    ParsedValue value;
    ParseValueLine(text, value);
    if (value.isNumber) {
      return Compare(line, WithoutLineEnd(text), NumberLine(value.name, value.number));
    }
    std::wstring name;
    std::wstring content;
    if (!ParseStringValueLine(text, name, content)) {
      return Loss(line, text.size(),
                  "no string without a quote right before its line end: it "
                  "empties the key's unnamed value");
    }
    if (content == L"not_the_same") {
      return Loss(line, 1, "this text deletes the value instead of storing it");
    }
    Compare(line, WithoutLineEnd(text), StringLine(name, content));
  }

  void CheckExactLine(std::size_t line, const std::wstring& text) {
    EnumeratedValue value;
    std::wstring exact;
    ParseExactLine(text, value);
    AppendExactLine(exact, value);
    if (value.name.find(L'\0') != std::wstring::npos || value.name.size() > kLongestValueName) {
      return Loss(line, 1, "no value can have that name");
    }
    Compare(line, WithoutLineEnd(text), exact);
  }

  void Compare(std::size_t line, const std::wstring& written, const std::wstring& read) {
    if (written == read) return;
    const auto [at, other] = std::ranges::mismatch(written, read);
    Loss(line, static_cast<std::size_t>(at - written.begin()) + 1, "read as " + ToUtf8(read));
  }

  void CheckValue(std::size_t place) {
    const StoredValue& value = document_.Values()[place];
    const std::wstring& path = document_.Keys()[value.key].path;
    const StoredValue* last = document_.Find(path, value.name);
    if (last == &value || (last && AreSame(*last, value))) return;
    Loss(value.line, 1,
         last ? "overruled by line " + std::to_string(numbers_[last->line])
              : std::string("deleted by a later line"));
  }

  // Lines of a record as a backup has them. One too many stands in front of the last.
  void CompareRecord(std::size_t firstLine, std::size_t lastLine,
                     const std::vector<std::wstring>& wanted) {
    for (std::size_t i = 0; i < wanted.size(); ++i) {
      const std::size_t line = i + 1 == wanted.size() ? lastLine : firstLine + i;
      const std::wstring text = WithoutLineEnd(document_.TextOf(line));
      const bool isExact = document_.IsCopy() && text.starts_with(L"hex:");
      const bool isMalformed = document_.Lines()[line].use == LineUse::kMalformed;
      if (!isMalformed && !isExact) Compare(line, text, wanted[i]);
    }
    if (firstLine + wanted.size() <= lastLine) {
      Loss(lastLine - 1, 1, "one line too many in this record: it is passed over");
    }
  }

  void CheckCategories() {
    std::map<std::wstring, const CategoryLines*> last;
    for (const CategoryLines& each : document_.Categories()) last[each.name] = &each;
    for (const CategoryLines& each : document_.Categories()) {
      CompareRecord(each.firstLine, each.lastLine,
                    {StringLine(L"Category", each.name), NumberLine(L"FiltersFlag", each.flags),
                     NumberLine(L"Color", each.color)});
      TakeRecord(each.firstLine, each.lastLine);
      const CategoryLines& other = *last[each.name];
      if (&other == &each) continue;
      const bool isSame = other.flags == each.flags && other.color == each.color;
      Twice(each.firstLine, other.firstLine, "category", isSame);
    }
  }

  void CheckFilters() {
    std::map<std::int32_t, const FilterLines*> last;
    for (const FilterLines& each : document_.Filters()) last[each.index] = &each;
    for (const FilterLines& each : document_.Filters()) {
      CompareRecord(each.firstLine, each.lastLine,
                    {StringLine(L"FilterName", each.title), NumberLine(L"Index", each.index),
                     NumberLine(L"VisibleState", each.visible ? 1 : 0),
                     NumberLine(L"IncludeUncategorized", each.uncategorized ? 1 : 0)});
      TakeRecord(each.firstLine, each.lastLine);
      if (each.index < 1 || each.index > kFilterCount) {
        Loss(each.firstLine, 1, "no filter has that index: it is passed over");
      }
      const FilterLines& other = *last[each.index];
      if (&other == &each) continue;
      const bool isSame = other.title == each.title && other.visible == each.visible &&
                          other.uncategorized == each.uncategorized;
      Twice(each.firstLine, other.firstLine, "filter", isSame);
    }
    CheckCutOffRecords();
    NoteMissingFilters(last);
  }

  void Twice(std::size_t line, std::size_t last, const std::string& what, bool isSame) {
    const std::string text =
        "this " + what + " stands in line " + std::to_string(numbers_[last]) + " again";
    if (isSame) return Note(line, text);
    Loss(line, 1, text + ", which overrules it");
  }

  void TakeRecord(std::size_t firstLine, std::size_t lastLine) {
    for (std::size_t line = firstLine; line <= lastLine; ++line) taken_.insert(line);
  }

  void CheckCutOffRecords() {
    for (std::size_t line = 0; line < document_.Lines().size(); ++line) {
      const LineUse use = document_.Lines()[line].use;
      const bool isOfRecord = use == LineUse::kRecordStart || use == LineUse::kRecordNumber;
      if (isOfRecord && !taken_.contains(line)) {
        Loss(line, 1, "of a record that the end of the file cuts off: not read");
      }
    }
  }

  void NoteMissingFilters(const std::map<std::int32_t, const FilterLines*>& there) {
    std::string missing;
    for (std::int32_t index = 1; index <= kFilterCount; ++index) {
      if (!there.contains(index)) missing += (missing.empty() ? "" : ", ") + std::to_string(index);
    }
    if (missing.empty()) return;
    findings_.push_back({0, 0, false, "filters that are missing and stay as they are: " + missing});
  }

  // Stored as it stands, but of another use than the page's.
  void CheckMeanings() {
    for (const Meaning& meaning : backup_.Meanings()) {
      for (Setting* setting : meaning.settings) {
        if (backup_.IsStored(*setting)) CheckMeaning(meaning, *setting);
      }
    }
  }

  void CheckMeaning(const Meaning& meaning, Setting& setting) {
    const StoredValue& value = *document_.Find(PathOf(setting), setting.Name());
    if (meaning.kind == ValueKind::kBits) return;
    const bool isNumber = meaning.kind != ValueKind::kText;
    if (value.type != (isNumber ? kTypeDword : kTypeString)) {
      return Note(value.line,
                  ToUtf8(meaning.name) + (isNumber ? " is to be a number" : " is to be a text"));
    }
    if (!isNumber ||
        NumberOfWords(meaning, setting, FormatDecimal(value.number), backup_.Device())) {
      return;
    }
    Note(value.line, ToUtf8(meaning.name) + " (" + Quoted(meaning.label) + ") cannot be " +
                         std::to_string(value.number) + ", but " +
                         ToUtf8(ChoicesInWords(meaning, setting)));
  }

  BackupSettings& backup_;
  const BackupDocument& document_;
  std::size_t size_;
  std::vector<std::size_t> numbers_;
  std::set<std::size_t> taken_;
  std::vector<Finding> findings_;
};

}  // namespace

std::vector<Finding> CheckBackup(BackupSettings& backup, std::size_t size) {
  return Checker(backup, size).Run();
}

}  // namespace tidewell
