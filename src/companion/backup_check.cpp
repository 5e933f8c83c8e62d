#include "companion/backup_check.h"

#include <algorithm>

#include "backup/exact_lines.h"
#include "backup/registry_text.h"
#include "backup/section_names.h"
#include "backup/settings_backup.h"
#include "platform/text.h"
#include "text_format/value_lines.h"

namespace tidewell {

namespace {

// What the registry takes, in characters.
constexpr std::size_t kLongestKeyName = 255;
constexpr std::size_t kLongestValueName = 16383;

std::string Quoted(std::wstring_view text) {
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
std::wstring ExactLine(const EnumeratedValue& value) {
  std::wstring line;
  AppendExactLine(line, value);
  return line;
}

// Without what changes nothing: spaces and a carriage return around it, a plus sign, zeros in
// front.
std::wstring PlainNumber(std::wstring_view text) {
  constexpr std::wstring_view kSpaces = L" \t\n\v\f\r";
  text.remove_prefix(std::min(text.find_first_not_of(kSpaces), text.size()));
  text = text.substr(0, text.find_last_not_of(kSpaces) + 1);
  const bool isNegative = text.starts_with(L'-');
  if (isNegative || text.starts_with(L'+')) text.remove_prefix(1);
  while (text.size() > 1 && text.front() == L'0') text.remove_prefix(1);
  const std::wstring digits(text);
  return isNegative && digits != L"0" ? L'-' + digits : digits;
}

bool CanBeKey(std::wstring_view path) {
  if (path.starts_with(L'\\') || path.find(L'\0') != std::wstring_view::npos) return false;
  std::size_t length = 0;
  for (const wchar_t unit : path) {
    length = unit == L'\\' ? 0 : length + 1;
    if (length > kLongestKeyName) return false;
  }
  return true;
}

class Checker {
 public:
  explicit Checker(const BackupDocument& document)
      : document_(document), isTaken_(document.Lines().size()) {
    NumberLines();
  }

  void CheckAllLines() {
    CheckFile();
    for (std::size_t line = 0; line < document_.Lines().size(); ++line) CheckLine(line);
    for (const StoredValue& value : document_.Values()) CheckValue(value);
    for (const CategoryLines& each : document_.Categories()) CheckCategory(each);
    for (const FilterLines& each : document_.Filters()) CheckFilter(each);
    CheckCutOffRecords();
    NoteMissingFilters();
  }

  // Restored as it stands, but of another use than the page's.
  void CheckMeanings(BackupSettings& backup) {
    for (const Meaning& meaning : backup.Meanings()) {
      for (Setting* setting : meaning.settings) {
        const StoredValue* value = backup.Stored(*setting);
        if (value) CheckMeaning(backup, meaning, *setting, *value);
      }
    }
  }

  std::vector<Finding> Findings() {
    std::ranges::stable_sort(findings_, {}, &Finding::line);
    return std::move(findings_);
  }

 private:
  void NumberLines() {
    std::size_t number = 1;
    for (std::size_t line = 0; line < document_.Lines().size(); ++line) {
      numbers_.push_back(number);
      if (document_.EndsWhole(line)) ++number;
    }
  }

  void Loss(std::size_t line, std::size_t column, std::string text) {
    findings_.push_back({numbers_[line], column, true, std::move(text)});
  }
  void Note(std::size_t line, std::string text) {
    findings_.push_back({numbers_[line], 0, false, std::move(text)});
  }

  void CheckFile() {
    const std::uint64_t limit = document_.IsCopy() ? kLargestCopy : kLargestBackup;
    if (document_.Size() > limit) {
      findings_.push_back(
          {0, 0, true,
           "larger than " + std::to_string(limit >> 20) + " MiB: an import refuses it"});
    }
    const std::size_t end = document_.Lines().empty() ? 0 : document_.Lines().back().end;
    if (end != document_.Size()) {
      findings_.push_back({0, 0, true, "its last byte is half a character and is not read"});
    }
  }

  void CheckLine(std::size_t line) {
    const std::wstring text = document_.TextOf(line);
    const bool isLast = line + 1 == document_.Lines().size();
    const bool goesOn = line > 0 && !document_.EndsWhole(line - 1);
    if (!goesOn && !isLast && !text.ends_with(L'\n')) {
      Loss(line, text.size() + 1, "longer than 1023 characters: it is read as several lines");
    }
    const std::size_t zero = text.find(L'\0');
    if (zero != std::wstring::npos) {
      Loss(line, zero + 1, "what follows the zero character is not read");
    }
    switch (document_.Lines()[line].use) {
      case LineUse::kKey:
        CheckKey(line, text);
        return CheckHeader(line, text);
      case LineUse::kCategories:
      case LineUse::kFilters:
        return CheckHeader(line, text);
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
    if (!CanBeKey(path)) {
      Loss(line, 1, "no key can have that name: the import ends here");
    } else if (!IsWithinKey(kProductKey, path)) {
      Note(line, "writes outside the product's key: the import asks first");
    } else if (IsWithinKey(path, kProductKey) && path != kProductKey) {
      Note(line, "not spelled " + ToUtf8(kProductKey) +
                     ": values that the device has and the file has not stay");
    }
  }

  void CheckHeader(std::size_t line, const std::wstring& text) {
    if (text.ends_with(L"]\n")) return;
    Loss(line, text.size(), "the last character of the file, behind this header, is not read");
  }

  void CheckIgnored(std::size_t line, const std::wstring& text) {
    if (text.starts_with(L'[') && text.ends_with(L"\r\n")) {
      return Loss(line, text.size() - 1, "no header because of its carriage return: not read");
    }
    if (text.starts_with(L'[') && !text.ends_with(L'\n')) {
      return Loss(line, text.size() + 1, "no header without its line end: not read");
    }
    Loss(line, 1, "not read");
  }

  void CheckValueLine(std::size_t line, const std::wstring& text) {
    ParsedValue value;
    ParseValueLine(text, value);
    if (value.isNumber) return CompareNumber(line, text, value.name, value.number);
    std::wstring name;
    std::wstring content;
    if (!ParseStringValueLine(text, name, content)) {
      return Loss(line, text.size(),
                  "no string without a quote right before its line end: it "
                  "empties the key's unnamed value");
    }
    if (content == kDeletedString) {
      return Loss(line, 1, "this text deletes the value instead of storing it");
    }
    Compare(line, text, StringLine(name, content));
  }

  void CheckExactLine(std::size_t line, const std::wstring& text) {
    EnumeratedValue value;
    ParseExactLine(text, value);
    if (value.name.find(L'\0') != std::wstring::npos || value.name.size() > kLongestValueName) {
      return Loss(line, 1, "no value can have that name");
    }
    Compare(line, text, ExactLine(value));
  }

  // What the reader made of it, written anew, is to be what stands there.
  void Compare(std::size_t line, const std::wstring& text, const std::wstring& read) {
    const std::wstring written = WithoutLineEnd(text);
    if (written == read) return;
    const auto [at, other] = std::ranges::mismatch(written, read);
    Loss(line, static_cast<std::size_t>(at - written.begin()) + 1, "read as " + ToUtf8(read));
  }
  void CompareNumber(std::size_t line, const std::wstring& text, std::wstring_view name,
                     std::int32_t number) {
    std::wstring start = L"\"";
    start.append(name).append(kDwordMarker);
    const bool isRead =
        text.starts_with(start) &&
        PlainNumber(std::wstring_view(text).substr(start.size())) == FormatDecimal(number);
    if (!isRead) Compare(line, text, NumberLine(name, number));
  }

  void CheckValue(const StoredValue& value) {
    const StoredValue* last = document_.Find(value.key, value.name);
    if (last == &value || (last && AreSame(document_, *last, document_, value))) return;
    Loss(value.line, 1,
         last ? "overruled by line " + std::to_string(numbers_[last->line])
              : std::string("deleted by a later line"));
  }

  // The line that begins it. An exact one stands for a text with a line break.
  void CompareStart(std::size_t line, const std::wstring& name, std::wstring_view content) {
    if (document_.Lines()[line].use == LineUse::kMalformed) return;
    const std::wstring text = document_.TextOf(line);
    const bool isExact = document_.IsCopy() && text.starts_with(L"hex:");
    const std::wstring ended = std::wstring(content) + L'\0';
    Compare(line, text,
            isExact ? ExactLine({name, kTypeString, BytesOf(ended)}) : StringLine(name, content));
  }
  void CompareField(std::size_t line, std::wstring name, std::int32_t number) {
    if (document_.Lines()[line].use == LineUse::kMalformed) return;
    const std::wstring text = document_.TextOf(line);
    const std::wstring spelled = text.substr(std::min<std::size_t>(1, text.size()), name.size());
    if (EqualIgnoringCase(spelled, name)) name = spelled;
    CompareNumber(line, text, name, number);
  }

  void CheckCategory(const CategoryLines& each) {
    TakeRecord(each.firstLine, each.lastLine);
    CompareStart(each.firstLine, L"Category", each.name);
    CompareField(each.firstLine + 1, L"FiltersFlag", each.flags);
    CompareField(each.lastLine, L"Color", each.color);
    if (each.lastLine - each.firstLine > 2) {
      Loss(each.lastLine - 1, 1, "one line too many in this record: it is passed over");
    }
    if (each.name.empty()) Loss(each.firstLine, 1, "no category is without a name: not read");
    const CategoryLines& last = *document_.FindCategory(each.name);
    if (&last != &each) Twice(each.firstLine, last.firstLine, "category", AreSame(last, each));
  }

  void CheckFilter(const FilterLines& each) {
    TakeRecord(each.firstLine, each.lastLine);
    CompareStart(each.firstLine, L"FilterName", each.title);
    CompareField(each.firstLine + 1, L"Index", each.index);
    CompareField(each.firstLine + 2, L"VisibleState", each.visible ? 1 : 0);
    CompareField(each.lastLine, L"IncludeUncategorized", each.uncategorized ? 1 : 0);
    if (each.index < 1 || each.index > kFilterCount) {
      Loss(each.firstLine, 1, "no filter has that index: it is passed over");
    }
    const FilterLines& last = *document_.FindFilter(each.index);
    if (&last != &each) Twice(each.firstLine, last.firstLine, "filter", AreSame(last, each));
  }

  void Twice(std::size_t line, std::size_t last, const std::string& what, bool isSame) {
    const std::string text =
        "this " + what + " stands in line " + std::to_string(numbers_[last]) + " again";
    if (isSame) return Note(line, text);
    Loss(line, 1, text + ", which overrules it");
  }

  void TakeRecord(std::size_t firstLine, std::size_t lastLine) {
    for (std::size_t line = firstLine; line <= lastLine; ++line) isTaken_[line] = true;
  }

  void CheckCutOffRecords() {
    for (std::size_t line = 0; line < document_.Lines().size(); ++line) {
      const LineUse use = document_.Lines()[line].use;
      const bool isOfRecord = use == LineUse::kRecordStart || use == LineUse::kRecordNumber;
      if (isOfRecord && !isTaken_[line]) {
        Loss(line, 1, "of a record that the end of the file cuts off: not read");
      }
    }
  }

  void NoteMissingFilters() {
    std::string missing;
    for (std::int32_t index = 1; index <= kFilterCount; ++index) {
      if (document_.FindFilter(index)) continue;
      missing += (missing.empty() ? "" : ", ") + std::to_string(index);
    }
    if (missing.empty()) return;
    findings_.push_back({0, 0, false, "filters that are missing and stay as they are: " + missing});
  }

  void CheckMeaning(const BackupSettings& backup, const Meaning& meaning, Setting& setting,
                    const StoredValue& value) {
    if (meaning.kind == ValueKind::kBits) return;
    const bool isNumber = meaning.kind != ValueKind::kText;
    if (value.type != (isNumber ? kTypeDword : kTypeString)) {
      return Note(value.line,
                  ToUtf8(meaning.name) + (isNumber ? " is to be a number" : " is to be a text"));
    }
    if (!isNumber ||
        NumberOfWords(meaning, setting, FormatDecimal(value.number), backup.Device())) {
      return;
    }
    Note(value.line, ToUtf8(meaning.name) + " (" + Quoted(meaning.label) + ") cannot be " +
                         std::to_string(value.number) + ", but " +
                         ToUtf8(ChoicesInWords(meaning, setting, backup.Device())));
  }

  const BackupDocument& document_;
  std::vector<std::size_t> numbers_;
  std::vector<bool> isTaken_;  // of a record that was read whole
  std::vector<Finding> findings_;
};

}  // namespace

std::vector<Finding> CheckLines(const BackupDocument& document) {
  Checker checker(document);
  checker.CheckAllLines();
  return checker.Findings();
}

std::vector<Finding> CheckBackup(BackupSettings& backup) {
  Checker checker(backup.Document());
  checker.CheckAllLines();
  checker.CheckMeanings(backup);
  return checker.Findings();
}

}  // namespace tidewell
