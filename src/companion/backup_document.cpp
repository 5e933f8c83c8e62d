#include "companion/backup_document.h"

#include <algorithm>
#include <array>
#include <bit>
#include <utility>

#include "backup/exact_lines.h"
#include "backup/registry_text.h"
#include "backup/section_names.h"
#include "platform/text.h"
#include "settings/registry_values.h"

namespace tidewell {

namespace {

constexpr wchar_t kLineEnd = L'\n';

std::wstring HeaderOf(std::wstring_view section) {
  return L"[" + std::wstring(section) + L"]\n";
}

// What the registry holds of it.
std::vector<std::byte> DataOf(const NewValue& value) {
  if (!value.isNumber) return BytesOf(value.text + L'\0');
  const auto bytes = std::bit_cast<std::array<std::byte, 4>>(value.number);
  return {bytes.begin(), bytes.end()};
}

// Whether the reader makes exactly that of a line.
bool IsReadAs(const std::wstring& line, std::wstring_view name, const NewValue& value) {
  ParsedValue parsed;
  if (line.size() > kBackupLineCapacity || line.find(L'\0') != std::wstring::npos) return false;
  if (line.find(kLineEnd) != line.size() - 1 || !ParseValueLine(line, parsed)) return false;
  if (parsed.name != name || parsed.isNumber != value.isNumber) return false;
  if (value.isNumber) return parsed.number == value.number;
  return parsed.text == value.text && parsed.text != kDeletedString;
}

// The system takes names up to their first zero.
std::wstring_view UpToZero(std::wstring_view name) {
  return name.substr(0, name.find(L'\0'));
}

// One backslash between the names, none at the end.
std::wstring PlainPath(std::wstring_view path) {
  std::wstring plain;
  for (const wchar_t unit : UpToZero(path)) {
    if (unit != L'\\' || !plain.ends_with(L'\\')) plain += unit;
  }
  if (plain.ends_with(L'\\')) plain.pop_back();
  return plain;
}

void AppendNumberLine(std::wstring& lines, std::wstring_view name, std::int32_t number) {
  AppendDwordLine(lines, name, static_cast<std::uint32_t>(number));
  lines += kLineEnd;
}

// The line that begins a record; empty when there is none that is read as that text.
std::wstring RecordStart(const std::wstring& name, std::wstring_view text, bool isCopy) {
  std::wstring line;
  AppendStringLine(line, name, text);
  line += kLineEnd;
  const bool isOneLine =
      line.find(kLineEnd) == line.size() - 1 && line.find(L'\0') == std::wstring::npos;
  if (isOneLine && line.size() <= kBackupLineCapacity) return line;
  if (!isCopy) return {};
  std::wstring exact;
  AppendExactLine(exact, {name, kTypeString, BytesOf(std::wstring(text) + L'\0')});
  return exact + kLineEnd;
}

// Whether a header of that path is read as one.
bool CanHead(std::wstring_view path) {
  return path.find(kLineEnd) == std::wstring_view::npos && path.size() + 4 <= kBackupLineCapacity &&
         !path.starts_with(L"::");
}

}  // namespace

bool AreSame(const CategoryLines& left, const CategoryLines& right) {
  return left.flags == right.flags && left.color == right.color;
}
bool AreSame(const FilterLines& left, const FilterLines& right) {
  return left.title == right.title && left.visible == right.visible &&
         left.uncategorized == right.uncategorized;
}

bool AreSame(const BackupDocument& left, const StoredValue& inLeft, const BackupDocument& right,
             const StoredValue& inRight) {
  // Nearly always the lines tell.
  if (std::ranges::equal(left.BytesIn(inLeft.line), right.BytesIn(inRight.line))) return true;
  if (inLeft.type != inRight.type) return false;
  const bool areNumbers = inLeft.type == kTypeDword && !inLeft.isExact && !inRight.isExact;
  return areNumbers ? inLeft.number == inRight.number
                    : left.DataOf(inLeft) == right.DataOf(inRight);
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
    if (use == LineUse::kEmpty || use == LineUse::kKey) {
      key_ = kNowhere;
      records_ = nullptr;
    } else if (use == LineUse::kCategories || use == LineUse::kFilters) {
      const bool areCategories = use == LineUse::kCategories;
      records_ = areCategories ? &document_.categorySection_ : &document_.filterSection_;
      *records_ = {Line(), Line(), kNowhere};
      recordStart_ = Line() + 1;
    } else if (records_) {
      records_->last = Line();
    } else if (key_ != kNowhere) {
      document_.keys_[key_].last = Line();
    }
  }

  bool OpenKey(const std::wstring& path) override {
    const std::wstring plain = PlainPath(path);
    key_ = document_.KeyOf(plain);
    if (key_ == kNowhere) {
      key_ = document_.keys_.size();
      const std::wstring_view kept = document_.Keep(plain);
      document_.keys_.push_back({kept, 0, 0, IsWithinKey(kProductKey, kept)});
      document_.keyPlaces_.Add(NameIndex::HashOf(kNowhere, kept), key_);
    }
    document_.keys_[key_].header = document_.keys_[key_].last = Line();
    // This header takes away all that was read into it so far.
    if (path == kProductKey) document_.productHeader_ = Line();
    return true;
  }

  void TakeValue(const ParsedValue& value) override {
    if (value.isNumber || value.text != kDeletedString) {
      Add(value.name, value.isNumber ? kTypeDword : kTypeString, value.number, false);
    } else {
      Overrule(document_.LastOf(document_.SlotOf(key_, value.name)));
    }
  }

  void TakeExactValue(const EnumeratedValue& value) override {
    std::int32_t number = 0;
    for (std::size_t i = 0; i < 4 && i < value.data.size(); ++i) {
      number |= std::to_integer<std::int32_t>(value.data[i]) << (8 * i);
    }
    Add(UpToZero(value.name), value.type, number, true);
  }

  void TakeCategory(const std::wstring& name, std::int32_t flags, std::int32_t color) override {
    const std::wstring_view kept = document_.Keep(name);
    document_.lastCategories_.insert_or_assign(kept, document_.categories_.size());
    document_.categories_.push_back({recordStart_, Line(), kept, flags, color});
    EndRecord();
  }

  void TakeFilter(std::int32_t index, const std::wstring& title, bool visible,
                  bool uncategorized) override {
    document_.lastFilters_.insert_or_assign(index, document_.filters_.size());
    document_.filters_.push_back(
        {recordStart_, Line(), index, document_.Keep(title), visible, uncategorized});
    EndRecord();
  }

 private:
  std::size_t Line() const { return document_.lines_.size() - 1; }

  void EndRecord() {
    records_->lastTaken = Line();
    recordStart_ = Line() + 1;
  }

  // The line before that is in effect no more, if one was.
  std::size_t Overrule(std::size_t value) {
    if (value == kNowhere || !document_.IsInEffect(value)) return kNowhere;
    document_.values_[value].isOverruled = true;
    return value;
  }

  void Add(std::wstring_view name, std::uint32_t type, std::int32_t number, bool isExact) {
    StoredValue stored{Line(), key_, document_.Keep(name), type, number, kNowhere, isExact, false};
    const std::size_t place = document_.values_.size();
    const std::size_t slot = document_.SlotOf(key_, name);
    stored.earlier = Overrule(document_.LastOf(slot));
    if (slot == NameIndex::kNoSlot) {
      document_.valuePlaces_.Add(NameIndex::HashOf(key_, name), place);
    } else {
      document_.valuePlaces_.Move(slot, place);
    }
    document_.values_.push_back(stored);
  }

  BackupDocument& document_;
  const TextReader& stream_;
  std::size_t key_ = kNowhere;
  RecordSection* records_ = nullptr;
  std::size_t recordStart_ = 0;
};

BackupDocument::BackupDocument(std::vector<std::byte> bytes)
    : arena_(std::make_unique<std::pmr::monotonic_buffer_resource>()),
      bytes_(std::move(bytes)),
      lastCategories_(arena_.get()),
      lastFilters_(arena_.get()) {
  TextReader stream(bytes_);
  Filler filler(*this, stream);
  RegistryTextReader reader(stream, filler);
  isRegistryText_ = reader.Begin();
  if (isRegistryText_) reader.Read();
}

std::wstring_view BackupDocument::Keep(std::wstring_view text) {
  auto* const kept =
      static_cast<wchar_t*>(arena_->allocate(text.size() * sizeof(wchar_t), alignof(wchar_t)));
  std::ranges::copy(text, kept);
  return {kept, text.size()};
}

std::span<const std::byte> BackupDocument::BytesIn(std::size_t line) const {
  return std::span(bytes_).subspan(lines_[line].begin, lines_[line].end - lines_[line].begin);
}

std::wstring BackupDocument::TextOf(std::size_t line) const {
  return TextOfBytes(BytesIn(line));
}

bool BackupDocument::EndsWhole(std::size_t line) const {
  const DocumentLine& place = lines_[line];
  return place.end >= place.begin + 2 && bytes_[place.end - 2] == std::byte{kLineEnd} &&
         bytes_[place.end - 1] == std::byte{0};
}

std::size_t BackupDocument::KeyOf(std::wstring_view path) const {
  const std::wstring plain = PlainPath(path);
  const std::size_t slot =
      keyPlaces_.Find(NameIndex::HashOf(kNowhere, plain),
                      [&](std::size_t key) { return EqualIgnoringCase(keys_[key].path, plain); });
  return slot == NameIndex::kNoSlot ? kNowhere : keyPlaces_.PlaceIn(slot);
}

std::size_t BackupDocument::SlotOf(std::size_t key, std::wstring_view name) const {
  return valuePlaces_.Find(NameIndex::HashOf(key, name), [&](std::size_t value) {
    return values_[value].key == key && EqualIgnoringCase(values_[value].name, name);
  });
}

std::size_t BackupDocument::LastOf(std::size_t slot) const {
  return slot == NameIndex::kNoSlot ? kNowhere : valuePlaces_.PlaceIn(slot);
}

const StoredValue* BackupDocument::Find(std::wstring_view path, std::wstring_view name) const {
  return Find(KeyOf(path), name);
}

const StoredValue* BackupDocument::Find(std::size_t key, std::wstring_view name) const {
  const std::size_t last = LastOf(SlotOf(key, name));
  return last != kNowhere && IsInEffect(last) ? &values_[last] : nullptr;
}

const StoredValue* BackupDocument::Find(std::size_t key, std::wstring_view name,
                                        std::size_t& guess) const {
  const bool isRight = guess < values_.size() && values_[guess].key == key &&
                       values_[guess].name == name && IsInEffect(guess);
  const StoredValue* found = isRight ? &values_[guess] : Find(key, name);
  if (found) guess = static_cast<std::size_t>(found - values_.data()) + 1;
  return found;
}

bool BackupDocument::IsInEffect(std::size_t value) const {
  const StoredValue& stored = values_[value];
  const bool isDeleted =
      productHeader_ != kNowhere && stored.line < productHeader_ && keys_[stored.key].isOfProduct;
  return !stored.isOverruled && !isDeleted;
}

std::wstring BackupDocument::StringOf(const StoredValue& value) const {
  return TextUpToZero(DataOf(value));
}

std::vector<std::byte> BackupDocument::DataOf(const StoredValue& value) const {
  std::wstring line = TextOf(value.line);
  line.resize(std::min(line.find(L'\0'), line.size()));
  if (value.isExact) {
    EnumeratedValue exact;
    ParseExactLine(line, exact);
    return exact.data;
  }
  ParsedValue parsed;
  ParseValueLine(line, parsed);
  return tidewell::DataOf({parsed.isNumber, parsed.number, parsed.text});
}

const CategoryLines* BackupDocument::FindCategory(std::wstring_view name) const {
  const auto found = lastCategories_.find(name);
  return found == lastCategories_.end() ? nullptr : &categories_[found->second];
}

const FilterLines* BackupDocument::FindFilter(std::int32_t index) const {
  const auto found = lastFilters_.find(index);
  return found == lastFilters_.end() ? nullptr : &filters_[found->second];
}

// Neither the end nor the beginning of a line that the reader took in pieces.
bool BackupDocument::StandsAlone(std::size_t line) const {
  return (line == 0 || EndsWhole(line - 1)) && (EndsWhole(line) || line + 1 == lines_.size());
}

EditStatus BackupDocument::Entangled(std::size_t line) {
  entangledLine_ = 1;
  for (std::size_t i = 0; i < line; ++i) entangledLine_ += EndsWhole(i) ? 1 : 0;
  return EditStatus::kEntangled;
}

EditStatus BackupDocument::Set(std::wstring_view path, std::wstring_view name,
                               const NewValue& value) {
  std::wstring line;
  if (value.isNumber) {
    AppendDwordLine(line, name, static_cast<std::uint32_t>(value.number));
  } else {
    AppendStringLine(line, name, value.text);
  }
  line += kLineEnd;
  const std::vector<std::byte> data = tidewell::DataOf(value);
  const std::uint32_t type = value.isNumber ? kTypeDword : kTypeString;
  const StoredValue* present = Find(path, name);
  if (present && present->type == type && DataOf(*present) == data) return EditStatus::kDone;
  if (!IsReadAs(line, name, value)) return SetExactly(path, {std::wstring(name), type, data});
  return SetLine(path, name, std::move(line));
}

// Which copies alone can.
EditStatus BackupDocument::SetExactly(std::wstring_view path, const EnumeratedValue& value) {
  if (!isCopy_) return EditStatus::kUnwritable;
  std::wstring line;
  AppendExactLine(line, value);
  return SetLine(path, value.name, line + kLineEnd);
}

EditStatus BackupDocument::Take(const BackupDocument& from, const StoredValue& value) {
  const std::wstring_view path = from.keys_[value.key].path;
  const std::vector<std::byte> data = from.DataOf(value);
  const NewValue plain{value.type == kTypeDword, value.number, from.StringOf(value)};
  const bool isPlain = value.type == kTypeDword || value.type == kTypeString;
  // A copy keeps every byte, a backup what its lines have room for.
  if (isPlain && (!isCopy_ || data == tidewell::DataOf(plain))) {
    return Set(path, value.name, plain);
  }
  return SetExactly(path, {std::wstring(value.name), value.type, data});
}

EditStatus BackupDocument::SetLine(std::wstring_view path, std::wstring_view name,
                                   std::wstring line) {
  const StoredValue* present = Find(path, name);
  if (!present) return Insert(path, line);
  if (!StandsAlone(present->line)) return Entangled(present->line);
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
EditStatus BackupDocument::Insert(std::wstring_view path, const std::wstring& line) {
  const std::size_t key = KeyOf(path);
  const bool isGone =
      productHeader_ != kNowhere && key != kNowhere && keys_[key].header < productHeader_;
  if (key == kNowhere || isGone) {
    if (!CanHead(path) && !isCopy_) return EditStatus::kUnwritable;
    added_[std::wstring(path)] += line;
    if (productHeader_ == kNowhere) return EditStatus::kDone;
    const std::size_t before = keys_[KeyOf(kProductKey)].last;
    return EndsWhole(before) ? EditStatus::kDone : Entangled(before);
  }
  if (!EndsWhole(keys_[key].last)) return Entangled(keys_[key].last);
  edits_[keys_[key].last].behind += line;
  return EditStatus::kDone;
}

EditStatus BackupDocument::Remove(const StoredValue& value) {
  std::vector<std::size_t> all{value.line};
  for (std::size_t earlier = value.earlier; earlier != kNowhere;
       earlier = values_[earlier].earlier) {
    all.push_back(values_[earlier].line);
  }
  for (const std::size_t line : all) {
    if (!StandsAlone(line)) return Entangled(line);
  }
  for (const std::size_t line : all) {
    edits_[line].isReplaced = true;
    edits_[line].instead.clear();
  }
  return EditStatus::kDone;
}

EditStatus BackupDocument::ReplaceRecord(std::size_t firstLine, std::size_t lastLine,
                                         const std::wstring& lines) {
  for (std::size_t line = firstLine; line <= lastLine; ++line) {
    if (!StandsAlone(line)) return Entangled(line);
  }
  for (std::size_t line = firstLine; line <= lastLine; ++line) {
    edits_[line].isReplaced = true;
    edits_[line].instead = line == firstLine ? lines : L"";
  }
  return EditStatus::kDone;
}

// At the end of the section, or in a new one at the end of the file.
EditStatus BackupDocument::AddRecord(RecordSection& section, const std::wstring& lines) {
  const bool isNew = section.header == kNowhere;
  const std::size_t last = isNew ? lines_.size() - 1 : section.last;
  // A record that the end of the text cuts off would go on in the new lines.
  const bool isCutOff =
      isNew ? categorySection_.IsCutOff() || filterSection_.IsCutOff() : section.IsCutOff();
  if (!EndsWhole(last) || isCutOff) return Entangled(last);
  (isNew ? section.newLines : edits_[last].behind) += lines;
  return EditStatus::kDone;
}

EditStatus BackupDocument::TakeCategory(const CategoryLines& category) {
  const CategoryLines* own = FindCategory(category.name);
  if (own && AreSame(*own, category)) return EditStatus::kDone;
  std::wstring lines = RecordStart(L"Category", category.name, isCopy_);
  if (lines.empty()) return EditStatus::kUnwritable;
  AppendNumberLine(lines, L"FiltersFlag", category.flags);
  AppendNumberLine(lines, L"Color", category.color);
  if (own) return ReplaceRecord(own->firstLine, own->lastLine, lines);
  return AddRecord(categorySection_, lines);
}

// Whether the filter behind that line has a malformed one, which leaves it what the one before has.
bool BackupDocument::IsTakenOver(std::size_t lastLine) const {
  const auto next = std::ranges::find(filters_, lastLine + 1, &FilterLines::firstLine);
  if (next == filters_.end()) return false;
  const auto its = std::span(lines_).subspan(next->firstLine, next->lastLine - lastLine);
  return std::ranges::find(its, LineUse::kMalformed, &DocumentLine::use) != its.end();
}

EditStatus BackupDocument::TakeFilter(const FilterLines& filter) {
  const FilterLines* own = FindFilter(filter.index);
  if (own && AreSame(*own, filter)) return EditStatus::kDone;
  std::wstring lines = RecordStart(L"FilterName", filter.title, isCopy_);
  if (lines.empty()) return EditStatus::kUnwritable;
  AppendNumberLine(lines, L"Index", filter.index);
  AppendNumberLine(lines, L"VisibleState", filter.visible ? 1 : 0);
  AppendNumberLine(lines, L"IncludeUncategorized", filter.uncategorized ? 1 : 0);
  if (own && IsTakenOver(own->lastLine)) return Entangled(own->lastLine + 1);
  if (own) return ReplaceRecord(own->firstLine, own->lastLine, lines);
  return AddRecord(filterSection_, lines);
}

std::vector<std::byte> BackupDocument::Edited() const {
  std::map<std::size_t, Edit> edits = edits_;
  for (const auto& [path, lines] : added_) {
    // New keys stand behind the product's own values, where no header takes them away again.
    const bool isFirst = productHeader_ == kNowhere;
    const std::size_t place = isFirst ? (isCopy_ ? 1 : 0) : keys_[KeyOf(kProductKey)].last;
    const std::wstring section = HeaderOf(CanHead(path) ? path : ExactSectionName(path)) + lines;
    edits[place].behind += isFirst ? section + kLineEnd : kLineEnd + section;
  }
  const auto addSection = [&](std::wstring_view name, const std::wstring& lines) {
    if (!lines.empty()) edits[lines_.size() - 1].behind += kLineEnd + HeaderOf(name) + lines;
  };
  addSection(kCategoriesSection, categorySection_.newLines);
  addSection(kFiltersSection, filterSection_.newLines);

  std::vector<std::byte> bytes;
  bytes.reserve(bytes_.size());
  std::size_t done = 0;
  const auto copyUpTo = [&](std::size_t end) {
    const auto old = std::span(bytes_).subspan(done, end - done);
    bytes.insert(bytes.end(), old.begin(), old.end());
  };
  for (const auto& [line, edit] : edits) {
    copyUpTo(edit.isReplaced ? lines_[line].begin : lines_[line].end);
    const std::vector<std::byte> added = BytesOf(edit.instead + edit.behind);
    bytes.insert(bytes.end(), added.begin(), added.end());
    done = lines_[line].end;
  }
  copyUpTo(bytes_.size());
  return bytes;
}

}  // namespace tidewell
