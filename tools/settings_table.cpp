// Writes docs/settings.md, the settings as a document: settings_table FILE
#include <array>
#include <cstdio>
#include <utility>

#include "platform/text.h"
#include "settings/settings_store.h"
#include "tools/document.h"

namespace tidewell {

namespace {

constexpr const wchar_t* kIntroduction =
    LR"(# The settings

*Written by the program `settings_table` from the catalogue in `src/settings/catalogue/`; a test
fails when this page is older than the catalogue. Change the catalogue, then run
`cmake --build --preset host --target settings_table && build/host/tools/settings_table docs/settings.md`.*

Every setting is one registry value. Names are those that the Today item reads, odd spellings
included.

- **A value equal to its default is not stored.** What is absent, cannot be read or is too short or
  too long for a number is its default. The stored type matters to flags alone, which must be
  binary and of their exact size.
- **Only changed settings are written**, when the user leaves with Done. *Read only* marks what the
  Today item writes itself: loaded here, never saved.
- **Defaults in pixels** are lengths at 96 dots per inch: `ScaleX(12)` is 12 at 96 and 24 at 192.
- **The install folder** is the value of `ProgramFiles` and `\Velmont\Tidewell`.
- Keys and values are listed in the order in which they are loaded and saved.

## Repairs

| When | Value | Rule |
|---|---|---|
)";

constexpr const wchar_t* kOtherRepairs =
    LR"(| load | `TimelinesLength` | becomes 18 - `TimelinesStart` when both and 6 exceed 24 |
| load | `CalTitlesOrder0` to `5` | become 0 to 5 unless they are a permutation of those |
| load | `ActiveTab` | becomes 1 unless it is the order of an enabled built-in tab; becomes the order of the `DfltTab` tab when `DfltTabOnStartup` is 1 and `DfltTab` is below 6 |
| load | tab orders | become 1, 2, 3 ... in the order of the list |
| save | `PinnedMonthlyClr` | becomes 0 when it is 1 and `dHeightLimit` is below ScaleX(200) |

A repaired value counts as changed and reaches the registry at the next save, but for `ActiveTab`,
which is never saved, and for a repair that only follows from a value that could not be read.

## Read beside the settings

- Theme colours: under `HKEY_LOCAL_MACHINE\SOFTWARE\Microsoft\Color`, the value named by the colour's
  index (4, 6, 8, 9, 34, 35), else the three bytes at four times the index in `SHColor`. Systems
  before Windows Mobile 5 have no 34 and 35.
- Other calendar programs are installed when these values exist:
  `HKEY_CURRENT_USER\SOFTWARE\Velmont Calendar` `ExecutablePath`,
  `HKEY_CURRENT_USER\Software\WebIS\PocketInformant` `version`,
  `HKEY_LOCAL_MACHINE\SOFTWARE\Developer One, Inc.\Agenda Fusion` `VerMajor`,
  `HKEY_CURRENT_USER\SOFTWARE\Developer One\Agenda One` `InstallPath`.

## Adding a setting

One line in the struct of its key, at the place where it is to be loaded and saved, does it:

    DwordSetting IndentItems{*this, L"IndentItems", 0};

Loading, saving, this page and the test that walks every setting follow.
)";

struct KeyText {
  const wchar_t* title;
  const wchar_t* about;
};

// In load order.
constexpr std::array<KeyText, 16> kKeyTexts = {{
    {L"Today item", L"What the Today screen's own key tells of the installation. Never created."},
    {L"Pocket Informant", L"Where that program keeps its category icons and its database."},
    {L"Agenda Fusion", L"Where that program keeps its category icons."},
    {L"General", L"The item as a whole."},
    {L"Calendar", L"The calendar tab, and the general settings of mail and weather."},
    {L"Tasks", L"The tasks tab."},
    {L"Notes", L"The notes tab."},
    {L"Contacts", L"The contacts tab."},
    {L"Messages", L"The mail tab."},
    {L"Special events", L"Birthdays, anniversaries and other special events."},
    {L"Fonts", L"General sizes and face, then the single fonts."},
    {L"Colors", L"Colours as 0x00BBGGRR; -1 is none of its own."},
    {L"Custom PIM", L"The personal-information program that the item works with."},
    {L"Tabs",
     L"The tab strip. Each hosted Today plug-in has a subkey named after it, with `Enabled` "
     L"(default "
     L"0), `Order` (default 9), `Type` (1), `DLL`, `InstallPath` and `CustomIconName` (default "
     L"empty). The subkey `Contacts` is none of them and stays."},
    {L"Categories", L"The categories as a whole; each category has a record of its own."},
    {L"Icon set",
     L"The folders of the chosen icon set by their pictures' size, and one of blank pictures. "
     L"[icon-sets.md](icon-sets.md) tells more."},
}};

std::wstring Code(const std::wstring& text) {
  return L"`" + text + L"`";
}

std::wstring Quoted(const wchar_t* text) {
  return Code(L"\"" + std::wstring(text) + L"\"");
}

std::wstring WithSuffix(const std::wstring& base, const wchar_t* suffix) {
  return *suffix ? base + L" and " + Quoted(suffix) : base;
}

// A default as it reads in a document: 7, ScaleX(12), `"Tahoma"`.
std::wstring DescribeDefault(const DwordDefault& rule) {
  std::wstring number = FormatDecimal(static_cast<std::int32_t>(rule.number));
  switch (rule.rule) {
    case DwordDefault::Rule::kScaledX:
      return L"ScaleX(" + number + L")";
    case DwordDefault::Rule::kScaledY:
      return L"ScaleY(" + number + L")";
    case DwordDefault::Rule::kFirstDayOfWeek:
      return L"the locale's first day of the week";
    case DwordDefault::Rule::kLiteral:
      break;
  }
  return number;
}

std::wstring DescribeDefault(const StringDefault& rule) {
  switch (rule.rule) {
    case StringDefault::Rule::kInstallFolder:
      return WithSuffix(L"the install folder", rule.text);
    case StringDefault::Rule::kOtherSetting:
      return WithSuffix(L"the value of " + Code(rule.other->Name()), rule.text);
    case StringDefault::Rule::kLiteral:
      break;
  }
  return Quoted(rule.text);
}

class TableWriter final : public SettingVisitor {
 public:
  using SettingVisitor::Visit;

  void Start(SettingKey key) {
    const KeyText& text = kKeyTexts[static_cast<std::size_t>(key)];
    const KeyLocation location = LocationOf(key);
    const bool machine = location.root == RegistryRoot::kLocalMachine;
    const std::wstring root = machine ? L"HKEY_LOCAL_MACHINE\\" : L"HKEY_CURRENT_USER\\";
    text_ += L"\n## " + std::wstring(text.title) + L"\n\n" + Code(root + location.path) + L"\n\n" +
             text.about + L"\n";
    columns_ = Columns::kNone;
  }

  void Visit(DwordSetting& setting) override {
    Row(setting, L"number", DescribeDefault(setting.DefaultRule()));
  }
  void Visit(StringSetting& setting) override {
    Row(setting, L"text", DescribeDefault(setting.DefaultRule()));
  }
  void Visit(FlagArraySetting& setting) override {
    const std::wstring type = FormatDecimal(static_cast<std::int32_t>(setting.Bits())) + L" flags";
    Row(setting, type, setting.DefaultRule() == FlagFill::kAllSet ? L"all set" : L"all clear");
  }
  void Visit(FontSetting& setting) override {
    Head(Columns::kFont);
    std::wstring row = L"| " + Code(setting.Name());
    for (const DwordSetting* member : setting.Members()) {
      row += L" | " + DescribeDefault(member->DefaultRule());
    }
    text_ += row + L" |\n";
  }

  std::wstring Take() { return std::move(text_); }

 private:
  enum class Columns { kNone, kValue, kFont };

  void Head(Columns columns) {
    if (columns_ == columns) return;
    columns_ = columns;
    if (columns == Columns::kValue) {
      text_ += L"\n| Value | Type | Default | |\n|---|---|---|---|\n";
    } else {
      text_ +=
          L"\nEach font is six numbers, named by its prefix and the column's heading.\n\n"
          L"| Prefix | `lfWeight` | `lfItalic` | `lfUnderline` | `lfStrikeOut` | `lfHeight` | "
          L"`lfColor` |\n|---|---|---|---|---|---|---|\n";
    }
  }

  void Row(const Setting& setting, const std::wstring& type, const std::wstring& byDefault) {
    Head(Columns::kValue);
    text_ += L"| " + Code(setting.Name()) + L" | " + type + L" | " + byDefault +
             (setting.IsReadOnly() ? L" | read only |\n" : L" | |\n");
  }

  std::wstring text_;
  Columns columns_ = Columns::kNone;
};

// The repairs that stand in the settings' own lines.
class RangeWriter final : public SettingVisitor {
 public:
  void Visit(DwordSetting& setting) override {
    const ValueRange& range = setting.Range();
    if (range.checked == ValueRange::Checked::kNever) return;
    text_ += std::wstring(range.checked == ValueRange::Checked::kAtLoad ? L"| load" : L"| save") +
             L" | " + Code(setting.Name()) + L" | outside " + FormatDecimal(range.first) + L" to " +
             FormatDecimal(range.last) + L" it becomes " + DescribeDefault(setting.DefaultRule()) +
             L" |\n";
  }
  void Visit(StringSetting&) override {}
  void Visit(FlagArraySetting&) override {}
  void Visit(FontSetting&) override {}

  std::wstring Take() { return std::move(text_); }

 private:
  std::wstring text_;
};

// Markdown in plain ASCII, lines ended by a line feed.
std::string SettingsTable() {
  SettingsStore store;
  RangeWriter ranges;
  TableWriter writer;
  for (SettingGroup* group : store.Groups()) {
    group->Accept(ranges);
    writer.Start(group->Key());
    group->Accept(writer);
  }
  const std::wstring text = kIntroduction + ranges.Take() + kOtherRepairs + writer.Take();
  return {text.begin(), text.end()};
}

}  // namespace

}  // namespace tidewell

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: settings_table FILE\n", stderr);
    return 2;
  }
  if (tidewell::WriteDocument(argv[1], tidewell::SettingsTable())) return 0;
  std::perror(argv[1]);
  return 1;
}
