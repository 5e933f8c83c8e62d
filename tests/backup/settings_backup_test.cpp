#include "backup/settings_backup.h"

#include <gtest/gtest.h>

#include "platform/memory/metered_files.h"
#include "platform/memory/metered_registry.h"
#include "tests/support/catalog_support.h"
#include "tests/support/registry_support.h"
#include "tests/support/utf8.h"

namespace tidewell {
namespace {

constexpr RegistryRoot kUser = RegistryRoot::kCurrentUser;
const std::wstring kRoot(kProductKey);
const std::wstring kInstall = L"\\Program Files\\Velmont\\Tidewell";
const std::wstring kBackup = L"\\My Documents\\a.twsb";
const std::wstring kCopy = L"\\My Documents\\TW_BeforeImport.twsb";

class SettingsBackupTest : public testing::Test {
 protected:
  SettingsBackupTest() {
    files.Put(L"\\My Documents\\");
    files.Put(kInstall + L"\\");
    SetDword(registry, kUser, kRoot + L"\\Calendar", L"dNumOfDays", 14);
    machine.Start({L"Home", L"Work"});
  }

  ImportResult Import(const std::wstring& path = kBackup) { return ImportBy(backup, path); }
  ImportResult ImportBy(SettingsBackup& by, const std::wstring& path) {
    return by.ImportFrom(path, ScreenScale(), machine.language);
  }
  SettingsBackup BackupOn(Registry& itsRegistry, Files& itsFiles) {
    const Machine door = machine.memory.Door();
    return {{itsRegistry, itsFiles, door.locale, door.libraries, door.system},
            machine.store,
            machine.catalog};
  }
  void PutText(const std::wstring& path, std::wstring_view text) { files.Put(path, BytesOf(text)); }
  std::string TextOf(const std::wstring& path) {
    return Utf8(TextOfBytes(files.Contents(path).value_or(std::vector<std::byte>())));
  }
  std::string Tree() { return DumpTree(registry, kUser, kRoot); }
  bool BackupIsAlone() {
    std::wstring names;
    files.List(L"\\My Documents\\*", [&](const FileEntry& entry) {
      names += entry.name;
      return true;
    });
    return names == L"a.twsb";
  }

  CatalogMachine machine;
  MemoryRegistry& registry = machine.memory.registry;
  MemoryFiles& files = machine.memory.files;
  SettingsBackup backup = BackupOn(registry, files);
};

TEST_F(SettingsBackupTest, TheDefaultNameBearsTheDate) {
  machine.memory.locale.now = {2026, 11, 15, 23, 59};
  EXPECT_EQ(backup.DefaultExportName(), L"TW_Backup_2026_11_15");
}

TEST_F(SettingsBackupTest, AnExportedAndImportedDeviceIsTheSameAndItsStoresAreSaved) {
  SetString(registry, kUser, kRoot, L"SkinPath", L"\\Skin");
  machine.catalog.FindCategory(L"Work")->color = 0xFF;
  machine.catalog.Filters()[0].title = L"Mine";
  machine.catalog.SaveCategoryValues();
  machine.catalog.SaveFiltersFile();
  const std::string tree = Tree();
  const std::string filters = TextOf(kInstall + L"\\TWFilters.txt");
  ASSERT_TRUE(backup.ExportTo(kBackup));
  EXPECT_TRUE(BackupIsAlone());

  registry.DeleteTree(kUser, kRoot);
  files.Remove(kInstall + L"\\TWFilters.txt");
  machine.Start({L"Home", L"Work"});
  EXPECT_EQ(machine.store.calendar.dNumOfDays.Value(), 7u);
  ASSERT_EQ(Import(), ImportResult::kDone);
  EXPECT_EQ(Tree(), tree);
  EXPECT_EQ(TextOf(kInstall + L"\\TWFilters.txt"), filters);
  EXPECT_EQ(machine.store.calendar.dNumOfDays.Value(), 14u);
}

TEST_F(SettingsBackupTest, AFileThatIsNoBackupChangesNothingAndCostsNoCopy) {
  PutText(kCopy, L"kept");
  PutText(kBackup, L"[Software\\Velmont\\Tidewell]\n");
  const std::string tree = Tree();
  EXPECT_EQ(Import(L"\\My Documents\\gone.twsb"), ImportResult::kUnreadable);
  EXPECT_EQ(Import(), ImportResult::kRejected);
  EXPECT_EQ(Tree(), tree);
  EXPECT_EQ(TextOf(kCopy), "kept");
}

TEST_F(SettingsBackupTest, ThePresentSettingsAreCopiedBeforeTheImportAndComeBackFromTheCopy) {
  SetString(registry, kUser, kRoot, L"SkinPath", std::wstring(900, L's'));
  SetString(registry, kUser, kRoot, L"Zone", L"after the long one");
  machine.catalog.FindCategory(L"Home")->color = 5;
  machine.catalog.SaveCategoryValues();
  const std::string tree = Tree();
  PutText(kBackup,
          L"\n[Software\\Velmont\\Tidewell]\n\"OnClick\"=dword:1\n\n[::Categories::]\n"
          L"\"Category\"=\"Home\"\n\"FiltersFlag\"=dword:0\n\"Color\"=dword:-1\n");
  ASSERT_EQ(Import(), ImportResult::kDone);
  EXPECT_EQ(FindDword(registry, kUser, kRoot, L"OnClick"), 1u);
  EXPECT_EQ(FindDword(registry, kUser, kRoot + L"\\Calendar", L"dNumOfDays"), std::nullopt);

  ASSERT_EQ(Import(kCopy), ImportResult::kDone);
  EXPECT_EQ(Tree(), tree);
}

TEST_F(SettingsBackupTest, TheCategoriesOfTheRecordsWinOverTheirImportedValues) {
  machine.catalog.FindCategory(L"Work")->color = 0xFF;
  machine.catalog.SaveCategoryValues();
  PutText(kBackup,
          L"\n[Software\\Velmont\\Tidewell]\n\n[Software\\Velmont\\Tidewell\\Categories]\n"
          L"\"CatColor.Work\"=dword:1\n\"CatFilter.Work\"=dword:2\n\"CatColor.Gone\"=dword:3\n");
  ASSERT_EQ(Import(), ImportResult::kDone);
  EXPECT_EQ(DumpTree(registry, kUser, kRoot + L"\\Categories"),
            "[Software\\Velmont\\Tidewell\\Categories]\nCatColor.Gone = 3\nCatColor.Work = 255\n");
}

TEST_F(SettingsBackupTest, AKeyThatCannotBeCreatedRejectsTheRestWithoutAReload) {
  PutText(kBackup, L"\n[Software\\Velmont\\Tidewell\\Calendar]\n\"dNumOfDays\"=dword:3\n");
  MeteredRegistry metered(registry);
  metered.Meter().FailEvery(RegistryCall::kCreate);
  SettingsBackup failing = BackupOn(metered, files);
  EXPECT_EQ(ImportBy(failing, kBackup), ImportResult::kRejected);
  EXPECT_EQ(machine.store.calendar.dNumOfDays.Value(), 14u);
}

TEST_F(SettingsBackupTest, WhateverFailsABackupIsTheOldOrTheNewOneWhole) {
  ASSERT_TRUE(backup.ExportTo(kBackup));
  const std::string whole = TextOf(kBackup);
  const std::size_t size = files.Contents(kBackup)->size();
  PutText(kBackup, L"old backup");
  for (int call = 1; call <= 4; ++call) {  // create, write, close, replace
    MeteredFiles metered(files);
    metered.Meter().FailNth(call);
    EXPECT_FALSE(BackupOn(registry, metered).ExportTo(kBackup)) << call;
    EXPECT_EQ(TextOf(kBackup), "old backup") << call;
    EXPECT_TRUE(BackupIsAlone()) << call;
  }
  for (std::size_t room = 0; room < size; room += 97) {
    files.SetFreeBytes(room);
    EXPECT_FALSE(backup.ExportTo(kBackup)) << room;
    EXPECT_EQ(TextOf(kBackup), "old backup") << room;
  }
  files.SetFreeBytes(size);
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
