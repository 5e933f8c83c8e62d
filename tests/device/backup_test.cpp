// Export and import on the running program, seen through the system's own reg tool and files; and
// the program killed while it writes.
#include <gmock/gmock.h>

#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include "device_fixture.h"

namespace tidewell::device {

namespace {

constexpr int kKills = 10;
constexpr wchar_t kDocuments[] = L"C:\\My Documents";
constexpr wchar_t kBackup[] = L"C:\\My Documents\\device_test.twsb";
constexpr wchar_t kFiltersFile[] = L"C:\\Program Files\\Velmont\\Tidewell\\TWFilters.txt";

enum class Tool { kExport = 0, kImport = 1 };  // their rows

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
    return WaitUntil([&] {
      const HWND message = GetLastActivePopup(program.Main());
      return message != dialog && message != program.Main() && IsReady(message) &&
             PostMessageW(message, WM_COMMAND, IDOK, 0);
    });
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
    for (const auto& path : Documents("TW_BeforeImport_", ".twsb")) std::filesystem::remove(path);
  }
  static std::vector<std::filesystem::path> Documents(const char* start, const char* end) {
    std::vector<std::filesystem::path> paths;
    for (const auto& entry : std::filesystem::directory_iterator(kDocuments)) {
      const std::string name = entry.path().filename().string();
      if (name.starts_with(start) && name.ends_with(end)) paths.push_back(entry.path());
    }
    return paths;
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
  EXPECT_TRUE(Documents("", ".tmp").empty()) << "what a killed export left goes with the next";
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
    const auto copies = Documents("TW_BeforeImport_", ".twsb");
    if (QueryProductTree() != tree) {
      ++changed;
      ASSERT_EQ(copies.size(), 1u) << i;
      DrivenProgram again;
      ASSERT_TRUE(RunTool(again, Tool::kImport, copies[0].stem().wstring()));
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

}  // namespace

}  // namespace tidewell::device
