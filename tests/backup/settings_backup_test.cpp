#include "backup/settings_backup.h"

#include <gtest/gtest.h>

#include "tests/support/catalog_support.h"
#include "tests/support/registry_support.h"
#include "tests/support/utf8.h"

namespace tidewell {
namespace {

constexpr RegistryRoot kUser = RegistryRoot::kCurrentUser;
const std::wstring kRoot(kProductKey);
const std::wstring kFiltersFile = L"\\Program Files\\Velmont\\Tidewell\\TWFilters.txt";
const std::wstring kBackup = L"\\My Documents\\a.twsb";
const std::wstring kCopy = L"\\My Documents\\TW_BeforeImport.twsb";

class SettingsBackupTest : public testing::Test {
 protected:
  SettingsBackupTest() {
    files.Put(L"\\My Documents\\");
    files.Put(L"\\Program Files\\Velmont\\Tidewell\\");
    SetDword(registry, kUser, kRoot + L"\\Calendar", L"dNumOfDays", 14);
    machine.Start({L"Home", L"Work"});
  }

  ImportResult Import(const std::wstring& path = kBackup) {
    return backup.ImportFrom(path, ScreenScale(), machine.language);
  }
  void PutText(const std::wstring& path, std::wstring_view text) { files.Put(path, BytesOf(text)); }
  std::string TextOf(const std::wstring& path) {
    return Utf8(TextOfBytes(files.Contents(path).value_or(std::vector<std::byte>())));
  }
  std::string Tree() { return DumpTree(registry, kUser, kRoot); }

  CatalogMachine machine;
  MemoryRegistry& registry = machine.memory.registry;
  MemoryFiles& files = machine.memory.files;
  SettingsBackup backup{machine.MeteredDoor(), machine.store, machine.catalog};
};

TEST_F(SettingsBackupTest, TheDefaultNameBearsTheDate) {
  machine.memory.locale.now = {2026, 11, 15, 23, 59};
  EXPECT_EQ(backup.DefaultExportName(), L"TW_Backup_2026_11_15");
}

TEST_F(SettingsBackupTest, AnExportedAndImportedDeviceIsTheSameAndItsStoresAreSaved) {
  SetString(registry, kUser, kRoot, L"a b%", L"100% \"quoted\" =dword: [\x0100]");
  SetString(registry, kUser, kRoot + L"\\Tab [1]\\\x4E2D", L"n", std::wstring(127, L'\x20AC'));
  machine.catalog.FindCategory(L"Work")->color = 0xFF;
  machine.catalog.Filters()[0].title = L"Mine";
  machine.catalog.SaveCategoryValues();
  machine.catalog.SaveFiltersFile();
  const std::string tree = Tree();
  const std::string filters = TextOf(kFiltersFile);
  ASSERT_TRUE(backup.ExportTo(kBackup));

  registry.DeleteTree(kUser, kRoot);
  files.Remove(kFiltersFile);
  machine.Start({L"Home", L"Work"});
  SetDword(registry, kUser, kRoot + L"\\Later", L"x", 1);
  EXPECT_EQ(machine.store.calendar.dNumOfDays.Value(), 7u);
  ASSERT_EQ(Import(), ImportResult::kDone);
  EXPECT_EQ(Tree(), tree);
  EXPECT_EQ(TextOf(kFiltersFile), filters);
  EXPECT_EQ(machine.store.calendar.dNumOfDays.Value(), 14u);
}

TEST_F(SettingsBackupTest, AFileThatIsNoBackupChangesNothingAndCostsNoCopy) {
  PutText(kCopy, L"kept");
  PutText(kBackup, L"[Software\\Velmont\\Tidewell]\n");
  const std::string tree = Tree();
  EXPECT_EQ(Import(L"\\My Documents\\gone.twsb"), ImportResult::kUnreadable);
  EXPECT_EQ(Import(), ImportResult::kRejected);
  machine.files.Meter().FailEvery(FileCall::kRead);
  EXPECT_EQ(Import(), ImportResult::kUnreadable);
  EXPECT_EQ(Tree(), tree);
  EXPECT_EQ(TextOf(kCopy), "kept");
}

TEST_F(SettingsBackupTest, ThePresentSettingsAreCopiedBeforeTheImportAndComeBackFromTheCopy) {
  SetString(registry, kUser, kRoot, L"SkinPath", std::wstring(900, L's'));
  const std::string tree = Tree();
  PutText(kBackup, L"\n[Software\\Velmont\\Tidewell]\n\"OnClick\"=dword:1\n");
  ASSERT_EQ(Import(), ImportResult::kDone);
  EXPECT_EQ(FindDword(registry, kUser, kRoot, L"OnClick"), 1u);
  EXPECT_EQ(FindDword(registry, kUser, kRoot + L"\\Calendar", L"dNumOfDays"), std::nullopt);
  ASSERT_EQ(Import(kCopy), ImportResult::kDone);
  EXPECT_EQ(Tree(), tree);
}

TEST_F(SettingsBackupTest, TheCategoriesOfTheRecordsWinOverTheirImportedValues) {
  machine.catalog.FindCategory(L"Work")->color = 0xFF;
  PutText(kBackup,
          L"\n[Software\\Velmont\\Tidewell]\n\n[Software\\Velmont\\Tidewell\\Categories]\n"
          L"\"CatColor.Work\"=dword:1\n\"CatFilter.Work\"=dword:2\n\"CatColor.Gone\"=dword:3\n");
  ASSERT_EQ(Import(), ImportResult::kDone);
  EXPECT_EQ(DumpTree(registry, kUser, kRoot + L"\\Categories"),
            "[Software\\Velmont\\Tidewell\\Categories]\nCatColor.Gone = 3\nCatColor.Work = 255\n");
}

TEST_F(SettingsBackupTest, AKeyThatCannotBeCreatedRejectsTheRestWithoutAReload) {
  PutText(kBackup, L"\n[Software\\Velmont\\Tidewell\\Calendar]\n\"dNumOfDays\"=dword:3\n");
  machine.registry.Meter().FailEvery(RegistryCall::kCreate);
  EXPECT_EQ(Import(), ImportResult::kRejected);
  EXPECT_EQ(machine.store.calendar.dNumOfDays.Value(), 14u);
}

TEST_F(SettingsBackupTest, WhateverFailsABackupIsTheOldOrTheNewOneWhole) {
  ASSERT_TRUE(backup.ExportTo(kBackup));
  const std::string whole = TextOf(kBackup);
  PutText(kBackup, L"old backup");
  for (int call = 1; call <= 4; ++call) {  // create, write, close, replace
    machine.files.Meter().Reset();
    machine.files.Meter().FailNth(call);
    EXPECT_FALSE(backup.ExportTo(kBackup)) << call;
    EXPECT_EQ(TextOf(kBackup), "old backup") << call;
    EXPECT_FALSE(files.Find(kBackup + L".new").has_value()) << call;
  }
  machine.files.Meter().Reset();
  files.SetFreeBytes(whole.size());  // two bytes a unit are twice that
  EXPECT_FALSE(backup.ExportTo(kBackup));
  EXPECT_EQ(TextOf(kBackup), "old backup");
  files.SetFreeBytes({});
  EXPECT_TRUE(backup.ExportTo(kBackup));
  EXPECT_EQ(TextOf(kBackup), whole);
}

TEST_F(SettingsBackupTest, AnImportGoesOnWithoutItsCopyAndMergesWhatIsNoWholeTree) {
  PutText(kBackup, L"\n[Software\\Velmont\\Tidewell\\Tasks]\n\"x\"=dword:1\n");
  files.SetFreeBytes(0);
  EXPECT_EQ(Import(), ImportResult::kDone);
  EXPECT_EQ(FindDword(registry, kUser, kRoot + L"\\Tasks", L"x"), 1u);
  EXPECT_EQ(FindDword(registry, kUser, kRoot + L"\\Calendar", L"dNumOfDays"), 14u);
  EXPECT_FALSE(files.Contents(kCopy).has_value());
}

}  // namespace
}  // namespace tidewell
