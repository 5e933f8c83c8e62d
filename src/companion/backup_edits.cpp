#include "companion/backup_edits.h"

#include <algorithm>
#include <array>
#include <set>

#include "backup/registry_text.h"
#include "companion/reports.h"
#include "platform/memory/memory_machine.h"
#include "platform/text.h"
#include "settings/registry_values.h"

namespace tidewell {

namespace {

const std::wstring kDefault = L"default";

std::string Quoted(std::wstring_view text) {
  return "\"" + ToUtf8(text) + "\"";
}

// Empty for kDone.
std::string SentenceOf(EditStatus status, std::wstring_view name) {
  switch (status) {
    case EditStatus::kUnwritable:
      return Quoted(name) +
             " cannot be written so, for a line has room for 800 characters without "
             "line breaks: choose a shorter or another value.";
    case EditStatus::kEntangled:
      return Quoted(name) +
             " cannot be changed, for its line is a piece of a longer one or lacks "
             "its line end: mend what the command check tells first.";
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
  return SentenceOf(document.Take(from, value), value.name);
}

std::string TakeSetting(BackupDocument& document, const BackupDocument& from,
                        const Setting& setting) {
  const StoredValue* theirs = from.Find(PathOf(setting), setting.Name());
  if (theirs) return TakeValue(document, from, *theirs);
  const StoredValue* own = document.Find(PathOf(setting), setting.Name());
  return own ? SentenceOf(document.Remove(*own), setting.Name()) : std::string();
}

// What a merge takes.
class MergeSelection {
 public:
  MergeSelection(const BackupSettings& from, const MergeChoice& choice)
      : from_(from.Document()), choice_(choice), isOfGroups_(KeysOfGroups(from, choice.only)) {}

  std::string Read(const BackupSettings& from) {
    for (const std::wstring& name : choice_.except) {
      if (IsOther(from, name)) continue;
      std::string trouble;
      for (const NamedSetting& named : FindNamed(from, name, trouble)) {
        excepted_.insert(named.setting);
      }
      if (!trouble.empty()) return trouble;
    }
    return {};
  }

  bool Takes(const Meaning& meaning) const {
    return meaning.reason != Word::kNotInBackups &&
           IsOnly([&](const auto& group) { return IsOfGroup(meaning, group); });
  }
  bool Takes(const Setting* setting) const { return !excepted_.contains(setting); }
  bool Takes(const StoredValue& value) const {
    return isOfGroups_[value.key] &&
           std::ranges::none_of(choice_.except, [&](const std::wstring& each) {
             return EqualIgnoringCase(each, tidewell::NameOf(from_, value));
           });
  }
  bool IsOnly(auto fits) const {
    return choice_.only.empty() || std::ranges::any_of(choice_.only, fits);
  }

 private:
  static bool IsOther(const BackupSettings& from, const std::wstring& name) {
    return std::ranges::any_of(from.OtherValues(), [&](const StoredValue* value) {
      return EqualIgnoringCase(tidewell::NameOf(from.Document(), *value), name);
    });
  }

  const BackupDocument& from_;
  const MergeChoice& choice_;
  std::vector<bool> isOfGroups_;
  std::set<const Setting*> excepted_;
};

std::string MergeRecords(BackupDocument& document, const BackupDocument& from,
                         const MergeSelection& selection) {
  if (selection.IsOnly(IsCategoriesGroup)) {
    for (const CategoryLines& category : from.Categories()) {
      std::string trouble = SentenceOf(document.TakeCategory(from, category), category.name);
      if (!trouble.empty()) return trouble;
    }
  }
  if (selection.IsOnly(IsFiltersGroup)) {
    for (const FilterLines& filter : from.Filters()) {
      std::string trouble = SentenceOf(document.TakeFilter(from, filter), filter.title);
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
  std::vector<NamedSetting> found;
  std::set<const Meaning*> meanings;
  for (const Meaning& meaning : backup.Meanings()) {
    for (Setting* setting : meaning.settings) {
      const NamedSetting named{&meaning, setting};
      if (meaning.reason == Word::kNotInBackups || !IsCalled(named, backup.Device(), wanted))
        continue;
      found.push_back(named);
      meanings.insert(&meaning);
    }
  }
  if (found.empty()) {
    trouble = "there is no setting " + Quoted(name) + ": the command list tells all names.";
  } else if (meanings.size() > 1) {
    trouble = Quoted(name) + " may be any of";
    for (const NamedSetting& named : found) trouble += " " + ToUtf8(NameOf(*named.setting));
    trouble += ": name the one that is meant.";
    found.clear();
  }
  return found;
}

std::string SetByName(BackupDocument& document, const BackupSettings& settings,
                      const std::wstring& assignment) {
  const std::size_t equals = assignment.find(L'=');
  if (equals == std::wstring::npos) {
    return Quoted(assignment) + " sets nothing: write NAME=VALUE.";
  }
  std::string trouble;
  const std::wstring name = assignment.substr(0, equals);
  const std::wstring words = assignment.substr(equals + 1);
  const std::vector<NamedSetting> found = FindNamed(settings, name, trouble);
  if (found.empty()) return trouble;

  const bool isDefault = EqualIgnoringCase(words, kDefault);
  if (found.size() > 1 && !isDefault) {
    return Quoted(name) + " is six values: name one of them, " + ToUtf8(NameOf(*found[0].setting)) +
           " or one like it.";
  }
  for (const auto& [meaning, setting] : found) {
    if (meaning->kind == ValueKind::kBits) {
      return Quoted(name) +
             " is kept by the Today item in a form that backups do not have: leave it.";
    }
    NewValue value{meaning->kind != ValueKind::kText, 0, words};
    if (value.isNumber && !isDefault) {
      const auto number = NumberOfWords(*meaning, *setting, words, settings.Device());
      if (!number) {
        const std::string choices = ToUtf8(ChoicesInWords(*meaning, *setting));
        return Quoted(name) + " cannot be " + Quoted(words) + ": choose " +
               (choices.empty() ? "a whole number" : "of " + choices) + ".";
      }
      value.number = *number;
    }
    // A default is not stored, so that a later one reaches the user.
    const bool isKnown = settings.Device().KnowsDefault(*setting);
    const std::wstring plain = value.isNumber ? FormatDecimal(value.number) : words;
    const StoredValue* own = document.Find(PathOf(*setting), setting->Name());
    if (isDefault || (isKnown && DefaultOf(*setting).Plain() == plain)) {
      if (own) trouble = SentenceOf(document.Remove(*own), name);
    } else {
      trouble = SentenceOf(document.Set(PathOf(*setting), setting->Name(), value), name);
    }
    if (!trouble.empty()) return trouble;
  }
  return {};
}

std::string Merge(BackupDocument& document, const BackupSettings& from, const MergeChoice& choice) {
  const BackupDocument& theirs = from.Document();
  MergeSelection selection(from, choice);
  std::string trouble = selection.Read(from);
  if (!trouble.empty()) return trouble;
  for (const Meaning& meaning : from.Meanings()) {
    if (!selection.Takes(meaning)) continue;
    for (const Setting* setting : meaning.settings) {
      if (selection.Takes(setting)) trouble = TakeSetting(document, theirs, *setting);
      if (!trouble.empty()) return trouble;
    }
  }
  for (const StoredValue* value : from.OtherValues()) {
    if (selection.Takes(*value)) trouble = TakeValue(document, theirs, *value);
    if (!trouble.empty()) return trouble;
  }
  return MergeRecords(document, theirs, selection);
}

std::vector<std::byte> SchemeOf(const BackupDocument& document) {
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
  return memory.files.Contents(path).value_or(std::vector<std::byte>());
}

std::string ApplyScheme(BackupDocument& document, const BackupDocument& scheme) {
  for (const StoredValue* own : SchemeValues(document)) {
    if (scheme.Find(document.Keys()[own->key].path, own->name)) continue;
    std::string trouble = SentenceOf(document.Remove(*own), own->name);
    if (!trouble.empty()) return trouble;
  }
  for (const StoredValue* value : SchemeValues(scheme)) {
    std::string trouble = TakeValue(document, scheme, *value);
    if (!trouble.empty()) return trouble;
  }
  for (const CategoryLines& category : scheme.Categories()) {
    if (!document.FindCategory(category.name)) continue;
    std::string trouble = SentenceOf(document.TakeCategory(scheme, category), category.name);
    if (!trouble.empty()) return trouble;
  }
  return {};
}

}  // namespace tidewell
