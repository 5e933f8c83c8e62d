// The same text leaves the same tree in the system's registry as in memory.
#include <gtest/gtest.h>

#include "backup/settings_backup.h"
#include "platform/windows/windows_machine.h"
#include "tests/backup/windows/test_folder.h"
#include "tests/support/catalog_support.h"
#include "tests/support/rebased_registry.h"
#include "tests/support/registry_support.h"
#include "tests/support/utf8.h"

namespace tidewell {
namespace {

constexpr RegistryRoot kUser = RegistryRoot::kCurrentUser;
const std::wstring kRoot(kProductKey);

class RealBackup : public testing::Test {
 protected:
  RealBackup() { machine.Start({L"Home", L"Work"}); }

  CatalogMachine machine;
  WindowsMachine windows;
  RebasedRegistry real{windows.registry, L"Software\\TidewellBackupTest"};
  MemoryRegistry memory{MemoryRegistry::Order::kSorted};
};

TEST_F(RealBackup, AnImportLeavesTheTreeThatTheRulesLeaveInMemory) {
  using namespace std::string_literals;
  const std::wstring section = L"\n[Software\\Velmont\\Tidewell\\K]\n";
  const std::wstring texts[] = {
      section + L"\"s\"=\"text\"\n\"S\"=\"other\"\n\"\x00C4\"=dword:1\n\"\x00E4\"=dword:-1\n",
      section + L" \"s\"=\"abc\"\n\"e\"=\"\"\n\"ab\"=\"\"\n\"n\"=\"not_the_same\"\n",
      section + L"\"back\\slash\"=dword:1\n\"" + std::wstring(900, L'n') + L"\"=\"long name\"\n",
      section + L"\"zero\0\"=dword:1\n\"z\"=\"ab\0c\"\n"s,
      section + L"\n[Software\\Velmont\\Tidewell]\n\"a\"=dword:1\n" + section,
      section + L"\n[Software\\Velmont\\Tidewell\\K\\\\L\\]\n\"a\"=dword:1\n",
      section + L"\"v\"=\"" + std::wstring(1000, L'v') + L"\"\n",
  };
  for (const std::wstring& text : texts) {
    real.DeleteTree(kUser, L"Software");
    memory.DeleteTree(kUser, L"Software");
    EXPECT_EQ(ImportText(real, machine.catalog, text), ImportText(memory, machine.catalog, text));
    EXPECT_EQ(DumpTree(real, kUser, kRoot), DumpTree(memory, kUser, kRoot)) << Utf8(text);
    EXPECT_EQ(ExportText(real, machine.catalog), ExportText(memory, machine.catalog));
  }
}

TEST_F(RealBackup, ABackupOnTheDiskBringsTheDeviceBack) {
  TestFolder folder;
  Machine door{real, windows.files, windows.locale, windows.libraries, windows.system};
  SettingsBackup backup(door, machine.store, machine.catalog);
  SetString(real, kUser, kRoot, L"TWFiltersFileFolder", folder.Path());
  SetDword(real, kUser, kRoot + L"\\Colors", L"ClrX", 0xFFFFFFFF);
  machine.store.Load(door, ScreenScale(), machine.language);  // makes every key
  const std::string tree = DumpTree(real, kUser, kRoot);
  ASSERT_TRUE(backup.ExportTo(folder.Below(L"a.twsb")));

  real.DeleteTree(kUser, kRoot);
  ASSERT_EQ(backup.ImportFrom(folder.Below(L"a.twsb"), ScreenScale(), machine.language),
            ImportResult::kDone);
  EXPECT_EQ(DumpTree(real, kUser, kRoot), tree);
  EXPECT_EQ(folder.Names(), (std::vector<std::wstring>{L"a.twsb", L"TW_BeforeImport.twsb"}));
}

}  // namespace
}  // namespace tidewell
