// Export and import on the running program, seen through the system's own reg tool and files; and
// the program killed while it writes.
#include <gmock/gmock.h>

#include <cstring>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "device_fixture.h"
#include "settings/settings_store.h"
#include "tests/support/registry_support.h"
#include "tests/support/setting_lines.h"
#include "tests/support/utf8.h"

namespace tidewell::device {

namespace {

constexpr int kKills = 20;
constexpr wchar_t kDocuments[] = L"C:\\My Documents";
constexpr wchar_t kBackup[] = L"C:\\My Documents\\device_test.twsb";
constexpr wchar_t kFiltersFile[] = L"C:\\Program Files\\Velmont\\Tidewell\\TWFilters.txt";

enum class Tool { kExport = 0, kImport = 1 };  // their rows

// Every setting of the product with a value that is not its default, as the reg tool reads it.
std::string EverySettingChanged() {
  SettingsStore store;
  std::string text;
  unsigned number = 1000;
  for (SettingGroup* group : store.Groups()) {
    const std::string path = Utf8(LocationOf(group->Key()).path);
    if (!path.starts_with("Software\\Velmont")) continue;
    text += "\n[HKEY_CURRENT_USER\\" + path + "]\n";
    const SettingLines lines(*group);
    for (const DwordSetting* setting : lines.dwords) {
      text += '"' + Utf8(setting->Name()) + "\"=dword:" + std::to_string(++number) + '\n';
    }
    for (const StringSetting* setting : lines.strings) {
      // The filters file stays where it is.
      if (setting->Name() == L"TWFiltersFileFolder") continue;
      text += '"' + Utf8(setting->Name()) + "\"=\"\\\\text " + std::to_string(++number) +
              " \\\"50%\\\"\"\n";
    }
  }
  return text;
}

// As the filters file holds a text: each character behind a zero byte.
std::string InFiltersFile(const std::string& text) {
  std::string bytes;
  for (const char c : text) bytes += {'\0', c};
  return bytes;
}

class BackupDeviceTest : public DeviceTest {
 protected:
  void SetUp() override {
    DeviceTest::SetUp();
    CreateDirectoryW(kDocuments, nullptr);
    RemoveFiles();
  }
  void TearDown() override {
    RemoveFiles();
    DeviceTest::TearDown();
  }

  // The 32 filters that a device has at first, as its file holds them.
  static std::string DefaultFilters() {
    DrivenProgram program;
    EXPECT_TRUE(program.WaitForMainWindow());
    program.TapOk();
    EXPECT_TRUE(program.Ended());
    return ReadFileBytes(kFiltersFile);
  }
  // The tool's dialog, with the backup's name in its field; null when it never came.
  static HWND OpenDialog(DrivenProgram& program, Tool tool,
                         const std::wstring& name = L"device_test") {
    if (!program.WaitForMainWindow()) return nullptr;
    program.TapRightButton();
    program.Press(VK_DOWN, static_cast<int>(tool));
    PostMessageW(program.Main(), WM_KEYDOWN, VK_RETURN, 1);
    const HWND dialog = program.WaitForPopup();
    const HWND field = FindWindowExW(dialog, nullptr, L"Edit", nullptr);
    SendMessageW(field, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(name.c_str()));
    return dialog;
  }
  // The text of the message that follows on the confirmed dialog; the message is answered.
  static bool RunTool(DrivenProgram& program, Tool tool,
                      const std::wstring& name = L"device_test") {
    const HWND dialog = OpenDialog(program, tool, name);
    if (!dialog) return false;
    PostMessageW(dialog, WM_COMMAND, IDOK, 0);
    HWND message = nullptr;
    const bool told = WaitUntil([&] {
      message = GetLastActivePopup(program.Main());
      return message != dialog && message != program.Main() && IsReady(message);
    });
    if (!told) return false;
    PostMessageW(message, WM_COMMAND, IDOK, 0);
    return true;
  }
  // An export from beginning to end; the backup's bytes.
  static std::string Export() {
    DrivenProgram program;
    EXPECT_TRUE(RunTool(program, Tool::kExport));
    EXPECT_TRUE(program.WaitForPopupToGo());
    program.GetProcess().Kill();
    return ReadFileBytes(kBackup);
  }

  static void RemoveFiles() {
    for (const wchar_t* path : {kBackup, kFiltersFile}) DeleteFileW(path);
    RemoveCopies();
  }
  static void RemoveCopies() {
    for (const std::wstring& name : Copies()) DeleteFileW((kDocuments + (L'\\' + name)).c_str());
  }
  static std::vector<std::wstring> Copies() { return Documents(L"TW_BeforeImport_*.twsb"); }
  static std::vector<std::wstring> Documents(const std::wstring& pattern) {
    std::vector<std::wstring> names;
    WIN32_FIND_DATAW found;
    const HANDLE search = FindFirstFileW((kDocuments + (L'\\' + pattern)).c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return names;
    do {
      names.push_back(found.cFileName);
    } while (FindNextFileW(search, &found));
    FindClose(search);
    return names;
  }
  // Enough values that the work on them takes a while.
  static std::string ManyValues(int number) {
    std::string text;
    for (int key = 0; key < 20; ++key) {
      text +=
          "\n[HKEY_CURRENT_USER\\Software\\Velmont\\Tidewell\\Other" + std::to_string(key) + "]\n";
      for (int i = 0; i < 50; ++i) {
        text += "\"Value" + std::to_string(i) + "\"=dword:0000000" + std::to_string(number) + '\n';
      }
    }
    return text;
  }

  // Confirms what is in front and kills the program at some moment of the next while.
  void ConfirmAndKill(DrivenProgram& program, HWND window, DWORD milliseconds) {
    PostMessageW(window, WM_COMMAND, IDOK, 0);
    Sleep(std::uniform_int_distribution<DWORD>(0, milliseconds)(random_));
    program.GetProcess().Kill();
  }

  std::mt19937 random_{20261115};
};

TEST_F(BackupDeviceTest, AWipedDeviceIsTheSameAfterTheImportOfItsBackup) {
  std::string filters = DefaultFilters();
  ASSERT_TRUE(ImportRegistry(EverySettingChanged()));
  ASSERT_TRUE(ImportRegistry(R"(
[HKEY_CURRENT_USER\Software\Velmont\Tidewell\Categories]
"CatColor.Business"=dword:000000ff
"CatFilter.Business"=dword:80000001
"CatColor.Home"=dword:00000000

[HKEY_CURRENT_USER\Software\Velmont\Tidewell\Notes\Folders\Deep]
"Not ours"="kept as well"
)"));
  const std::string tree = QueryProductTree();
  for (const auto& [before, after] :
       {std::pair("Filter 2", "Not work"), std::pair("Visible\"=dword:1", "Visible\"=dword:0"),
        std::pair("Uncategorized\"=dword:0", "Uncategorized\"=dword:1")}) {
    const std::size_t place = filters.find(InFiltersFile(before));
    ASSERT_NE(place, std::string::npos) << before;
    filters.replace(place, 2 * std::strlen(before), InFiltersFile(after));
  }
  WriteFileBytes(kFiltersFile, filters);
  ASSERT_FALSE(Export().empty());
  ASSERT_EQ(QueryProductTree(), tree);

  ForgetProductKeys();
  DeleteFileW(kFiltersFile);
  listener_.HearAllPosted();
  listener_.heard.clear();
  std::string treeWhenHeard = "never heard";
  listener_.onHeard = [&] { treeWhenHeard = QueryProductTree(); };
  DrivenProgram program;
  ASSERT_TRUE(RunTool(program, Tool::kImport));
  EXPECT_TRUE(program.Ended());
  listener_.HearAllPosted();
  EXPECT_EQ(listener_.heard, kOnce);
  EXPECT_EQ(QueryProductTree(), tree);
  EXPECT_EQ(treeWhenHeard, tree);
  EXPECT_EQ(ReadFileBytes(kFiltersFile), filters);
}

TEST_F(BackupDeviceTest, AKilledExportLeavesTheOldBackupOrTheNewOne) {
  ASSERT_TRUE(ImportRegistry(ManyValues(1)));
  const std::string old = Export();
  ASSERT_TRUE(ImportRegistry(ManyValues(2)));
  const std::string current = Export();
  ASSERT_NE(old, current);
  ASSERT_FALSE(old.empty());
  for (int i = 0; i < kKills; ++i) {
    WriteFileBytes(kBackup, old);
    DrivenProgram program;
    const HWND dialog = OpenDialog(program, Tool::kExport);
    ASSERT_TRUE(dialog);
    ConfirmAndKill(program, dialog, 150);
    EXPECT_THAT(ReadFileBytes(kBackup), testing::AnyOf(old, current)) << i;
  }
  Export();
  EXPECT_TRUE(Documents(L"*.tmp").empty()) << "what a killed export left goes with the next";
}

TEST_F(BackupDeviceTest, AKilledImportLeavesWhatWasThereOrACopyThatBringsItBack) {
  const std::string unusual = R"(
[HKEY_CURRENT_USER\Software\Velmont\Tidewell\Other7]
"Long"=")" + std::string(5000, 'l') +
                              R"("
"States"=hex:01,00,ff
)";
  ASSERT_TRUE(ImportRegistry(ManyValues(1)));
  const std::string old = Export();
  int changed = 0;
  for (int i = 0; i < kKills; ++i) {
    ForgetProductKeys();
    ASSERT_TRUE(ImportRegistry(ManyValues(2)) && ImportRegistry(unusual));
    DrivenProgram program;
    const HWND dialog = OpenDialog(program, Tool::kImport);
    ASSERT_TRUE(dialog);
    const std::string tree = QueryProductTree();
    ConfirmAndKill(program, dialog, 300);
    EXPECT_EQ(ReadFileBytes(kBackup), old) << i;
    const std::vector<std::wstring> copies = Copies();
    if (QueryProductTree() != tree) {
      ++changed;
      ASSERT_EQ(copies.size(), 1u) << i;
      const std::wstring name = copies[0].substr(0, copies[0].find(L'.'));
      DrivenProgram again;
      ASSERT_TRUE(RunTool(again, Tool::kImport, name));
      EXPECT_TRUE(again.Ended());
      EXPECT_EQ(QueryProductTree(), tree) << i;
    }
    RemoveCopies();
  }
  EXPECT_GT(changed, 0);
  // Whatever moment was the last: the program starts, and the import comes to its end.
  DrivenProgram program;
  ASSERT_TRUE(RunTool(program, Tool::kImport));
  EXPECT_TRUE(program.Ended());
  EXPECT_EQ(Export(), old);
}

// Thirty hosted tabs whose types and orders are put right at Done, none to or from a default.
std::string HostedTabs() {
  const std::string key = "\n[HKEY_CURRENT_USER\\Software\\Velmont\\Tidewell\\TabSettings";
  std::string text = key + "]\n\"SEventsTabOrder\"=dword:9\n";
  for (int i = 1; i <= 30; ++i) {
    const std::string number = std::to_string(i + 100);
    text += key + "\\Plug-in " + number + "]\n\"Order\"=dword:" + (i > 3 ? number : "8") +
            "\n\"Type\"=dword:4d\n\"Enabled\"=dword:1\n\"DLL\"=\"plug-in " + number +
            ".dll\"\n\"InstallPath\"=\"of " + number + "\"\n\"CustomIconName\"=\"icon " + number +
            "\"\n";
  }
  return text;
}

TEST_F(BackupDeviceTest, AKilledDoneLeavesFiltersAndHostedTabsEachTheOldOrTheNewOne) {
  ASSERT_TRUE(ImportRegistry(HostedTabs()));
  const std::string before = QueryProductTree();
  const std::string defaults = DefaultFilters();
  const std::string after = QueryProductTree();
  ASSERT_EQ(defaults.size(), 6362u);
  ASSERT_NE(before, after);
  const std::string cutOff = defaults.substr(0, 3000);  // read as the defaults, so written anew
  for (int i = 0; i < kKills / 2; ++i) {
    WriteFileBytes(kFiltersFile, cutOff);
    ASSERT_TRUE(ImportRegistry(HostedTabs()));
    DrivenProgram program;
    ASSERT_TRUE(program.WaitForMainWindow());
    ConfirmAndKill(program, program.Main(), 40);
    EXPECT_THAT(ReadFileBytes(kFiltersFile), testing::AnyOf(cutOff, defaults)) << i;
    const std::string left = QueryProductTree();
    EXPECT_TRUE(IsOldOrNew(before, after, left)) << i << left;
  }
  DrivenProgram program;
  EXPECT_TRUE(program.WaitForMainWindow());
}

}  // namespace

}  // namespace tidewell::device
