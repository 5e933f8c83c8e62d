#include "companion/backup_edits.h"

#include <algorithm>
#include <array>
#include <set>

#include "backup/registry_text.h"
#include "companion/reports.h"
#include "companion/suggestions.h"
#include "platform/memory/memory_machine.h"
#include "platform/text.h"
#include "settings/registry_values.h"

namespace tidewell {

namespace {

const std::wstring kDefault = L"default";
constexpr std::size_t kMostChoicesTold = 12;

std::string Quoted(std::wstring_view text) {
  return "\"" + ToUtf8(text) + "\"";
}

// Empty for kDone.
std::string SentenceOf(const BackupDocument& document, EditStatus status, std::wstring_view name) {
  switch (status) {
    case EditStatus::kUnwritable:
      return Quoted(name) +
             " cannot be written so, for a backup has lines only for numbers and for texts of up "
             "to 800 characters without line breaks: choose another value or leave it out.";
    case EditStatus::kEntangled:
      return Quoted(name) + " cannot be changed, for line " +
             std::to_string(document.EntangledLine()) +
             " is a piece of a longer one, lacks its line end or is of a record that is cut off or "
             "malformed: mend first what the command check tells.";
    case EditStatus::kDone:
      break;
  }
  return {};
}

std::wstring NameOf(const Setting& setting) {
  return KeyName(setting.Key()) + L"/" + setting.Name();
}

bool IsCalled(const NamedSetting& named, const MeaningDevice& device, const std::wstring& name) {
  const Meaning& meaning = *named.meaning;
  const auto is = [&](const std::wstring& other) { return EqualIgnoringCase(other, name); };
  return is(NameOf(*named.setting)) || is(named.setting->Name()) || is(meaning.name) ||
         is(meaning.name.substr(meaning.name.find(L'/') + 1)) || is(meaning.label) ||
         is(device.PageTitle(meaning.page) + L"/" + meaning.label) ||
         is(device.PageTitle(meaning.page) + L"/" + meaning.tab + L"/" + meaning.label);
}

constexpr std::array<SettingKey, 2> kSchemeTrees = {SettingKey::kColors, SettingKey::kFonts};

bool IsOfScheme(std::wstring_view path) {
  return std::ranges::any_of(
      kSchemeTrees, [&](SettingKey tree) { return IsWithinKey(LocationOf(tree).path, path); });
}

std::vector<const StoredValue*> SchemeValues(const BackupDocument& document) {
  std::vector<const StoredValue*> values;
  for (std::size_t i = 0; i < document.Values().size(); ++i) {
    const StoredValue& value = document.Values()[i];
    if (document.IsInEffect(i) && IsOfScheme(document.Keys()[value.key].path)) {
      values.push_back(&value);
    }
  }
  return values;
}

std::string TakeValue(BackupDocument& document, const BackupDocument& from,
                      const StoredValue& value) {
  const StoredValue* own = document.Find(from.Keys()[value.key].path, value.name);
  if (own && AreSame(document, *own, from, value)) return {};
  return SentenceOf(document, document.Take(from, value), value.name);
}

std::string TakeSetting(BackupDocument& document, const BackupDocument& from,
                        const Setting& setting) {
  const StoredValue* theirs = from.Find(PathOf(setting), setting.Name());
  if (theirs) return TakeValue(document, from, *theirs);
  const StoredValue* own = document.Find(PathOf(setting), setting.Name());
  return own ? SentenceOf(document, document.Remove(*own), setting.Name()) : std::string();
}

// As a device that speaks one language has them; both have the same. Those of other programs are in
// no backup.
std::vector<NamedSetting> AllCalled(const BackupSettings& backup, const MeaningDevice& device,
                                    const std::wstring& name, bool areOfOthers = false) {
  std::vector<NamedSetting> found;
  for (std::size_t i = 0; i < device.Meanings().size(); ++i) {
    const Meaning& meaning = device.Meanings()[i];
    for (std::size_t j = 0; j < meaning.settings.size(); ++j) {
      const bool isOfAnother = meaning.reason == Word::kNotInBackups;
      if (isOfAnother != areOfOthers || !IsCalled({&meaning, meaning.settings[j]}, device, name)) {
        continue;
      }
      const Meaning& own = backup.Meanings()[i];
      found.push_back({&own, own.settings[j]});
    }
  }
  return found;
}

std::vector<std::wstring> NamesOf(const BackupSettings& backup) {
  std::vector<std::wstring> names;
  for (const Meaning& meaning : backup.Meanings()) {
    if (meaning.reason == Word::kNotInBackups) continue;
    names.insert(names.end(), {meaning.name, meaning.label, meaning.settings[0]->Name()});
  }
  return names;
}

// The words may be of either language.
std::optional<std::int32_t> NumberOf(const BackupSettings& settings, const NamedSetting& named,
                                     const std::wstring& words) {
  const auto number = NumberOfWords(*named.meaning, *named.setting, words, settings.Device());
  if (number) return number;
  const auto place = static_cast<std::size_t>(named.meaning - settings.Meanings().data());
  const MeaningDevice& other = settings.InOtherTongue();
  return NumberOfWords(other.Meanings()[place], *named.setting, words, other);
}

std::wstring AllowedInWords(const NamedSetting& named, const MeaningDevice& device) {
  if (IsColor(*named.meaning, *named.setting)) return L"a color as #RRGGBB";
  if (HasLimits(*named.setting)) {
    const ValueRange range = RangeOf(*named.setting);
    return L"a number from " + FormatDecimal(range.first) + L" to " + FormatDecimal(range.last);
  }
  const std::wstring choices =
      ChoicesInWords(*named.meaning, *named.setting, device, kMostChoicesTold);
  if (choices.empty()) return L"a whole number";
  return (named.meaning->kind == ValueKind::kCodes ? L"some of " : L"one of ") + choices;
}

std::string SetOne(BackupDocument& document, const BackupSettings& settings,
                   const NamedSetting& named, const std::wstring& name, const std::wstring& words) {
  const auto& [meaning, setting] = named;
  if (meaning->kind == ValueKind::kBits) {
    return Quoted(name) +
           " is kept by the Today item in a form that backups do not have: leave it.";
  }
  bool isDefault = EqualIgnoringCase(words, kDefault);
  NewValue value{meaning->kind != ValueKind::kText, 0, words};
  if (value.isNumber && !isDefault) {
    const std::optional<std::int32_t> number = NumberOf(settings, named, words);
    if (!number) {
      return Quoted(name) + " cannot be " + Quoted(words) + ": choose " +
             ToUtf8(AllowedInWords(named, settings.Device())) + ".";
    }
    value.number = *number;
  }
  // A default is not stored, so that a later one reaches the user.
  const std::wstring plain = value.isNumber ? FormatDecimal(value.number) : words;
  isDefault = isDefault ||
              (settings.Device().KnowsDefault(*setting) && DefaultOf(*setting).Plain() == plain);
  const StoredValue* own = document.Find(PathOf(*setting), setting->Name());
  if (!isDefault) {
    return SentenceOf(document, document.Set(PathOf(*setting), setting->Name(), value), name);
  }
  return own ? SentenceOf(document, document.Remove(*own), name) : std::string();
}

// What a merge takes.
class MergeSelection {
 public:
  MergeSelection(const BackupSettings& from, const MergeChoice& choice)
      : from_(from.Document()), choice_(choice), isOfGroups_(KeysOfGroups(from, choice.only)) {}

  // A sentence on trouble. What stays may be there in the base alone.
  std::string Read(const BackupDocument& base, const BackupSettings& from) {
    for (const std::wstring& word : choice_.only) {
      if (IsGroup(from.Device(), word)) continue;
      std::string trouble = Find(from, word, named_);
      if (trouble.empty()) continue;
      const std::wstring title = NearestOf(GroupTitles(from.Device()), word);
      return title.empty() ? trouble
                           : "there is no group " + Quoted(word) + ": choose " + Quoted(title) +
                                 " or another.";
    }
    for (const std::wstring& name : choice_.except) {
      std::string trouble = Find(from, name, excepted_);
      const bool isInBase = std::ranges::any_of(
          base.Values(), [&](const StoredValue& value) { return IsNamed(base, value, name); });
      if (!trouble.empty() && !isInBase) return trouble;
    }
    return {};
  }

  bool Takes(const Meaning& meaning, const Setting* setting) const {
    if (meaning.reason == Word::kNotInBackups || excepted_.contains(setting)) return false;
    return named_.contains(setting) ||
           IsOnly([&](const auto& group) { return IsOfGroup(meaning, group); });
  }
  bool Takes(const StoredValue& value) const {
    return (isOfGroups_[value.key] || IsAmong(choice_.only, value)) &&
           !IsAmong(choice_.except, value);
  }
  bool IsOnly(auto fits) const {
    return choice_.only.empty() || std::ranges::any_of(choice_.only, fits);
  }

 private:
  bool IsAmong(const std::vector<std::wstring>& names, const StoredValue& value) const {
    return std::ranges::any_of(
        names, [&](const std::wstring& each) { return IsNamed(from_, value, each); });
  }
  // The settings of a name; trouble only where no value of it is unknown to the catalogue either.
  std::string Find(const BackupSettings& from, const std::wstring& name,
                   std::set<const Setting*>& settings) const {
    std::string trouble;
    for (const NamedSetting& found : FindNamed(from, name, trouble)) settings.insert(found.setting);
    if (trouble.empty()) return {};
    const bool isOther = std::ranges::any_of(
        from.OtherValues(), [&](const StoredValue* value) { return IsNamed(from_, *value, name); });
    return isOther ? std::string() : trouble;
  }

  const BackupDocument& from_;
  const MergeChoice& choice_;
  std::vector<bool> isOfGroups_;
  std::set<const Setting*> named_;
  std::set<const Setting*> excepted_;
};

std::string MergeRecords(BackupDocument& document, const BackupDocument& from,
                         const MergeSelection& selection) {
  if (selection.IsOnly(IsCategoriesGroup)) {
    for (const CategoryLines& category : from.Categories()) {
      if (from.FindCategory(category.name) != &category) continue;
      std::string trouble = SentenceOf(document, document.TakeCategory(category), category.name);
      if (!trouble.empty()) return trouble;
    }
  }
  if (selection.IsOnly(IsFiltersGroup)) {
    for (const FilterLines& filter : from.Filters()) {
      const bool isReal = filter.index >= 1 && filter.index <= kFilterCount;
      if (!isReal || from.FindFilter(filter.index) != &filter) continue;
      std::string trouble = SentenceOf(document, document.TakeFilter(filter), filter.title);
      if (!trouble.empty()) return trouble;
    }
  }
  return {};
}

}  // namespace

std::vector<NamedSetting> FindNamed(const BackupSettings& backup, const std::wstring& name,
                                    std::string& trouble) {
  std::wstring wanted = name;
  std::ranges::replace(wanted, L'\\', L'/');
  std::vector<NamedSetting> found = AllCalled(backup, backup.Device(), wanted);
  if (found.empty()) found = AllCalled(backup, backup.InOtherTongue(), wanted);
  const auto isOther = [&](const NamedSetting& each) { return each.meaning != found[0].meaning; };
  if (found.empty() && !AllCalled(backup, backup.Device(), wanted, true).empty()) {
    trouble = Quoted(name) + " is of another program and in no backup: choose another setting.";
  } else if (found.empty()) {
    const std::wstring nearest = NearestOf(NamesOf(backup), wanted);
    trouble = "there is no setting " + Quoted(name) + ": choose " +
              (nearest.empty() ? "one" : Quoted(nearest) + " or another") +
              " that the command list tells.";
  } else if (std::ranges::any_of(found, isOther)) {
    trouble = Quoted(name) + " may be any of";
    for (const NamedSetting& named : found) trouble += " " + ToUtf8(NameOf(*named.setting));
    trouble += ": name the one that is meant.";
    found.clear();
  }
  return found;
}

std::string SetByName(BackupDocument& document, const BackupSettings& settings,
                      const std::vector<std::wstring>& assignments) {
  std::set<const Setting*> done;
  std::string trouble;
  for (const std::wstring& assignment : assignments) {
    const std::size_t equals = assignment.find(L'=');
    if (equals == std::wstring::npos || equals == 0) {
      return Quoted(assignment) + " sets nothing: write NAME=VALUE.";
    }
    const std::wstring name = assignment.substr(0, equals);
    const std::wstring words = assignment.substr(equals + 1);
    const std::vector<NamedSetting> found = FindNamed(settings, name, trouble);
    if (found.size() > 1 && !EqualIgnoringCase(words, kDefault)) {
      return Quoted(name) + " is six values: name one of them, " +
             ToUtf8(NameOf(*found[0].setting)) + " or one like it.";
    }
    for (const NamedSetting& named : found) {
      if (!done.insert(named.setting).second) {
        return Quoted(name) + " is set twice: name it once.";
      }
      trouble = SetOne(document, settings, named, name, words);
      if (!trouble.empty()) break;
    }
    if (!trouble.empty()) return trouble;
  }
  return {};
}

std::string Merge(BackupDocument& document, const BackupSettings& from, const MergeChoice& choice) {
  const BackupDocument& theirs = from.Document();
  MergeSelection selection(from, choice);
  std::string trouble = selection.Read(document, from);
  if (!trouble.empty()) return trouble;
  for (const Meaning& meaning : from.Meanings()) {
    for (const Setting* setting : meaning.settings) {
      if (selection.Takes(meaning, setting)) trouble = TakeSetting(document, theirs, *setting);
      if (!trouble.empty()) return trouble;
    }
  }
  for (const StoredValue* value : from.OtherValues()) {
    if (selection.Takes(*value)) trouble = TakeValue(document, theirs, *value);
    if (!trouble.empty()) return trouble;
  }
  return MergeRecords(document, theirs, selection);
}

std::string SchemeOf(const BackupDocument& document, std::vector<std::byte>& scheme) {
  MemoryMachine memory;
  const Machine machine = memory.Door();
  for (const StoredValue* value : SchemeValues(document)) {
    const auto key = memory.registry.Create(RegistryRoot::kCurrentUser,
                                            std::wstring(document.Keys()[value->key].path));
    key->Set(std::wstring(value->name), value->type, document.DataOf(*value));
  }
  SettingsStore store;
  CategoryCatalog catalog(machine, store);
  for (const CategoryLines& each : document.Categories()) {
    catalog.Add({std::wstring(each.name), 1, false});
    CategoryRecord* record = catalog.FindCategory(each.name);
    if (!record) continue;
    record->filterFlags = static_cast<std::uint32_t>(each.flags);
    record->color = static_cast<std::uint32_t>(each.color);
  }
  const std::wstring path = L"\\scheme";
  {
    const auto file = memory.files.OpenForWriting(path).stream;
    TextWriter writer(*file);
    for (const SettingKey tree : kSchemeTrees) {
      WriteKeyTree(memory.registry, LocationOf(tree).path, writer);
    }
    WriteCategoriesSection(catalog, writer);
    writer.Flush();
  }
  scheme = memory.files.Contents(path).value_or(std::vector<std::byte>());
  const BackupDocument made(scheme);
  for (const StoredValue* value : SchemeValues(document)) {
    const StoredValue* written = made.Find(document.Keys()[value->key].path, value->name);
    if (written && AreSame(made, *written, document, *value)) continue;
    return Quoted(value->name) +
           " has no room in a scheme, or stands behind what has none: set longer texts among the "
           "colors and fonts to others first.";
  }
  return {};
}

std::string ApplyScheme(BackupDocument& document, const BackupDocument& scheme) {
  for (const StoredValue* own : SchemeValues(document)) {
    if (scheme.Find(document.Keys()[own->key].path, own->name)) continue;
    std::string trouble = SentenceOf(document, document.Remove(*own), own->name);
    if (!trouble.empty()) return trouble;
  }
  for (const StoredValue* value : SchemeValues(scheme)) {
    std::string trouble = TakeValue(document, scheme, *value);
    if (!trouble.empty()) return trouble;
  }
  for (const CategoryLines& category : scheme.Categories()) {
    const bool hasSay = scheme.FindCategory(category.name) == &category;
    if (!hasSay || !document.FindCategory(category.name)) continue;
    std::string trouble = SentenceOf(document, document.TakeCategory(category), category.name);
    if (!trouble.empty()) return trouble;
  }
  return {};
}

}  // namespace tidewell
