// That the catalogue says what the Today item expects, and docs/settings.md what the catalogue
// says.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "platform/text.h"
#include "settings/settings_table.h"
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

}  // namespace
}  // namespace tidewell
