#include "companion/meanings.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <utility>

#include "pages/page_list.h"
#include "pages/settings_without_row.h"
#include "platform/text.h"
#include "resources/text/text_ids.h"
#include "settings/registry_values.h"

namespace tidewell {

namespace {

struct NamedScreen {
  const char* name;
  ScreenFacts facts;
};
// As the devices were sold.
constexpr std::array<NamedScreen, 5> kScreens = {{{"qvga", {240, 320, 96, 96}},
                                                  {"qvga-landscape", {320, 240, 96, 96}},
                                                  {"square", {240, 240, 96, 96}},
                                                  {"vga", {480, 640, 192, 192}},
                                                  {"vga-landscape", {640, 480, 192, 192}}}};
constexpr ScreenFacts kScreenOfEveryRow = kScreens[3].facts;

struct NamedLocale {
  const char* name;
  const wchar_t* timeStyle;
  const wchar_t* firstDayOfWeek;
  const wchar_t* shortDate;
};
constexpr std::array<NamedLocale, 5> kLocales = {{{"en_US", L"0", L"6", L"M/d/yyyy"},
                                                  {"en_GB", L"1", L"0", L"dd/MM/yyyy"},
                                                  {"de_DE", L"1", L"0", L"dd.MM.yyyy"},
                                                  {"de_AT", L"1", L"0", L"dd.MM.yyyy"},
                                                  {"de_CH", L"1", L"0", L"dd.MM.yyyy"}}};

const NamedLocale* FindLocale(std::wstring name) {
  std::ranges::replace(name, L'-', L'_');
  const auto* const found = std::ranges::find_if(kLocales, [&](const NamedLocale& locale) {
    return EqualIgnoringCase(FromUtf8(locale.name), name);
  });
  return found == kLocales.end() ? nullptr : found;
}

template <typename List>
std::vector<std::string> NamesOf(const List& list) {
  std::vector<std::string> names;
  names.reserve(list.size());
  for (const auto& entry : list) names.emplace_back(entry.name);
  return names;
}

class LineGatherer final : public SettingVisitor {
 public:
  void Visit(DwordSetting& setting) override { lines.push_back({&setting, {&setting}}); }
  void Visit(StringSetting& setting) override { lines.push_back({&setting, {&setting}}); }
  void Visit(FlagArraySetting& setting) override { lines.push_back({&setting, {&setting}}); }
  void Visit(FontSetting& setting) override {
    const auto members = setting.Members();
    lines.push_back({&setting, {members.begin(), members.end()}});
  }

  std::vector<StoredLine> lines;
};

// What follows from the type alone.
class KindFinder final : public SettingVisitor {
 public:
  void Visit(DwordSetting& setting) override {
    const bool isColor =
        setting.Key() == SettingKey::kColors || setting.Name().ends_with(L"lfColor");
    kind = isColor ? ValueKind::kColor : ValueKind::kNumber;
  }
  void Visit(StringSetting&) override { kind = ValueKind::kText; }
  void Visit(FlagArraySetting&) override { kind = ValueKind::kBits; }
  void Visit(FontSetting&) override { kind = ValueKind::kFont; }

  ValueKind kind = ValueKind::kNumber;
};

ValueKind KindOf(Setting& setting) {
  KindFinder finder;
  setting.Accept(finder);
  return finder.kind;
}

class RuleFinder final : public SettingVisitor {
 public:
  using SettingVisitor::Visit;
  void Visit(DwordSetting& setting) override { number = setting.DefaultRule().rule; }
  void Visit(StringSetting& setting) override { text = setting.DefaultRule().rule; }
  void Visit(FlagArraySetting&) override {}

  DwordDefault::Rule number = DwordDefault::Rule::kLiteral;
  StringDefault::Rule text = StringDefault::Rule::kLiteral;
};

RuleFinder RuleOf(Setting& setting) {
  RuleFinder finder;
  setting.Accept(finder);
  return finder;
}

std::wstring WithoutSoftHyphens(std::wstring text) {
  std::erase(text, L'\u00AD');
  return text;
}

Word ReasonOf(const Setting& setting) {
  switch (WhyNoRow(setting)) {
    case NoRow::kKeptByTodayItem:
      return Word::kKeptByTodayItem;
    case NoRow::kOfAnotherProgram:
      return Word::kNotInBackups;
    case NoRow::kAfterFirstStart:
      return Word::kNoteAfterFirstStart;
    case NoRow::kOnTodayScreen:
      return Word::kOnTodayScreen;
    case NoRow::kWithAnother:
      return Word::kWithAnother;
    case NoRow::kNotListed:
      return Word::kNotListed;
    case NoRow::kNotKnown:
      break;
  }
  return Word::kNoPageShowsIt;
}

}  // namespace

std::optional<ScreenFacts> ScreenOfName(std::string_view name) {
  const auto* const found = std::ranges::find(kScreens, name, &NamedScreen::name);
  if (found == kScreens.end()) return std::nullopt;
  return found->facts;
}
std::vector<std::string> ScreenNames() {
  return NamesOf(kScreens);
}
std::vector<std::string> LocaleNames() {
  return NamesOf(kLocales);
}

std::vector<StoredLine> LinesOf(SettingsStore& store) {
  LineGatherer gatherer;
  for (SettingGroup* group : store.Groups()) group->Accept(gatherer);
  return std::move(gatherer.lines);
}

std::wstring KeyName(SettingKey key) {
  const std::wstring path = LocationOf(key).path;
  return path.substr(path.rfind(L'\\') + 1);
}

// Takes in the rows of the pages, one after the other. A setting that has a meaning keeps it.
class MeaningDevice::Collector {
 public:
  explicit Collector(MeaningDevice& device) : device_(device) {
    for (const StoredLine& line : LinesOf(device.store_)) {
      for (Setting* member : line.members) lines_[member] = line;
      lines_[line.setting] = line;
    }
  }

  void TakePage(int page, const PageTabs& tabs) {
    for (const PageTab& tab : tabs) {
      page_ = page;
      tab_ = device_.Text(tab.titleId);
      TakeTab(tab);
    }
    std::ranges::move(page_meanings_, std::back_inserter(found_[page]));
    page_meanings_.clear();
  }

  // Pages in their order, then the rest.
  std::vector<Meaning> All() {
    std::vector<Meaning> all;
    for (auto& [page, meanings] : found_) std::ranges::move(meanings, std::back_inserter(all));
    for (const StoredLine& line : LinesOf(device_.store_)) {
      if (!taken_.contains(line.setting)) all.push_back(WithoutRow(line));
    }
    return all;
  }

 private:
  void TakeTab(const PageTab& tab) {
    if (const auto* options = std::get_if<OptionList>(&tab.body)) {
      for (const Option& option : options->options) TakeRow(option.lineTextId, option.editor);
      return;
    }
    for (const Row* row : tab.Rows()) TakeRow(row->textId, *row);
    if (const auto* items = std::get_if<ItemList>(&tab.body)) TakeItems(*items);
  }

  // A list of items says what stands behind each of its lines, or behind all of them, or nothing.
  void TakeItems(const ItemList& list) {
    for (const SettingLine& line : list.lines) Take(line.setting, line.TextIn(device_.language_));
    for (const Setting* setting : list.settings) {
      Meaning* meaning = Take(setting, LabelOf(*setting));
      if (meaning && ShowsTab(*setting)) BeSwitch(*meaning);
    }
  }

  void TakeRow(int textId, const Row& row) {
    if (row.stored == Stored::kByRules && row.kind == RowKind::kCheck) {
      if (row.number) TakeBits(row);
      return;
    }
    const std::wstring label = device_.Text(textId);
    for (std::size_t i = 0; i < row.order.size(); ++i) {
      std::wstring place = label + L' ';
      place += FormatDecimal(static_cast<std::int32_t>(i + 1));
      if (Meaning* meaning = Take(row.order[i], place)) Describe(*meaning, row);
    }
    Meaning* meaning = row.number ? Take(row.number, label) : nullptr;
    if (meaning && meaning->kind == ValueKind::kNumber) Describe(*meaning, row);
    // A row may store a number and a name that goes with it.
    if (row.text) Take(row.text, row.number ? label + L": " + device_.Said(Word::kName) : label);
  }

  // Boxes that are parts of one setting: their tab says what it is.
  void TakeBits(const Row& row) {
    if (Meaning* meaning = Take(row.number, tab_)) meaning->kind = ValueKind::kCodes;
    const bool isNew =
        !page_meanings_.empty() && page_meanings_.back().settings.front() == row.number;
    if (isNew) AddChoices(page_meanings_.back(), row);
  }

  // Null when it has a meaning already.
  Meaning* Take(const Setting* setting, const std::wstring& label) {
    const StoredLine& line = lines_.at(setting);
    if (!taken_.insert(line.setting).second) return nullptr;
    page_meanings_.push_back(Named(line));
    Meaning& meaning = page_meanings_.back();
    meaning.page = page_;
    meaning.tab = tab_;
    meaning.label = WithoutSoftHyphens(label);
    return &meaning;
  }

  void BeSwitch(Meaning& meaning) const {
    meaning.kind = ValueKind::kSwitch;
    meaning.choices = {{0, device_.Said(Word::kOff)}, {1, device_.Said(Word::kOn)}};
  }

  void Describe(Meaning& meaning, const Row& row) const {
    switch (row.stored) {
      case Stored::kState:
        BeSwitch(meaning);
        break;
      case Stored::kPosition:
      case Stored::kData:
      case Stored::kOrder:
      case Stored::kByRules:
        meaning.kind = ValueKind::kChoice;
        AddChoices(meaning, row);
        break;
      case Stored::kCodes:
        meaning.kind = row.kind == RowKind::kIcons ? ValueKind::kCodes : ValueKind::kChoice;
        if (row.kind == RowKind::kIcon) meaning.choices = {{0, device_.Said(Word::kNoIcon)}};
        for (const MarkerChoice& icon : row.icons) {
          meaning.choices.push_back({icon.value, device_.Text(icon.textId)});
        }
        break;
      default:
        break;
    }
  }

  void AddChoices(Meaning& meaning, const Row& row) const {
    std::uint32_t position = 0;
    for (const Choice& choice : row.choices) {
      meaning.choices.push_back({row.HoldsData() ? choice.data : position,
                                 WithoutSoftHyphens(choice.TextIn(device_.language_))});
      ++position;
    }
  }

  static Meaning Named(const StoredLine& line) {
    Meaning meaning;
    meaning.kind = KindOf(*line.setting);
    meaning.settings = line.members;
    meaning.name = KeyName(line.setting->Key()) + L"/" + line.setting->Name();
    return meaning;
  }

  Meaning WithoutRow(const StoredLine& line) const {
    Meaning meaning = Named(line);
    meaning.label = LabelOf(*line.setting);
    meaning.reason = ReasonOf(*line.setting);
    if (ShowsTab(*line.setting)) BeSwitch(meaning);
    return meaning;
  }

  bool ShowsTab(const Setting& setting) const {
    return std::ranges::any_of(device_.store_.tabSettings.builtInTabs,
                               [&](const BuiltInTab& tab) { return &setting == &tab.enabled; });
  }

  // Of a built-in tab what it is called; else its own name has to do.
  std::wstring LabelOf(const Setting& setting) const {
    for (const BuiltInTab& tab : device_.store_.tabSettings.builtInTabs) {
      const std::wstring caption = device_.Text(tab.captionId) + L": ";
      if (&setting == &tab.enabled) return caption + device_.Said(Word::kShown);
      if (&setting == &tab.order) return caption + device_.Said(Word::kPlace);
    }
    return setting.Name();
  }

  MeaningDevice& device_;
  std::map<const Setting*, StoredLine> lines_;
  std::set<const Setting*> taken_;
  std::map<int, std::vector<Meaning>> found_;
  std::vector<Meaning> page_meanings_;
  int page_ = 0;
  std::wstring tab_;
};

MeaningDevice::MeaningDevice(const DeviceFacts& facts) : facts_(facts) {
  memory_.libraries.Put(L"texts", TextsOf(facts_.tongue));
  language_.Load(memory_.libraries, L"texts", {});
  UseLocale();
  InstallPrograms();
  Collector collector(*this);
  if (facts_.screen) Walk(*facts_.screen, collector);
  // What that device has no row for is called as where it has one.
  Walk(kScreenOfEveryRow, collector);
  meanings_ = collector.All();
  memory_.system.screen = facts_.screen.value_or(ScreenFacts{});
}

void MeaningDevice::UseLocale() {
  const bool isGerman = facts_.tongue == Tongue::kGerman;
  const NamedLocale& locale = *FindLocale(facts_.locale.value_or(isGerman ? L"de_DE" : L"en_US"));
  FixedLocale& own = memory_.locale;
  own.timeStyle = locale.timeStyle;
  own.firstDayOfWeek = locale.firstDayOfWeek;
  own.shortDate = locale.shortDate;
  if (isGerman) {
    own.dayNames = {L"Montag",  L"Dienstag", L"Mittwoch", L"Donnerstag",
                    L"Freitag", L"Samstag",  L"Sonntag"};
    own.shortDayLength = 2;
    own.monthNames = {L"Jan", L"Feb", L"Mrz", L"Apr", L"Mai", L"Jun",
                      L"Jul", L"Aug", L"Sep", L"Okt", L"Nov", L"Dez"};
    own.longDate = L"dddd, d. MMM yyyy";
  }
}

// So that every row is there.
void MeaningDevice::InstallPrograms() {
  constexpr const wchar_t* kLibrary = L"\\Library.dll";
  const auto put = [&](RegistryRoot root, const wchar_t* path, const wchar_t* name) {
    WriteString(memory_.registry.Create(root, path).get(), name, kLibrary);
  };
  constexpr RegistryRoot kUser = RegistryRoot::kCurrentUser;
  put(kUser, L"SOFTWARE\\Velmont Calendar", L"ExecutablePath");
  put(kUser, L"Software\\WebIS\\PocketInformant", L"version");
  put(kUser, L"SOFTWARE\\Developer One\\Agenda One", L"InstallPath");
  put(RegistryRoot::kLocalMachine, L"SOFTWARE\\Developer One, Inc.\\Agenda Fusion", L"VerMajor");
  put(kUser, L"SOFTWARE\\Velmont Weather", L"UtilityLibrary");
  put(kUser, L"SOFTWARE\\Velmont Listwise", L"UtilityLibrary");
  memory_.files.Put(kLibrary, "MZ");
}

void MeaningDevice::Walk(const ScreenFacts& screen, Collector& collector) {
  memory_.system.screen = screen;
  Load();
  for (int page = 0; page < kPageCount; ++page) {
    const PageEntry& entry = kPages[static_cast<std::size_t>(page)];
    collector.TakePage(page, entry.make(context_)->Tabs());
  }
}

void MeaningDevice::Load() {
  const ScreenFacts& screen = memory_.system.screen;
  const auto key =
      memory_.registry.Open(RegistryRoot::kCurrentUser, LocationOf(SettingKey::kRoot).path);
  const bool isDoubled = ReadDword(key.get(), store_.root.MyVgaMode.Name(), 0) != 0;
  context_.scale = ScreenScale(screen.dpiX, screen.dpiY, isDoubled);
  Language unused;
  store_.Load(machine_, context_.scale, unused);
}

std::wstring MeaningDevice::Text(int id) const {
  return WithoutSoftHyphens(language_.Text(id));
}

std::wstring MeaningDevice::PageTitle(int page) const {
  if (page < 0) return Said(Word::kNoPage);
  return Text(kPages[static_cast<std::size_t>(page)].captionId);
}

bool MeaningDevice::KnowsDefault(Setting& setting) const {
  const RuleFinder rule = RuleOf(setting);
  switch (rule.number) {
    case DwordDefault::Rule::kScaledX:
    case DwordDefault::Rule::kScaledY:
      // Twice the length wherever the double size is chosen.
      return facts_.screen || store_.root.MyVgaMode.Value() != 0;
    case DwordDefault::Rule::kFirstDayOfWeek:
      return facts_.locale.has_value();
    case DwordDefault::Rule::kLiteral:
      break;
  }
  return rule.text != StringDefault::Rule::kInstallFolder;
}

std::wstring MeaningDevice::DefaultRuleInWords(Setting& setting) const {
  const RuleFinder rule = RuleOf(setting);
  if (rule.text == StringDefault::Rule::kInstallFolder) return Said(Word::kInstallFolder);
  const bool isDay = rule.number == DwordDefault::Rule::kFirstDayOfWeek;
  return Said(isDay ? Word::kOfTheLocale : Word::kOfTheScreen);
}

}  // namespace tidewell
