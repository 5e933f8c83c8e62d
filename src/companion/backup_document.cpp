#include "companion/backup_document.h"

#include <algorithm>
#include <utility>

#include "backup/exact_lines.h"
#include "backup/registry_text.h"
#include "backup/section_names.h"
#include "platform/text.h"

namespace tidewell {

namespace {

constexpr wchar_t kLineEnd = L'\n';

bool IsWithin(const std::wstring& tree, const std::wstring& path) {
  return path.starts_with(tree) && (path.size() == tree.size() || path[tree.size()] == L'\\');
}

std::wstring CategoryHeader() {
  return L"[" + std::wstring(kCategoriesSection) + L"]\n";
}
std::wstring FilterHeader() {
  return L"[" + std::wstring(kFiltersSection) + L"]\n";
}

// Whether the reader makes exactly that of a line.
bool IsReadAs(const std::wstring& line, const std::wstring& name, const NewValue& value) {
  ParsedValue parsed;
  if (line.size() > kBackupLineCapacity || line.find(L'\0') != std::wstring::npos) return false;
  if (line.find(kLineEnd) != line.size() - 1 || !ParseValueLine(line, parsed)) return false;
  if (parsed.name != name || parsed.isNumber != value.isNumber) return false;
  if (value.isNumber) return parsed.number == value.number;
  return parsed.text == value.text && parsed.text != kDeletedString;
}

// Whether a header of that path is read as one.
bool CanHead(const std::wstring& path) {
  return path.find(kLineEnd) == std::wstring::npos && path.size() + 4 <= kBackupLineCapacity &&
         !path.starts_with(L"::");
}

// The last one that fits: it is the one that has a say.
template <typename Records, typename Fits>
auto FindLast(const Records& records, Fits fits) {
  return std::find_if(records.rbegin(), records.rend(), fits);
}

}  // namespace

std::wstring Folded(std::wstring_view text) {
  std::wstring folded(text);
  std::ranges::transform(folded, folded.begin(), FoldCase);
  return folded;
}

std::wstring FoldedPath(std::wstring_view path) {
  std::wstring folded;
  for (const wchar_t unit : path) {
    if (unit != L'\\' || !folded.ends_with(L'\\')) folded += FoldCase(unit);
  }
  if (folded.ends_with(L'\\')) folded.pop_back();
  return folded;
}

bool AreSame(const StoredValue& left, const StoredValue& right) {
  if (left.type != right.type) return false;
  if (left.type == kTypeDword) return left.number == right.number;
  return left.type == kTypeString ? left.text == right.text : left.data == right.data;
}

// Hears what the reader finds.
class BackupDocument::Filler final : public TextTarget {
 public:
  Filler(BackupDocument& document, const TextReader& stream)
      : document_(document), stream_(stream) {}

  void TakeLine(LineUse use) override {
    const std::size_t begin = document_.lines_.empty() ? 0 : document_.lines_.back().end;
    document_.lines_.push_back({begin, stream_.Position(), use});
    if (use == LineUse::kMark) document_.isCopy_ = true;
    if (use == LineUse::kValue || use == LineUse::kExactValue || use == LineUse::kIgnored) {
      if (key_ != kNowhere) document_.keys_[key_].last = Line();
    } else if (use != LineUse::kRecordStart && use != LineUse::kRecordNumber &&
               use != LineUse::kMalformed) {
      key_ = kNowhere;
      recordStart_ = Line() + 1;
    }
  }

  bool OpenKey(const std::wstring& path) override {
    const std::wstring folded = FoldedPath(path);
    const auto [place, isNew] = document_.keyPlaces_.emplace(folded, document_.keys_.size());
    if (isNew) document_.keys_.push_back({path});
    key_ = place->second;
    document_.keys_[key_].header = document_.keys_[key_].last = Line();
    if (path == kProductKey) ForgetProduct(folded);
    return true;
  }

  void TakeValue(const ParsedValue& value) override {
    const std::wstring id = document_.EffectId(key_, value.name);
    if (!value.isNumber && value.text == kDeletedString) {
      document_.inEffect_.erase(id);
      return;
    }
    StoredValue stored{Line(), key_, value.name};
    stored.type = value.isNumber ? kTypeDword : kTypeString;
    stored.number = value.number;
    if (!value.isNumber) stored.text = value.text;
    Add(id, std::move(stored));
  }

  void TakeExactValue(const EnumeratedValue& value) override {
    StoredValue stored{Line(), key_, value.name, value.type};
    stored.data = value.data;
    stored.text = TextOfBytes(value.data);
    stored.text.resize(std::min(stored.text.find(L'\0'), stored.text.size()));
    for (std::size_t i = 0; i < 4 && i < value.data.size(); ++i) {
      stored.number |= std::to_integer<std::int32_t>(value.data[i]) << (8 * i);
    }
    Add(document_.EffectId(key_, value.name), std::move(stored));
  }

  void TakeCategory(const std::wstring& name, std::int32_t flags, std::int32_t color) override {
    document_.categories_.push_back({recordStart_, Line(), name, flags, color});
    recordStart_ = Line() + 1;
  }

  void TakeFilter(std::int32_t index, const std::wstring& title, bool visible,
                  bool uncategorized) override {
    document_.filters_.push_back({recordStart_, Line(), index, title, visible, uncategorized});
    recordStart_ = Line() + 1;
  }

 private:
  std::size_t Line() const { return document_.lines_.size() - 1; }

  // Its header takes away all that was read into it so far.
  void ForgetProduct(const std::wstring& folded) {
    std::erase_if(document_.inEffect_, [&](const auto& entry) {
      const StoredValue& value = document_.values_[entry.second];
      return IsWithin(folded, FoldedPath(document_.keys_[value.key].path));
    });
    document_.productHeader_ = Line();
  }

  void Add(const std::wstring& id, StoredValue stored) {
    const auto [place, isNew] = document_.inEffect_.emplace(id, document_.values_.size());
    if (!isNew) {
      stored.earlier = place->second;
      place->second = document_.values_.size();
    }
    document_.values_.push_back(std::move(stored));
  }

  BackupDocument& document_;
  const TextReader& stream_;
  std::size_t key_ = kNowhere;
  std::size_t recordStart_ = 0;
};

BackupDocument::BackupDocument(std::vector<std::byte> bytes) : bytes_(std::move(bytes)) {
  TextReader stream(bytes_);
  Filler filler(*this, stream);
  RegistryTextReader reader(stream, filler);
  isRegistryText_ = reader.Begin();
  if (isRegistryText_) reader.Read();
}

std::wstring BackupDocument::TextOf(std::size_t line) const {
  const DocumentLine& place = lines_[line];
  return TextOfBytes(std::span(bytes_).subspan(place.begin, place.end - place.begin));
}

std::size_t BackupDocument::NumberOf(std::size_t line) const {
  std::size_t number = 1;
  for (std::size_t i = 0; i < line; ++i) number += EndsWhole(i) ? 1 : 0;
  return number;
}

// A line end parts the two, for no name has one.
std::wstring BackupDocument::EffectId(std::size_t key, std::wstring_view name) const {
  return FormatDecimal(static_cast<std::int32_t>(key)) + kLineEnd + Folded(name);
}

std::size_t BackupDocument::KeyOf(std::wstring_view path) const {
  const auto found = keyPlaces_.find(FoldedPath(path));
  return found == keyPlaces_.end() ? kNowhere : found->second;
}

const StoredValue* BackupDocument::Find(std::wstring_view path, std::wstring_view name) const {
  const std::size_t key = KeyOf(path);
  if (key == kNowhere) return nullptr;
  const auto found = inEffect_.find(EffectId(key, name));
  return found == inEffect_.end() ? nullptr : &values_[found->second];
}

bool BackupDocument::IsInEffect(std::size_t value) const {
  const auto found = inEffect_.find(EffectId(values_[value].key, values_[value].name));
  return found != inEffect_.end() && found->second == value;
}

// With its line end.
bool BackupDocument::EndsWhole(std::size_t line) const {
  const DocumentLine& place = lines_[line];
  return place.end >= place.begin + 2 && bytes_[place.end - 2] == std::byte{kLineEnd} &&
         bytes_[place.end - 1] == std::byte{0};
}

// Neither the end nor the beginning of a line that the reader took in pieces.
bool BackupDocument::StandsAlone(std::size_t line) const {
  return (line == 0 || EndsWhole(line - 1)) && (EndsWhole(line) || line + 1 == lines_.size());
}

EditStatus BackupDocument::Set(const std::wstring& path, const std::wstring& name,
                               const NewValue& value) {
  std::wstring line;
  if (value.isNumber) {
    AppendDwordLine(line, name, static_cast<std::uint32_t>(value.number));
  } else {
    AppendStringLine(line, name, value.text);
  }
  line += kLineEnd;
  if (!IsReadAs(line, name, value)) return EditStatus::kUnwritable;
  return SetLine(path, name, std::move(line));
}

EditStatus BackupDocument::Take(const BackupDocument& from, const StoredValue& value) {
  const std::wstring& path = from.keys_[value.key].path;
  if (value.type == kTypeDword || value.type == kTypeString) {
    const EditStatus status =
        Set(path, value.name, {value.type == kTypeDword, value.number, value.text});
    if (status != EditStatus::kUnwritable || !isCopy_) return status;
  }
  if (!isCopy_ || value.data.empty()) return EditStatus::kUnwritable;
  std::wstring line;
  AppendExactLine(line, {value.name, value.type, value.data});
  return SetLine(path, value.name, line + kLineEnd);
}

EditStatus BackupDocument::SetLine(const std::wstring& path, const std::wstring& name,
                                   std::wstring line) {
  const StoredValue* present = Find(path, name);
  if (!present) return Insert(path, line);
  if (!StandsAlone(present->line)) return EditStatus::kEntangled;
  // A number's line may have its own line end.
  if (line.find(kDwordMarker) != std::wstring::npos && TextOf(present->line).ends_with(L"\r\n")) {
    line.insert(line.size() - 1, 1, L'\r');
  }
  Edit& edit = edits_[present->line];
  edit.isReplaced = true;
  edit.instead = std::move(line);
  return EditStatus::kDone;
}

// At the end of the key's last section, or in a new one.
EditStatus BackupDocument::Insert(const std::wstring& path, const std::wstring& line) {
  const std::size_t key = KeyOf(path);
  const bool isGone =
      productHeader_ != kNowhere && key != kNowhere && keys_[key].header < productHeader_;
  if (key == kNowhere || isGone) {
    if (!CanHead(path)) return EditStatus::kUnwritable;
    added_[path] += line;
    const bool fits = productHeader_ == kNowhere || EndsWhole(keys_[KeyOf(kProductKey)].last);
    return fits ? EditStatus::kDone : EditStatus::kEntangled;
  }
  if (!EndsWhole(keys_[key].last)) return EditStatus::kEntangled;
  edits_[keys_[key].last].behind += line;
  return EditStatus::kDone;
}

EditStatus BackupDocument::Remove(const StoredValue& value) {
  std::vector<std::size_t> all{value.line};
  for (std::size_t earlier = value.earlier; earlier != kNowhere;
       earlier = values_[earlier].earlier) {
    all.push_back(values_[earlier].line);
  }
  if (!std::ranges::all_of(all, [&](std::size_t line) { return StandsAlone(line); })) {
    return EditStatus::kEntangled;
  }
  for (const std::size_t line : all) {
    edits_[line].isReplaced = true;
    edits_[line].instead.clear();
  }
  return EditStatus::kDone;
}

std::wstring BackupDocument::LinesOf(std::size_t firstLine, std::size_t lastLine) const {
  std::wstring lines;
  for (std::size_t line = firstLine; line <= lastLine; ++line) lines += TextOf(line);
  if (!lines.ends_with(kLineEnd)) lines += kLineEnd;
  return lines;
}

EditStatus BackupDocument::ReplaceRecord(std::size_t firstLine, std::size_t lastLine,
                                         const std::wstring& lines) {
  for (std::size_t line = firstLine; line <= lastLine; ++line) {
    if (!StandsAlone(line)) return EditStatus::kEntangled;
  }
  for (std::size_t line = firstLine; line <= lastLine; ++line) {
    edits_[line].isReplaced = true;
    edits_[line].instead = line == firstLine ? lines : L"";
  }
  return EditStatus::kDone;
}

// At the end of the section, or in a new one at the end of the file.
EditStatus BackupDocument::AddRecord(LineUse section, const std::wstring& lines) {
  const bool isCategory = section == LineUse::kCategories;
  const std::wstring header = isCategory ? CategoryHeader() : FilterHeader();
  std::size_t last = kNowhere;
  for (std::size_t line = 0; line < lines_.size(); ++line) {
    if (lines_[line].use == section) last = line;
  }
  if (last == kNowhere) {
    if (!EndsWhole(lines_.size() - 1)) return EditStatus::kEntangled;
    std::wstring& behind = edits_[lines_.size() - 1].behind;
    if (behind.find(header) == std::wstring::npos) behind += kLineEnd + header;
    behind += lines;
    return EditStatus::kDone;
  }
  while (last + 1 < lines_.size() && lines_[last + 1].use != LineUse::kEmpty) ++last;
  // A record that the end of the text cuts off would go on in the new lines.
  const bool isHeader = lines_[last].use == section;
  const std::size_t lastOfRecords =
      isCategory ? (categories_.empty() ? kNowhere : categories_.back().lastLine)
                 : (filters_.empty() ? kNowhere : filters_.back().lastLine);
  if (!EndsWhole(last) || (!isHeader && last != lastOfRecords)) return EditStatus::kEntangled;
  edits_[last].behind += lines;
  return EditStatus::kDone;
}

EditStatus BackupDocument::TakeCategory(const BackupDocument& from, const CategoryLines& category) {
  const std::wstring lines = from.LinesOf(category.firstLine, category.lastLine);
  const auto own = FindLast(
      categories_, [&](const CategoryLines& other) { return other.name == category.name; });
  if (own != categories_.rend()) return ReplaceRecord(own->firstLine, own->lastLine, lines);
  return AddRecord(LineUse::kCategories, lines);
}

EditStatus BackupDocument::TakeFilter(const BackupDocument& from, const FilterLines& filter) {
  const std::wstring lines = from.LinesOf(filter.firstLine, filter.lastLine);
  const auto own =
      FindLast(filters_, [&](const FilterLines& other) { return other.index == filter.index; });
  if (own != filters_.rend()) return ReplaceRecord(own->firstLine, own->lastLine, lines);
  return AddRecord(LineUse::kFilters, lines);
}

std::vector<std::byte> BackupDocument::Edited() const {
  // New keys stand behind the product's own values, where no header takes them away again.
  std::size_t place = isCopy_ ? 1 : 0;
  if (productHeader_ != kNowhere) place = keys_[KeyOf(kProductKey)].last;
  std::wstring sections;
  for (const auto& [path, lines] : added_) {
    std::wstring section = L"[";
    section.append(path).append(L"]\n").append(lines);
    sections += productHeader_ != kNowhere ? kLineEnd + section : section + kLineEnd;
  }

  std::vector<std::byte> bytes;
  bytes.reserve(bytes_.size());
  const auto add = [&](const std::wstring& text) {
    const std::vector<std::byte> units = BytesOf(text);
    bytes.insert(bytes.end(), units.begin(), units.end());
  };
  const auto at = [&](std::size_t offset) {
    return bytes_.begin() + static_cast<std::ptrdiff_t>(offset);
  };
  for (std::size_t line = 0; line < lines_.size(); ++line) {
    const auto edit = edits_.find(line);
    if (edit != edits_.end() && edit->second.isReplaced) {
      add(edit->second.instead);
    } else {
      bytes.insert(bytes.end(), at(lines_[line].begin), at(lines_[line].end));
    }
    if (edit != edits_.end()) add(edit->second.behind);
    if (line == place) add(sections);
  }
  const std::size_t end = lines_.empty() ? 0 : lines_.back().end;
  bytes.insert(bytes.end(), at(end), bytes_.end());
  return bytes;
}

}  // namespace tidewell
