#include "companion/reports.h"

#include <algorithm>
#include <map>
#include <set>

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

std::wstring JoinedReadings(const BackupSettings& backup, const Meaning& meaning) {
  std::wstring joined;
  for (Setting* setting : meaning.settings) {
    const std::optional<Reading> reading = backup.Read(*setting);
    joined += (reading ? reading->Plain() : std::wstring(L"\n")) + L'\n';
  }
  return joined;
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

// Values, categories and filters of a backup by what they are called, each in words.
using Others = std::vector<std::pair<std::wstring, std::wstring>>;

Others OtherValuesOf(const BackupSettings& backup) {
  Others others;
  for (const StoredValue* value : backup.OtherValues()) {
    others.emplace_back(NameOf(backup.Document(), *value), ValueInWords(*value));
  }
  return others;
}

// The last of a name is the one that has a say.
template <typename Lines, typename Name, typename InWords>
Others LastOfEach(const std::vector<Lines>& all, Name name, InWords inWords) {
  Others others;
  std::map<std::wstring, std::size_t> places;
  for (const Lines& lines : all) {
    const auto [place, isNew] = places.emplace(name(lines), others.size());
    if (isNew) others.emplace_back(name(lines), L"");
    others[place->second].second = inWords(lines);
  }
  return others;
}

// Without those that say nothing, if need be.
Others CategoriesOf(BackupSettings& backup, bool changedOnly = false) {
  std::vector<CategoryLines> all = backup.Document().Categories();
  if (changedOnly) {
    std::erase_if(all, [](const auto& each) { return each.flags == 0 && each.color == -1; });
  }
  return LastOfEach(
      all, [](const CategoryLines& each) { return each.name; },
      [&](const CategoryLines& each) { return CategoryInWords(each, backup.Device()); });
}

bool IsDefault(const FilterLines& filter) {
  const FilterRecord own = DefaultFilter(filter.index);
  return filter.title == own.title && filter.visible == own.visible &&
         filter.uncategorized == own.includeUncategorized;
}

Others FiltersOf(BackupSettings& backup, bool changedOnly = false) {
  std::vector<FilterLines> all = backup.Document().Filters();
  if (changedOnly) std::erase_if(all, IsDefault);
  return LastOfEach(
      all, [](const FilterLines& each) { return FormatDecimal(each.index); },
      [&](const FilterLines& each) { return FilterInWords(each, backup.Device()); });
}

void AddOthers(std::vector<Record>& records, const std::wstring& heading, const Others& others) {
  for (const auto& [name, words] : others) {
    records.push_back({heading, L"", {{"name", name}, {"text", words}}});
  }
}

Record Difference(std::wstring page, std::wstring tab, const std::wstring& label,
                  const std::wstring& left, const std::wstring& right, const std::wstring& name) {
  Record record{std::move(page), std::move(tab), {{"label", label}, {"old", left}, {"new", right}}};
  if (!name.empty()) record.fields.push_back({"name", name});
  return record;
}

void CompareOthers(std::vector<Record>& records, const MeaningDevice& device, Word heading,
                   const Others& left, const Others& right) {
  const std::wstring none = device.Said(Word::kNone);
  const std::map<std::wstring, std::wstring> now(right.begin(), right.end());
  std::set<std::wstring> old;
  for (const auto& [name, words] : left) {
    old.insert(name);
    const auto found = now.find(name);
    if (found != now.end() && found->second == words) continue;
    records.push_back(Difference(device.Said(heading), L"", name, words,
                                 found == now.end() ? none : found->second, L""));
  }
  for (const auto& [name, words] : right) {
    if (old.contains(name)) continue;
    records.push_back(Difference(device.Said(heading), L"", name, none, words, L""));
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

bool IsOfGroup(const MeaningDevice&, const Meaning& meaning, const std::wstring& group) {
  return IsTitle(meaning.page, group) ||
         EqualIgnoringCase(KeyName(meaning.settings.front()->Key()), group);
}

bool IsOfGroup(const MeaningDevice& device, const std::wstring& path, const std::wstring& group) {
  const std::wstring product = FoldedPath(kProductKey);
  std::wstring key = FoldedPath(path);
  if (!key.starts_with(product)) return false;
  key = key == product ? L"tidewell" : key.substr(product.size() + 1);
  key.resize(std::min(key.find(L'\\'), key.size()));
  return std::ranges::any_of(device.Meanings(), [&](const Meaning& meaning) {
    return EqualIgnoringCase(KeyName(meaning.settings.front()->Key()), key) &&
           IsOfGroup(device, meaning, group);
  });
}

bool IsCategoriesGroup(const std::wstring& group) {
  return EqualIgnoringCase(group, kCategoriesGroup) ||
         IsTitle(static_cast<int>(PageIndex::kCategories), group);
}
bool IsFiltersGroup(const std::wstring& group) {
  return EqualIgnoringCase(group, kFiltersGroup) ||
         EqualIgnoringCase(group, WordIn(Tongue::kGerman, Word::kFilters));
}

std::optional<std::wstring> FindUnknownGroup(const MeaningDevice& device,
                                             const std::vector<std::wstring>& groups) {
  for (const std::wstring& group : groups) {
    const bool isPage = std::ranges::any_of(device.Meanings(), [&](const Meaning& meaning) {
      return IsOfGroup(device, meaning, group);
    });
    if (!isPage && !IsCategoriesGroup(group) && !IsFiltersGroup(group)) return group;
  }
  return std::nullopt;
}

std::wstring NameOf(const BackupDocument& document, const StoredValue& value) {
  std::wstring path = document.Keys()[value.key].path;
  const std::size_t parent = kProductKey.rfind(L'\\') + 1;
  const std::wstring product = FoldedPath(kProductKey);
  if (FoldedPath(path).starts_with(product) && path.size() > product.size()) {
    path = path.substr(product.size() + 1);
  } else if (FoldedPath(path) == product) {
    path = path.substr(parent);
  }
  std::ranges::replace(path, L'\\', L'/');
  return path + L"/" + value.name;
}

std::wstring CategoryInWords(const CategoryLines& category, const MeaningDevice& device) {
  return device.Said(Word::kFlags) + L" " + FormatDecimal(category.flags) + L", " +
         ColorInWords(static_cast<std::uint32_t>(category.color), device);
}

std::wstring FilterInWords(const FilterLines& filter, const MeaningDevice& device) {
  std::wstring words = filter.title;
  if (!filter.visible) words += L", " + device.Said(Word::kHidden);
  if (filter.uncategorized) words += L", " + device.Said(Word::kUncategorized);
  return words;
}

Record ShowMeaning(BackupSettings& backup, const Meaning& meaning) {
  Record record = RecordOf(backup.Device(), meaning);
  AddValue(record, backup.Device(), backup, meaning);
  return record;
}

Record ShowValue(BackupSettings& backup, const StoredValue& value) {
  return {backup.Device().Said(Word::kOtherValues),
          L"",
          {{"name", NameOf(backup.Document(), value)}, {"text", ValueInWords(value)}}};
}

std::vector<Record> ShowBackup(BackupSettings& backup, const std::vector<std::wstring>& groups,
                               bool changedOnly) {
  const MeaningDevice& device = backup.Device();
  std::vector<Record> records;
  for (const Meaning& meaning : backup.Meanings()) {
    if (!IsInBackups(meaning) || (changedOnly && !backup.IsChanged(meaning))) continue;
    if (!IsAnyOf(groups, [&](const auto& group) { return IsOfGroup(device, meaning, group); })) {
      continue;
    }
    records.push_back(ShowMeaning(backup, meaning));
  }
  Others values;
  for (const StoredValue* value : backup.OtherValues()) {
    const std::wstring& path = backup.Document().Keys()[value->key].path;
    if (IsAnyOf(groups, [&](const auto& group) { return IsOfGroup(device, path, group); })) {
      values.emplace_back(NameOf(backup.Document(), *value), ValueInWords(*value));
    }
  }
  AddOthers(records, device.Said(Word::kOtherValues), values);
  if (IsAnyOf(groups, IsCategoriesGroup)) {
    AddOthers(records, device.Said(Word::kRecords), CategoriesOf(backup, changedOnly));
  }
  if (IsAnyOf(groups, IsFiltersGroup)) {
    AddOthers(records, device.Said(Word::kFilters), FiltersOf(backup, changedOnly));
  }
  return records;
}

std::vector<Record> CompareBackups(BackupSettings& left, BackupSettings& right) {
  const MeaningDevice& device = left.Device();
  std::vector<Record> records;
  for (std::size_t i = 0; i < left.Meanings().size(); ++i) {
    // Both devices have the same pages.
    const Meaning& old = left.Meanings()[i];
    const Meaning& now = right.Meanings()[i];
    if (JoinedReadings(left, old) == JoinedReadings(right, now)) continue;
    records.push_back(Difference(device.PageTitle(old.page), old.tab, old.label, left.InWords(old),
                                 right.InWords(now), old.name));
  }
  CompareOthers(records, device, Word::kOtherValues, OtherValuesOf(left), OtherValuesOf(right));
  CompareOthers(records, device, Word::kRecords, CategoriesOf(left), CategoriesOf(right));
  CompareOthers(records, device, Word::kFilters, FiltersOf(left), FiltersOf(right));
  return records;
}

std::vector<Record> ListSettings(MeaningDevice& device, const std::vector<std::wstring>& groups) {
  const BackupDocument nothing({});
  BackupSettings defaults(nothing, device.Facts());
  std::vector<Record> records;
  for (const Meaning& meaning : defaults.Meanings()) {
    if (!IsAnyOf(groups, [&](const auto& group) { return IsOfGroup(device, meaning, group); })) {
      continue;
    }
    Record record = RecordOf(device, meaning);
    record.fields.push_back({"name", meaning.name});
    record.fields.push_back({"type", FromUtf8(TypeOf(meaning))});
    record.fields.push_back({"default", defaults.DefaultInWords(meaning)});
    const std::wstring choices = ChoicesInWords(meaning, *meaning.settings.front());
    record.fields.push_back({"values", choices});
    if (meaning.reason) record.fields.push_back({"reason", device.Said(*meaning.reason)});
    record.choices = meaning.choices;
    records.push_back(std::move(record));
  }
  return records;
}

}  // namespace tidewell
