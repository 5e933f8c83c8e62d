#include "companion/reports.h"

#include <algorithm>

#include "backup/registry_text.h"
#include "categories/records.h"
#include "pages/page_list.h"
#include "platform/text.h"

namespace tidewell {

namespace {

const std::wstring kCategoriesGroup = L"Categories";
const std::wstring kFiltersGroup = L"Filters";

bool IsAnyOf(const std::vector<std::wstring>& groups, auto fits) {
  return groups.empty() || std::ranges::any_of(groups, fits);
}

std::wstring TitleIn(Tongue tongue, int page) {
  const auto& texts = TextsOf(tongue);
  const auto found = texts.find(kPages[static_cast<std::size_t>(page)].captionId);
  return found == texts.end() ? L"" : found->second;
}

bool IsTitle(int page, const std::wstring& group) {
  return page >= 0 && (EqualIgnoringCase(TitleIn(Tongue::kEnglish, page), group) ||
                       EqualIgnoringCase(TitleIn(Tongue::kGerman, page), group));
}

// Of other programs nothing is in a backup.
bool IsInBackups(const Meaning& meaning) {
  return meaning.reason != Word::kNotInBackups;
}

// What is read of it, and what is stored where that is something else.
std::wstring WhatIsIn(const BackupSettings& backup, Setting& setting) {
  const std::optional<Reading> reading = backup.Read(setting);
  std::wstring all = reading ? reading->Plain() : L"\n";
  const StoredValue* stored = backup.Stored(setting);
  if (!stored || !reading) return all;
  const std::uint32_t type = reading->isNumber ? kTypeDword : kTypeString;
  const bool isAsRead =
      stored->type == type && ValueInWords(backup.Document(), *stored) == reading->Plain();
  return isAsRead ? all : all + L'\n' + ExactlyInWords(backup.Document(), *stored);
}

// For two that are said alike: what is stored.
std::wstring StoredInWords(const BackupSettings& backup, const Setting& setting) {
  const StoredValue* stored = backup.Stored(setting);
  if (!stored) return L" " + backup.Device().Said(Word::kAbsent);
  const bool isPlain = stored->type == kTypeDword || stored->type == kTypeString;
  return L" (" + (isPlain ? ValueInWords : ExactlyInWords)(backup.Document(), *stored) + L")";
}

// Of a key of the product what stands behind the product's, of that its last name.
std::wstring_view PathInProduct(const DocumentKey& key) {
  if (!key.isOfProduct) return key.path;
  const bool isOwn = key.path.size() == kProductKey.size();
  return key.path.substr(isOwn ? kProductKey.rfind(L'\\') + 1 : kProductKey.size() + 1);
}

Record RecordOf(const MeaningDevice& device, const Meaning& meaning) {
  return {device.PageTitle(meaning.page), meaning.tab, {{"label", meaning.label}}};
}

void AddValue(Record& record, const MeaningDevice& device, const BackupSettings& backup,
              const Meaning& meaning) {
  record.fields.push_back({"text", backup.InWords(meaning)});
  record.fields.push_back({"name", meaning.name});
  record.fields.push_back({"default", backup.DefaultInWords(meaning)});
  if (meaning.reason) record.fields.push_back({"reason", device.Said(*meaning.reason)});
  if (meaning.settings.size() > 1) return;
  const std::optional<Reading> reading = backup.Read(*meaning.settings.front());
  if (reading) record.fields.push_back({"value", reading->Plain(), reading->isNumber, true});
}

bool IsDefault(const CategoryLines& category) {
  return category.flags == 0 && category.color == -1;
}
bool IsDefault(const FilterLines& filter) {
  const FilterRecord own = DefaultFilter(filter.index);
  return filter.title == own.title && filter.visible == own.visible &&
         filter.uncategorized == own.includeUncategorized;
}

const CategoryLines* FindSame(const BackupDocument& document, const CategoryLines& category) {
  return document.FindCategory(category.name);
}
const FilterLines* FindSame(const BackupDocument& document, const FilterLines& filter) {
  return document.FindFilter(filter.index);
}

std::wstring NameOf(const BackupDocument&, const CategoryLines& category) {
  return std::wstring(category.name);
}
std::wstring NameOf(const BackupDocument&, const FilterLines& filter) {
  return FormatDecimal(filter.index);
}

std::wstring InWords(const MeaningDevice& device, const CategoryLines& category) {
  std::wstring filters;
  for (std::int32_t index = 1; index <= kFilterCount; ++index) {
    if ((static_cast<std::uint32_t>(category.flags) >> (index - 1) & 1) == 0) continue;
    filters += (filters.empty() ? L": " : L", ") + FormatDecimal(index);
  }
  const std::wstring color = ColorInWords(static_cast<std::uint32_t>(category.color), device);
  return filters.empty() ? color : color + L"; " + device.Said(Word::kInFilters) + filters;
}
std::wstring InWords(const MeaningDevice& device, const FilterLines& filter) {
  std::wstring words(filter.title);
  if (!filter.visible) words += L", " + device.Said(Word::kHidden);
  if (filter.uncategorized) words += L", " + device.Said(Word::kUncategorized);
  return words;
}

// For two that are said alike.
std::wstring NumbersOf(const CategoryLines& category) {
  return L" (" + FormatDecimal(category.color) + L")";
}
std::wstring NumbersOf(const FilterLines& filter) {
  return L" (\"" + std::wstring(filter.title) + L"\")";
}

Record OtherRecord(const MeaningDevice& device, Word heading, const std::wstring& name,
                   const std::wstring& words) {
  return {device.Said(heading), L"", {{"name", name}, {"text", words}}};
}

template <typename Lines>
void ShowRecords(std::vector<Record>& shown, const BackupSettings& backup, Word heading,
                 const std::vector<Lines>& all, bool changedOnly) {
  for (const Lines& each : all) {
    const bool hasSay = FindSame(backup.Document(), each) == &each;
    if (!hasSay || (changedOnly && IsDefault(each))) continue;
    shown.push_back(OtherRecord(backup.Device(), heading, NameOf(backup.Document(), each),
                                InWords(backup.Device(), each)));
  }
}

// `key` says in JSON what the name is.
Record Difference(std::wstring page, std::wstring tab, const char* key, std::wstring name,
                  std::wstring old, std::wstring now) {
  Record record{std::move(page), std::move(tab), {}};
  record.fields.reserve(4);
  record.fields.push_back({key, std::move(name)});
  record.fields.push_back({"old", std::move(old)});
  record.fields.push_back({"new", std::move(now)});
  return record;
}

void CompareSettings(std::vector<Record>& differences, BackupSettings& left,
                     BackupSettings& right) {
  for (std::size_t i = 0; i < left.Meanings().size(); ++i) {
    // Both devices have the same pages.
    const Meaning& old = left.Meanings()[i];
    const Meaning& now = right.Meanings()[i];
    std::size_t member = 0;
    while (member < old.settings.size() &&
           WhatIsIn(left, *old.settings[member]) == WhatIsIn(right, *now.settings[member])) {
      ++member;
    }
    if (member == old.settings.size()) continue;
    std::wstring oldWords = left.InWords(old);
    std::wstring newWords = right.InWords(now);
    if (oldWords == newWords) {
      oldWords += StoredInWords(left, *old.settings[member]);
      newWords += StoredInWords(right, *now.settings[member]);
    }
    differences.push_back(Difference(left.Device().PageTitle(old.page), old.tab, "label", old.label,
                                     std::move(oldWords), std::move(newWords)));
    differences.back().fields.push_back({"name", old.name});
  }
}

// In `from` each key of `document`.
std::vector<std::size_t> SameKeys(const BackupDocument& document, const BackupDocument& from) {
  std::vector<std::size_t> same;
  for (const DocumentKey& key : document.Keys()) same.push_back(from.KeyOf(key.path));
  return same;
}

// Words are made for what differs alone: a file may have a million values.
void CompareOtherValues(std::vector<Record>& differences, const BackupSettings& left,
                        const BackupSettings& right) {
  const std::wstring heading = left.Device().Said(Word::kOtherValues);
  const std::wstring absent = left.Device().Said(Word::kAbsent);
  const BackupDocument& before = left.Document();
  const BackupDocument& after = right.Document();
  const std::vector<std::size_t> rightKeys = SameKeys(before, after);
  // Most stand in the same order in both.
  std::size_t guess = 0;
  for (const StoredValue* old : left.OtherValues()) {
    const StoredValue* now = after.Find(rightKeys[old->key], old->name, guess);
    if (now && AreSame(before, *old, after, *now)) continue;
    std::wstring oldWords = ValueInWords(before, *old);
    std::wstring newWords = now ? ValueInWords(after, *now) : absent;
    if (now && oldWords == newWords) {
      oldWords = ExactlyInWords(before, *old);
      newWords = ExactlyInWords(after, *now);
    }
    differences.push_back(Difference(heading, L"", "name", NameOf(before, *old),
                                     std::move(oldWords), std::move(newWords)));
  }
  const std::vector<std::size_t> leftKeys = SameKeys(after, before);
  guess = 0;
  for (const StoredValue* now : right.OtherValues()) {
    if (before.Find(leftKeys[now->key], now->name, guess)) continue;
    differences.push_back(
        Difference(heading, L"", "name", NameOf(after, *now), absent, ValueInWords(after, *now)));
  }
}

template <typename Lines>
void CompareRecords(std::vector<Record>& differences, const BackupSettings& left,
                    const BackupSettings& right, Word heading, const std::vector<Lines>& all,
                    const std::vector<Lines>& others) {
  const MeaningDevice& device = left.Device();
  const auto add = [&](const Lines& any, const Lines* old, const Lines* now) {
    std::wstring oldWords = old ? InWords(device, *old) : device.Said(Word::kAbsent);
    std::wstring newWords = now ? InWords(device, *now) : device.Said(Word::kAbsent);
    if (old && now && oldWords == newWords) {
      oldWords += NumbersOf(*old);
      newWords += NumbersOf(*now);
    }
    differences.push_back(Difference(device.Said(heading), L"", "name",
                                     NameOf(left.Document(), any), std::move(oldWords),
                                     std::move(newWords)));
  };
  for (const Lines& old : all) {
    if (FindSame(left.Document(), old) != &old) continue;
    const Lines* now = FindSame(right.Document(), old);
    if (!now || !AreSame(old, *now)) add(old, &old, now);
  }
  for (const Lines& now : others) {
    if (FindSame(right.Document(), now) != &now) continue;
    if (!FindSame(left.Document(), now)) add(now, nullptr, &now);
  }
}

const char* TypeOf(const Meaning& meaning) {
  switch (meaning.kind) {
    case ValueKind::kNumber:
      return "number";
    case ValueKind::kSwitch:
      return "switch";
    case ValueKind::kChoice:
      return "choice";
    case ValueKind::kCodes:
      return "set";
    case ValueKind::kColor:
      return "color";
    case ValueKind::kText:
      return "text";
    case ValueKind::kBits:
      return "flags";
    case ValueKind::kFont:
      break;
  }
  return "font";
}

}  // namespace

bool IsOfGroup(const Meaning& meaning, const std::wstring& group) {
  return IsTitle(meaning.page, group) ||
         EqualIgnoringCase(KeyName(meaning.settings.front()->Key()), group);
}

std::vector<bool> KeysOfGroups(const BackupSettings& backup,
                               const std::vector<std::wstring>& groups) {
  std::vector<bool> areOf;
  for (const DocumentKey& key : backup.Document().Keys()) {
    const std::wstring_view path = PathInProduct(key);
    const std::wstring_view name = path.substr(0, path.find(L'\\'));
    const auto isOf = [&](const std::wstring& group) {
      return key.isOfProduct && std::ranges::any_of(backup.Meanings(), [&](const Meaning& meaning) {
               return EqualIgnoringCase(KeyName(meaning.settings.front()->Key()), name) &&
                      IsOfGroup(meaning, group);
             });
    };
    areOf.push_back(IsAnyOf(groups, isOf));
  }
  return areOf;
}

bool IsCategoriesGroup(const std::wstring& group) {
  return EqualIgnoringCase(group, kCategoriesGroup) ||
         IsTitle(static_cast<int>(PageIndex::kCategories), group);
}
bool IsFiltersGroup(const std::wstring& group) {
  return EqualIgnoringCase(group, kFiltersGroup) ||
         EqualIgnoringCase(group, WordIn(Tongue::kGerman, Word::kFilters));
}

bool IsGroup(const MeaningDevice& device, const std::wstring& word) {
  return IsCategoriesGroup(word) || IsFiltersGroup(word) ||
         std::ranges::any_of(device.Meanings(),
                             [&](const Meaning& meaning) { return IsOfGroup(meaning, word); });
}

std::vector<std::wstring> GroupTitles(const MeaningDevice& device) {
  std::vector<std::wstring> titles;
  titles.reserve(kPageCount + 1);
  for (int page = 0; page < kPageCount; ++page) titles.push_back(device.PageTitle(page));
  titles.emplace_back(device.Said(Word::kFilters));
  return titles;
}

std::wstring NameOf(const BackupDocument& document, const StoredValue& value) {
  std::wstring name(PathInProduct(document.Keys()[value.key]));
  std::ranges::replace(name, L'\\', L'/');
  name += L'/';
  return name.append(value.name);
}

bool IsNamed(const BackupDocument& document, const StoredValue& value, std::wstring name) {
  std::ranges::replace(name, L'\\', L'/');
  std::wstring own = NameOf(document, value);
  std::ranges::replace(own, L'\\', L'/');
  return EqualIgnoringCase(own, name);
}

Record ShowMeaning(BackupSettings& backup, const Meaning& meaning) {
  Record record = RecordOf(backup.Device(), meaning);
  AddValue(record, backup.Device(), backup, meaning);
  return record;
}

Record ShowValue(BackupSettings& backup, const StoredValue& value) {
  return OtherRecord(backup.Device(), Word::kOtherValues, NameOf(backup.Document(), value),
                     ValueInWords(backup.Document(), value));
}

std::vector<Record> ShowBackup(BackupSettings& backup, const std::vector<std::wstring>& groups,
                               bool changedOnly) {
  std::vector<Record> records;
  for (const Meaning& meaning : backup.Meanings()) {
    if (!IsInBackups(meaning) || (changedOnly && !backup.IsChanged(meaning))) continue;
    if (!IsAnyOf(groups, [&](const auto& group) { return IsOfGroup(meaning, group); })) {
      continue;
    }
    records.push_back(ShowMeaning(backup, meaning));
  }
  const std::vector<bool> isOfGroups = KeysOfGroups(backup, groups);
  for (const StoredValue* value : backup.OtherValues()) {
    if (isOfGroups[value->key]) records.push_back(ShowValue(backup, *value));
  }
  const BackupDocument& document = backup.Document();
  if (IsAnyOf(groups, IsCategoriesGroup)) {
    ShowRecords(records, backup, Word::kRecords, document.Categories(), changedOnly);
  }
  if (IsAnyOf(groups, IsFiltersGroup)) {
    ShowRecords(records, backup, Word::kFilters, document.Filters(), changedOnly);
  }
  return records;
}

std::vector<Record> CompareBackups(BackupSettings& left, BackupSettings& right) {
  std::vector<Record> differences;
  CompareSettings(differences, left, right);
  CompareOtherValues(differences, left, right);
  CompareRecords(differences, left, right, Word::kRecords, left.Document().Categories(),
                 right.Document().Categories());
  CompareRecords(differences, left, right, Word::kFilters, left.Document().Filters(),
                 right.Document().Filters());
  return differences;
}

std::vector<Record> ListSettings(MeaningDevice& device, const std::vector<std::wstring>& groups) {
  const BackupDocument nothing({});
  BackupSettings defaults(nothing, device.Facts());
  std::vector<Record> records;
  for (const Meaning& meaning : defaults.Meanings()) {
    if (!IsAnyOf(groups, [&](const auto& group) { return IsOfGroup(meaning, group); })) {
      continue;
    }
    Record record = RecordOf(device, meaning);
    record.fields.push_back({"name", meaning.name});
    record.fields.push_back({"type", FromUtf8(TypeOf(meaning))});
    record.fields.push_back({"default", defaults.DefaultInWords(meaning)});
    const std::wstring choices = ChoicesInWords(meaning, *meaning.settings.front(), device);
    record.fields.push_back({"values", choices});
    if (meaning.reason) record.fields.push_back({"reason", device.Said(*meaning.reason)});
    record.choices = meaning.choices;
    records.push_back(std::move(record));
  }
  return records;
}

}  // namespace tidewell
