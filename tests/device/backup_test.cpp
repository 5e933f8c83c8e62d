// Export and import on the running program, seen through the system's own reg tool and files; and
// the program killed while it writes.
#include <gmock/gmock.h>

#include <random>
#include <string>
#include <vector>

#include "device_fixture.h"

namespace tidewell::device {

namespace {

constexpr int kKills = 10;

class KilledBackupTest : public BackupDeviceTest {
 protected:
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

TEST_F(KilledBackupTest, AKilledExportLeavesTheOldBackupOrTheNewOne) {
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

TEST_F(KilledBackupTest, AKilledImportLeavesWhatWasThereOrACopyThatBringsItBack) {
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
