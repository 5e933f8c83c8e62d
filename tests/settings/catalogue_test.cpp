// The whole catalogue: that it says what the Today item expects, and that every line of it works.
#include <fstream>
#include <sstream>

#include "settings/settings_table.h"
#include "tests/settings/store_fixture.h"
#include "tests/support/utf8.h"

namespace tidewell {
namespace {

std::string FileText(const char* path) {
  std::ifstream file(path, std::ios::binary);
  EXPECT_TRUE(file) << path;
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

// Writes the catalogue as the expected listing has it, one line for each registry value.
class Listing final : public SettingVisitor {
 public:
  using SettingVisitor::Visit;

  void Start(SettingKey key) {
    const KeyLocation location = LocationOf(key);
    const bool machine = location.root == RegistryRoot::kLocalMachine;
    text_ += machine ? L"[HKEY_LOCAL_MACHINE\\" : L"[HKEY_CURRENT_USER\\";
    text_ += location.path + std::wstring(L"]\n");
  }
  void Visit(DwordSetting& setting) override {
    const auto number = FormatDecimal(static_cast<std::int32_t>(setting.DefaultRule().number));
    switch (setting.DefaultRule().rule) {
      case DwordDefault::Rule::kLiteral:
        return Line(setting, L"number", number);
      case DwordDefault::Rule::kScaledX:
        return Line(setting, L"number", L"ScaleX(" + number + L")");
      case DwordDefault::Rule::kScaledY:
        return Line(setting, L"number", L"ScaleY(" + number + L")");
      case DwordDefault::Rule::kFirstDayOfWeek:
        return Line(setting, L"number", L"FirstDayOfWeek");
    }
  }
  void Visit(StringSetting& setting) override {
    const StringDefault& rule = setting.DefaultRule();
    const std::wstring text = L"\"" + std::wstring(rule.text) + L"\"";
    const std::wstring rest = *rule.text ? L" + " + text : L"";
    switch (rule.rule) {
      case StringDefault::Rule::kLiteral:
        return Line(setting, L"text", text);
      case StringDefault::Rule::kInstallFolder:
        return Line(setting, L"text", L"install folder" + rest);
      case StringDefault::Rule::kOtherSetting:
        return Line(setting, L"text", rule.other->Name() + L" value" + rest);
    }
  }
  void Visit(FlagArraySetting& setting) override {
    Line(setting, FormatDecimal(static_cast<std::int32_t>(setting.Bits())) + L" flags",
         setting.DefaultRule() == FlagFill::kAllSet ? L"all set" : L"all clear");
  }
  const std::wstring& Text() const { return text_; }

 private:
  void Line(const Setting& setting, const std::wstring& type, const std::wstring& byDefault) {
    text_ += setting.Name() + L" | " + type + L" | " + byDefault +
             (setting.IsReadOnly() ? L" | read only\n" : L"\n");
  }
  std::wstring text_;
};

TEST(Catalogue, SaysEveryKeyNameTypeAndDefaultThatTheTodayItemExpects) {
  SettingsStore store;
  Listing listing;
  for (SettingGroup* group : store.Groups()) {
    listing.Start(group->Key());
    group->Accept(listing);
  }
  EXPECT_EQ(Utf8(listing.Text()), FileText(TIDEWELL_CATALOGUE_EXPECTED));
}

TEST(Catalogue, IsWhatTheSettingsPageShows) {
  SettingsStore store;
  EXPECT_EQ(Utf8(SettingsTable(store)), FileText(TIDEWELL_SETTINGS_PAGE))
      << "docs/settings.md is stale: it tells how to write it again";
}

// Gives every line a value of its own, so that two lines cannot pass for each other.
class CatalogueWalkTest : public StoreFixture {
 protected:
  static std::uint32_t NumberOf(std::size_t line) {
    return 5000 + static_cast<std::uint32_t>(line);
  }
  static std::wstring TextFor(std::size_t line) {
    return L"text " + FormatDecimal(static_cast<std::int32_t>(line));
  }
  static std::vector<std::byte> FlagsOf(const FlagArraySetting& setting, std::size_t line) {
    return std::vector<std::byte>((setting.Bits() + 7) / 8, std::byte(line & 0xFF));
  }
  // Whether the lines hold those values; those that are never saved, when `saved` says so, their
  // defaults.
  static void ExpectOwnValues(SettingGroup& group, bool saved) {
    const SettingLines lines(group);
    for (std::size_t i = 0; i < lines.dwords.size(); ++i) {
      const DwordSetting& setting = *lines.dwords[i];
      const bool isDefault = saved && setting.IsReadOnly();
      EXPECT_EQ(setting.Value(), isDefault ? setting.Default() : NumberOf(i))
          << Utf8(setting.Name());
    }
    for (std::size_t i = 0; i < lines.strings.size(); ++i) {
      const StringSetting& setting = *lines.strings[i];
      const bool isDefault = saved && setting.IsReadOnly();
      EXPECT_EQ(setting.Value(), isDefault ? setting.Default() : TextFor(i))
          << Utf8(setting.Name());
    }
  }
  static std::vector<std::wstring> SavedNames(const SettingLines& lines) {
    std::vector<std::wstring> names;
    for (const Setting* setting : lines.all) {
      if (!setting->IsReadOnly()) names.push_back(setting->Name());
    }
    return names;
  }
  // The names that calls of a kind touched, in order.
  std::vector<std::wstring> Touched(RegistryCall call) {
    std::vector<std::wstring> names = metered.Meter().Paths(call);
    for (std::wstring& name : names) name.erase(0, name.rfind(L'\\') + 1);
    return names;
  }
  void LoadGroup(SettingGroup& group) { group.Load(KeyOf(group.Key()).Get(), context); }
  void SaveGroup(SettingGroup& group) {
    const FlushedKey key = CreateSettingKey(metered, group.Key());
    metered.Meter().Reset();
    group.Save(key.Get());
  }

  LoadContext context;
};

TEST_P(CatalogueWalkTest, EveryLineReadsTheValueOfItsName) {
  for (SettingGroup* group : store.Groups()) {
    const SettingLines lines(*group);
    const FlushedKey key = KeyOf(group->Key());
    for (std::size_t i = 0; i < lines.dwords.size(); ++i) {
      WriteDword(key.Get(), lines.dwords[i]->Name(), NumberOf(i));
    }
    for (std::size_t i = 0; i < lines.strings.size(); ++i) {
      WriteString(key.Get(), lines.strings[i]->Name(), TextFor(i));
    }
    for (const FlagArraySetting* setting : lines.flags) {
      key.Get()->Set(setting->Name(), kTypeBinary, FlagsOf(*setting, 9));
    }
    group->Load(key.Get(), context);
    ExpectOwnValues(*group, false);
    for (const FlagArraySetting* setting : lines.flags) {
      const std::vector<std::byte> loaded(setting->Bytes().begin(), setting->Bytes().end());
      EXPECT_EQ(loaded, FlagsOf(*setting, 9)) << Utf8(setting->Name());
    }
  }
}

TEST_P(CatalogueWalkTest, EveryLineIsSavedInOrderLoadedAgainAndGoneWhenSetBack) {
  for (SettingGroup* group : store.Groups()) {
    LoadGroup(*group);
    SaveGroup(*group);
    EXPECT_EQ(metered.CountWrites(), 0) << "unchanged";

    const SettingLines lines(*group);
    for (std::size_t i = 0; i < lines.dwords.size(); ++i) lines.dwords[i]->Set(NumberOf(i));
    for (std::size_t i = 0; i < lines.strings.size(); ++i) lines.strings[i]->Set(TextFor(i));
    SaveGroup(*group);
    EXPECT_EQ(Touched(RegistryCall::kSet), SavedNames(lines));
    EXPECT_EQ(metered.Count(RegistryCall::kDeleteValue), 0);

    LoadGroup(*group);
    ExpectOwnValues(*group, true);
    SaveGroup(*group);
    EXPECT_EQ(metered.CountWrites(), 0) << "loaded again";

    for (DwordSetting* setting : lines.dwords) setting->Set(setting->Default());
    for (StringSetting* setting : lines.strings) setting->Set(setting->Default());
    SaveGroup(*group);
    EXPECT_EQ(Touched(RegistryCall::kDeleteValue), SavedNames(lines));
    EXPECT_EQ(metered.Count(RegistryCall::kSet), 0);
    EnumeratedValue left;
    EXPECT_EQ(KeyOf(group->Key()).Get()->EnumValue(0, 256, 256, left), kStatusNoMoreItems);
  }
}

INSTANTIATE_TEST_SUITE_P(On, CatalogueWalkTest, testing::ValuesIn(RegistryKinds()),
                         testing::PrintToStringParamName());

}  // namespace
}  // namespace tidewell
