// Settings on their way: changed by keys on the pages, into backups, through the companion and
// back, seen through the system's own reg tool and files.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "categories/filters_file.h"
#include "companion/meanings.h"
#include "device_fixture.h"
#include "pages/page_list.h"
#include "platform/text.h"
#include "platform/windows/windows_registry.h"

namespace tidewell::device {

namespace {

constexpr wchar_t kSavedScheme[] = L"C:\\Program Files\\Velmont\\Tidewell\\Schemes\\1.scm";
constexpr wchar_t kFirstFolder[] = L"C:\\A folder of notes";

// "Calendar dNumOfDays = REG_DWORD 0x7" for each value below the product's key.
using Lines = std::set<std::string>;

Lines ProductValues() {
  std::istringstream tree(QueryProductTree());
  Lines values;
  std::string key;
  for (std::string line; std::getline(tree, line);) {
    if (line[0] != '[') {
      values.insert(key + line.substr(4));
    } else {
      key = line.size() == 2 ? "" : line.substr(2, line.size() - 3) + ' ';
    }
  }
  return values;
}

// A line for each value that only one of them has.
std::string Difference(const Lines& wanted, const Lines& found) {
  std::string text;
  for (const std::string& line : wanted) text += found.contains(line) ? "" : "lacks " + line + '\n';
  for (const std::string& line : found) text += wanted.contains(line) ? "" : "has " + line + '\n';
  return text;
}

struct Change {
  int page, tab;
  std::string keys;
};

// The changes of the file, and the values that they make.
std::pair<std::vector<Change>, Lines> ReadChanges() {
  std::istringstream file(ReadFileBytes(L"" TESTS "device/one_change_each.txt"));
  std::pair<std::vector<Change>, Lines> read;
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with("    ")) {
      read.second.insert(line.substr(4));
    } else if (!line.starts_with('#')) {
      Change& change = read.first.emplace_back();
      std::istringstream(line) >> change.page >> change.tab >> change.keys;
    }
  }
  return read;
}

WPARAM KeyOf(char letter) {
  constexpr std::string_view kLetters = "lurdtsaekx";
  constexpr WPARAM kKeys[] = {VK_LEFT,  VK_UP,     VK_RIGHT, VK_DOWN, VK_TAB,
                              VK_SPACE, VK_RETURN, VK_END,   VK_F1,   VK_ESCAPE};
  const std::size_t place = kLetters.find(letter);
  return place == std::string_view::npos ? static_cast<WPARAM>(letter) : kKeys[place];
}

void ChangePages(const std::vector<Change>& changes) {
  DrivenProgram program;
  ASSERT_TRUE(program.WaitForMainWindow());
  int page = 0;
  for (const Change& change : changes) {
    program.Press(VK_DOWN, change.page - std::exchange(page, change.page));
    program.Press(VK_RETURN);
    ASSERT_TRUE(program.WaitForPopup());
    program.Press(VK_UP);  // to its tabs
    program.Press(VK_RIGHT, change.tab);
    for (const char letter : change.keys) program.Press(KeyOf(letter));
    program.PressOk();
    ASSERT_TRUE(program.WaitForPopupToGo()) << change.page << ' ' << change.tab;
  }
  program.Press(VK_F1);  // Done
  EXPECT_TRUE(program.Ended());
}

class SettingsTripTest : public BackupDeviceTest {
 protected:
  void SetUp() override {
    BackupDeviceTest::SetUp();
    CreateDirectoryW(kFirstFolder, nullptr);
    ASSERT_TRUE(RunRegTool(L"import \"" TESTS "device/sample.reg\""));
  }
  void TearDown() override {
    DeleteFileW(kSavedScheme);
    RemoveDirectoryW(kFirstFolder);
    for (const auto& path : Documents("edited", ".twsb")) std::filesystem::remove(path);
    BackupDeviceTest::TearDown();
  }
  // Holds an export against that sample, which it becomes when samples are written anew.
  static void ExpectSample(const std::wstring& name, const std::string& bytes) {
    const std::wstring path = L"" TESTS "companion/" + name;
    if (GetEnvironmentVariableW(L"WRITE_SAMPLES", nullptr, 0) != 0) {
      WriteFileBytes(path.c_str(), bytes);
    }
    EXPECT_TRUE(ReadFileBytes(path.c_str()) == bytes) << "see tests/companion/write_samples.sh";
  }
  static void Wipe() {
    ForgetProductKeys();
    DeleteFileW(kFiltersFile);
  }
  static bool FirstFilterIsHidden() {
    std::string filters = ReadFileBytes(kFiltersFile);
    std::erase(filters, '\0');
    return filters.find("\"Visible\"=dword:0") < filters.find("[FILTER1]");
  }
};

TEST_F(SettingsTripTest, KeysChangeOneThingOnEachTabOfEachPage) {
  const Lines before = ProductValues();
  ExpectSample(L"sample.twsb", Export());
  const auto [changes, made] = ReadChanges();
  ChangePages(changes);
  EXPECT_EQ(Broadcasts(), 1);
  Lines after = before;
  after.insert(made.begin(), made.end());
  EXPECT_EQ(Difference(after, ProductValues()), "");
  EXPECT_TRUE(FirstFilterIsHidden());
  EXPECT_TRUE(std::filesystem::exists(kSavedScheme));
  ExpectSample(L"changed.twsb", Export());

  const auto companion = [](const std::wstring& arguments) {
    return RunPrinting(L"" COMPANION, arguments);
  };
  const std::wstring sample = L" \"" TESTS "companion/sample.twsb\"";
  const std::wstring changed = L" \"My Documents\\device_test.twsb\"";
  const std::wstring edited = L" \"My Documents\\edited.twsb\"";
  // It tells each of them, and besides a category's record and the filter.
  EXPECT_EQ(companion(L"diff" + sample + changed), 1u);
  EXPECT_EQ(std::ranges::count(ReadFileBytes(kPrinted), '\n'), std::ssize(made) + 2);
  EXPECT_EQ(
      companion(L"set" + sample + L" \"Days shown=21\" OnClick=default SkinPath=\\S -o" + edited),
      0u);
  EXPECT_EQ(companion(L"merge" + edited + changed + L" --only Tasks Fonts Filters --in-place"), 0u);
  Wipe();
  ASSERT_TRUE(Import(L"edited"));
  Lines asked = before;
  asked.erase("Calendar dNumOfDays = REG_DWORD 0xe");
  asked.erase("OnClick = REG_DWORD 0x1");
  asked.insert({"Calendar dNumOfDays = REG_DWORD 0x15", "SkinPath = REG_SZ \\S"});
  std::ranges::copy_if(made, std::inserter(asked, asked.end()), [](const std::string& line) {
    return line.starts_with("Tasks ") || line.starts_with("Fonts ");
  });
  EXPECT_EQ(Difference(asked, ProductValues()), "");
  EXPECT_TRUE(FirstFilterIsHidden());
}

// Where a value has to agree with others, or with what the device has.
std::uint32_t OtherNumber(const DwordSetting& setting, const Meaning& meaning) {
  const std::wstring& name = setting.Name();
  const std::uint32_t byDefault = setting.Default();
  if (name.ends_with(L"TabOrder")) return byDefault == 1 ? 1 : (byDefault - 1) % 5 + 2;
  if (name.starts_with(L"CalTitlesOrder")) return 5 - byDefault;
  if (name.starts_with(L"dHeightLimit")) return 500;
  if (name.ends_with(L"ActiveSearchBar")) return 5;
  if (name == L"NotesScannedFileTypes") return byDefault ^ 1;
  if (name.ends_with(L"lfWeight")) return 800 - byDefault;
  if (meaning.kind == ValueKind::kColor || name.ends_with(L"lfColor")) return 0x102030;
  for (const MeaningChoice& choice : meaning.choices) {
    if (choice.number != byDefault) return choice.number;
  }
  return byDefault ^ 1;
}

std::wstring OtherText(const std::wstring& name) {
  const std::wstring install = L"\\Program Files\\Velmont\\Tidewell\\";
  if (name == L"SelectedLangResFile") return install + L"LangRes\\TWGerRc.dll";
  if (name.starts_with(L"InstallPath")) return install + L"IconSets\\Mono\\" + name.substr(11);
  if (name.ends_with(L"CustomSearchBarSelected")) return L"Georgian";
  if (name.starts_with(L"AdditionalFilterCat")) return L"Family";
  return L"\u00C4 " + name;
}

// Gives a setting a value that is not its default, and that its page offers where it offers some.
struct Changer final : SettingVisitor {
  using SettingVisitor::Visit;
  explicit Changer(const Meaning& itsMeaning) : meaning(itsMeaning) {}
  void Visit(DwordSetting& setting) override {
    setting.Set(OtherNumber(setting, meaning));
    differs = setting.Value() != setting.Default();
  }
  void Visit(StringSetting& setting) override {
    setting.Set(OtherText(setting.Name()));
    differs = setting.Value() != setting.Default();
  }
  void Visit(FlagArraySetting&) override {}

  const Meaning& meaning;
  bool differs = false;
};

void ChangeEverySetting() {
  MeaningDevice device({ScreenOfName("vga"), L"en_US"});
  device.Store().root.MyVgaMode.Set(1);  // which doubles the lengths that are defaults
  device.Store().root.MyVgaMode.SaveAlone(device.OwnRegistry());
  device.Load();
  WindowsRegistry registry;
  for (const Meaning& meaning : device.Meanings()) {
    for (Setting* setting : meaning.settings) {
      if (setting->Key() < SettingKey::kRoot || setting->IsReadOnly()) continue;
      Changer changer(meaning);
      setting->Accept(changer);
      setting->SaveAlone(registry);
      const bool isFirst = setting->Name() == L"CalendarTabOrder";  // on every page
      EXPECT_TRUE(changer.differs || isFirst) << testing::PrintToString(setting->Name());
    }
  }
}

TEST_F(SettingsTripTest, EverySettingOutlivesABackupAndTheVisitOfEveryPage) {
  ChangeEverySetting();
  FilterSet own = DefaultFilters();
  for (FilterRecord& filter : own) filter = {L"My " + filter.title, 0, false, true, filter.index};
  const std::vector<std::byte> bytes = BytesOf(FormatFilters(own));
  const std::string filters(reinterpret_cast<const char*>(bytes.data()), bytes.size());
  WriteFileBytes(kFiltersFile, filters);
  const Lines values = ProductValues();
  std::vector<Change> visits;
  for (int page = 0; page < kPageCount; ++page) visits.push_back({page, 9, ""});
  for (const char* const visit : {"before", "after"}) {
    SCOPED_TRACE(visit);
    ChangePages(visits);
    EXPECT_EQ(Difference(values, ProductValues()), "");
    EXPECT_EQ(ReadFileBytes(kFiltersFile), filters);
    ExpectSample(L"everything.twsb", Export());
    Wipe();
    ASSERT_TRUE(Import());
  }
  EXPECT_EQ(Difference(values, ProductValues()), "");
  EXPECT_EQ(ReadFileBytes(kFiltersFile), filters);
}

}  // namespace

}  // namespace tidewell::device
