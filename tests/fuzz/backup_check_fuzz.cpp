#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <optional>

#include "backup/exact_lines.h"
#include "backup/section_names.h"
#include "companion/backup_check.h"
#include "tests/fuzz/fuzz_targets.h"
#include "tests/support/backup_text.h"
#include "tests/support/test_device.h"

namespace tidewell::fuzz {

namespace {

// Digits, a sign before and spaces around them; nothing where there is more, or too large a number.
std::optional<std::int32_t> NumberSaid(std::wstring_view text) {
  constexpr std::wstring_view kSpaces = L" \t\n\v\f\r";
  while (!text.empty() && kSpaces.find(text.front()) != kSpaces.npos) text.remove_prefix(1);
  while (!text.empty() && kSpaces.find(text.back()) != kSpaces.npos) text.remove_suffix(1);
  const bool isNegative = text.starts_with(L'-');
  if (isNegative || text.starts_with(L'+')) text.remove_prefix(1);
  std::int64_t number = 0;
  for (const wchar_t digit : text) {
    if (digit < L'0' || digit > L'9' || number > 0xFFFFFFFF) return std::nullopt;
    number = 10 * number + (digit - L'0');
  }
  if (isNegative) number = -number;
  if (text.empty() || number != static_cast<std::int32_t>(number)) return std::nullopt;
  return static_cast<std::int32_t>(number);
}

// What an import is asked to do, told by the forms of lines and not by what the reader makes of
// them, and whether it was done.
class Wishes {
 public:
  Wishes(const TestDevice& device, Bytes bytes) : bytes_(bytes), device_(device) {
    isGranted_ = bytes.size() % 2 == 0 && ImportBytes(registry_, catalog_, bytes);
    const std::wstring text = TextOfBytes(bytes);
    isCopy_ = text.starts_with(L'\n' + std::wstring(kCopyMark));
    for (std::size_t start = 0; start < text.size();) {
      const std::size_t end = std::min(text.find(L'\n', start), text.size());
      TakeLine(text.substr(start, end - start), end != text.size());
      start = end + 1;
    }
    TakeLine(L"", true);
  }

  bool AreGranted() const { return isGranted_; }

 private:
  void TakeLine(const std::wstring& line, bool isWhole) {
    const bool isMark = isCopy_ && line + L'\n' == kCopyMark;
    if (header_.empty()) {
      const bool isHeader = line.size() > 1 && line.front() == L'[' && line.back() == L']';
      if (isHeader && isWhole) header_ = line;
      Expect(line.empty() || isMark || !header_.empty());
    } else if (!line.empty()) {
      lines_.push_back(line);
    } else {
      EndSection();
      header_.clear();
      lines_.clear();
    }
  }

  void EndSection() {
    std::wstring path = header_.substr(1, header_.size() - 2);
    if (path == kCategoriesSection) return ExpectRecords({L"Category", L"FiltersFlag", L"Color"});
    if (path == kFiltersSection) {
      return ExpectRecords({L"FilterName", L"Index", L"VisibleState", L"IncludeUncategorized"});
    }
    if (isCopy_) ParseExactSectionName(std::wstring(path), path);
    const auto key = registry_.Open(RegistryRoot::kCurrentUser, path);
    Expect(key && path.find(L'\0') == path.npos);
    for (const std::wstring& line : lines_) {
      EnumeratedValue wanted;
      ValueInfo info;
      if (!Expect(ParseLine(line, wanted))) return;
      std::vector<std::byte> data(wanted.data.size() + 1);
      Expect(key->Query(wanted.name, data, info) == kStatusSuccess && info.type == wanted.type &&
             std::ranges::equal(wanted.data, Bytes(data).first(info.size)));
    }
  }

  bool ParseLine(const std::wstring& line, EnumeratedValue& value) const {
    if (line.find(L'\0') != line.npos) return false;
    if (isCopy_ && ParseExactLine(line + L'\n', value)) {
      std::wstring again;
      AppendExactLine(again, value);
      return again == line && value.name.find(L'\0') == value.name.npos;
    }
    const std::size_t textMark = line.find(kStringMarker);
    const std::size_t mark = textMark != line.npos ? textMark : line.find(kDwordMarker);
    if (!line.starts_with(L'"') || mark == 0 || mark == line.npos) return false;
    value.name = line.substr(1, mark - 1);
    if (textMark != line.npos) {
      const std::wstring text = line.substr(mark + kStringMarker.size());
      value.type = kTypeString;
      value.data = BytesOf(text.substr(0, std::max<std::size_t>(text.size(), 1) - 1) + L'\0');
      return text.ends_with(L'"');
    }
    const auto number = NumberSaid(std::wstring_view(line).substr(mark + kDwordMarker.size()));
    const auto bytes = std::bit_cast<std::array<std::byte, 4>>(number.value_or(0));
    value.type = kTypeDword;
    value.data.assign(bytes.begin(), bytes.end());
    return number.has_value();
  }

  // Each a text, then numbers.
  void ExpectRecords(const std::vector<std::wstring>& names) {
    Expect(lines_.size() % names.size() == 0);
    std::wstring text;
    std::array<std::int32_t, 4> numbers{};
    for (std::size_t i = 0; isGranted_ && i < lines_.size(); ++i) {
      const std::size_t field = i % names.size();
      EnumeratedValue value;
      const bool isRead = ParseLine(lines_[i], value) && value.data.size() >= 2;
      if (isRead && field == 0) {
        text = TextUpToZero(value.data);
        Expect(value.name == names[0] && value.type == kTypeString &&
               value.data == BytesOf(text + L'\0'));
      } else if (Expect(isRead && lines_[i].front() == L'"' && value.type == kTypeDword &&
                        EqualIgnoringCase(value.name, names[field]))) {
        std::memcpy(&numbers[field], value.data.data(), 4);
        const bool isLast = field + 1 == names.size();
        if (isLast)
          Expect(names.size() == 3 ? HasCategory(text, numbers) : HasFilter(text, numbers));
      }
    }
  }

  // On a device that has it.
  bool HasCategory(const std::wstring& name, const std::array<std::int32_t, 4>& numbers) {
    MemoryRegistry registry;
    CategoryCatalog catalog(device_.machine, device_.store);
    CategoryRecord* record = catalog.Add({name, 1, false});
    return record && ImportBytes(registry, catalog, bytes_) &&
           record->filterFlags == static_cast<std::uint32_t>(numbers[1]) &&
           record->color == static_cast<std::uint32_t>(numbers[2]);
  }
  bool HasFilter(const std::wstring& title, const std::array<std::int32_t, 4>& numbers) {
    const FilterRecord* record = catalog_.FindFilter(numbers[1]);
    return record && record->title == title && record->visible == numbers[2] &&
           record->includeUncategorized == numbers[3];
  }

  bool Expect(bool isDone) { return isGranted_ = isGranted_ && isDone; }

  Bytes bytes_;
  const TestDevice& device_;
  MemoryRegistry registry_;
  CategoryCatalog catalog_{device_.machine, device_.store};
  bool isGranted_ = false;
  bool isCopy_ = false;
  std::wstring header_;
  std::vector<std::wstring> lines_;
};

}  // namespace

// The check finds a loss exactly where an import does not bring all that the file says.
void backup_check(Bytes bytes) {
  static const TestDevice device;
  const BackupDocument document({bytes.begin(), bytes.end()});
  if (!document.IsRegistryText()) return;
  const bool hasLoss = std::ranges::any_of(CheckLines(document), &Finding::isLoss);
  Require(hasLoss != Wishes(device, bytes).AreGranted());
}

}  // namespace tidewell::fuzz
