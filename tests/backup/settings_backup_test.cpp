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

  ImportResult Import(SettingsBackup& from, const std::wstring& path = kBackup) {
    return from.ImportFrom(path, ScreenScale(), machine.language);
  }
  void PutText(const std::wstring& path, std::wstring_view text) { files.Put(path, BytesOf(text)); }
  std::string TextOf(const std::wstring& path) {
    return Utf8(TextOfBytes(files.Contents(path).value_or(std::vector<std::byte>())));
  }
  std::string Tree() { return DumpTree(registry, kUser, kRoot); }
  // Names of what lies in a folder.
  std::vector<std::wstring> Listing(const std::wstring& folder) {
    std::vector<std::wstring> names;
    files.List(folder + L"\\*", [&](const FileEntry& entry) {
      names.push_back(entry.name);
      return true;
    });
    return names;
  }

  CatalogMachine machine;
  MemoryRegistry& registry = machine.memory.registry;
  MemoryFiles& files = machine.memory.files;
  SettingsBackup backup{machine.memory.Door(), machine.store, machine.catalog};
};

TEST_F(SettingsBackupTest, TheDefaultNameBearsTheDate) {
  machine.memory.locale.now = {2026, 11, 15, 23, 59};
  EXPECT_EQ(backup.DefaultExportName(), L"TW_Backup_2026_11_15");
}

TEST_F(SettingsBackupTest, AnExportedAndImportedDeviceIsTheSameAndItsStoresAreSaved) {
  SetString(registry, kUser, kRoot, L"SkinPath", L"\\Skin");
  machine.catalog.FindCategory(L"Work")->color = 0xFF;
  machine.catalog.FindCategory(L"Work")->filterFlags = 3;
  machine.catalog.Filters()[0].title = L"Mine";
  machine.catalog.SaveCategoryValues();
  machine.catalog.SaveFiltersFile();
  const std::string tree = Tree();
  const std::string filters = TextOf(kInstall + L"\\TWFilters.txt");
  ASSERT_TRUE(backup.ExportTo(kBackup));
  EXPECT_EQ(Listing(L"\\My Documents"), std::vector<std::wstring>{L"a.twsb"});

  registry.DeleteTree(kUser, kRoot);
  files.Remove(kInstall + L"\\TWFilters.txt");
  machine.Start({L"Home", L"Work"});
  EXPECT_EQ(machine.store.calendar.dNumOfDays.Value(), 7u);
  ASSERT_EQ(Import(backup), ImportResult::kDone);
  EXPECT_EQ(Tree(), tree);
  EXPECT_EQ(TextOf(kInstall + L"\\TWFilters.txt"), filters);
  EXPECT_EQ(machine.store.calendar.dNumOfDays.Value(), 14u);
  EXPECT_EQ(machine.store.root.SkinPath.Value(), L"\\Skin");
}

TEST_F(SettingsBackupTest, AFileThatIsNoBackupChangesNothingAndCostsNoCopy) {
  PutText(kCopy, L"kept");
  PutText(L"\\My Documents\\empty.twsb", L"");
  PutText(L"\\My Documents\\other.twsb", L"[Software\\Velmont\\Tidewell]\n");
  const std::string tree = Tree();
  EXPECT_EQ(Import(backup, L"\\My Documents\\gone.twsb"), ImportResult::kUnreadable);
  EXPECT_EQ(Import(backup, L"\\My Documents\\empty.twsb"), ImportResult::kRejected);
  EXPECT_EQ(Import(backup, L"\\My Documents\\other.twsb"), ImportResult::kRejected);
  EXPECT_EQ(Tree(), tree);
  EXPECT_EQ(TextOf(kCopy), "kept");
}

TEST_F(SettingsBackupTest, ThePresentSettingsAreCopiedBeforeTheImportAndComeBackFromTheCopy) {
  SetString(registry, kUser, kRoot, L"SkinPath", std::wstring(900, L's'));
  SetString(registry, kUser, kRoot, L"Zone", L"after the long one");
  machine.catalog.FindCategory(L"Home")->color = 5;
  machine.catalog.SaveCategoryValues();
  const std::string tree = Tree();
  PutText(
      kBackup,
      L"\n[Software\\Velmont\\Tidewell]\n\"OnClick\"=dword:1\n"
      L"\n[::Categories::]\n\"Category\"=\"Home\"\n\"FiltersFlag\"=dword:0\n\"Color\"=dword:-1\n");
  ASSERT_EQ(Import(backup), ImportResult::kDone);
  EXPECT_NE(Tree(), tree);
  EXPECT_EQ(FindDword(registry, kUser, kRoot, L"OnClick"), 1u);

  ASSERT_EQ(Import(backup, kCopy), ImportResult::kDone);
  EXPECT_EQ(Tree(), tree);
}

TEST_F(SettingsBackupTest, AMergingBackupKeepsTheRest) {
  PutText(kBackup, L"\n[Software\\Velmont\\Tidewell\\Tasks]\n\"x\"=dword:1\n");
  ASSERT_EQ(Import(backup), ImportResult::kDone);
  EXPECT_EQ(FindDword(registry, kUser, kRoot + L"\\Calendar", L"dNumOfDays"), 14u);
  EXPECT_EQ(FindDword(registry, kUser, kRoot + L"\\Tasks", L"x"), 1u);
}

TEST_F(SettingsBackupTest, TheCategoriesOfTheRecordsWinOverTheirImportedValues) {
  machine.catalog.FindCategory(L"Work")->color = 0xFF;
  machine.catalog.SaveCategoryValues();
  PutText(kBackup,
          L"\n[Software\\Velmont\\Tidewell]\n\n[Software\\Velmont\\Tidewell\\Categories]\n"
          L"\"CatColor.Work\"=dword:1\n\"CatFilter.Work\"=dword:2\n\"CatColor.Gone\"=dword:3\n");
  ASSERT_EQ(Import(backup), ImportResult::kDone);
  EXPECT_EQ(DumpTree(registry, kUser, kRoot + L"\\Categories"),
            "[Software\\Velmont\\Tidewell\\Categories]\nCatColor.Gone = 3\nCatColor.Work = 255\n");
}

TEST_F(SettingsBackupTest, AKeyThatCannotBeCreatedRejectsTheRestWithoutAReload) {
  PutText(kBackup,
          L"\n[Software\\Velmont\\Tidewell\\Calendar]\n\"dNumOfDays\"=dword:3\n\n[a\\\\b]\n");
  MeteredRegistry metered(registry);
  Machine door = machine.memory.Door();
  SettingsBackup failing({metered, door.files, door.locale, door.libraries, door.system},
                         machine.store, machine.catalog);
  metered.Meter().FailEvery(RegistryCall::kCreate);
  EXPECT_EQ(Import(failing), ImportResult::kRejected);
  EXPECT_EQ(machine.store.calendar.dNumOfDays.Value(), 14u);
}

TEST_F(SettingsBackupTest, WhateverFileCallFailsABackupIsTheOldOrTheNewOneWhole) {
  ASSERT_TRUE(backup.ExportTo(kBackup));
  const std::string whole = TextOf(kBackup);
  PutText(kBackup, L"old backup");
  const Machine door = machine.memory.Door();
  int failures = 0;
  for (;; ++failures) {
    MeteredFiles metered(files);
    SettingsBackup failing({door.registry, metered, door.locale, door.libraries, door.system},
                           machine.store, machine.catalog);
    metered.Meter().FailNth(failures + 1);
    if (failing.ExportTo(kBackup)) break;
    EXPECT_EQ(TextOf(kBackup), "old backup") << failures;
    EXPECT_EQ(Listing(L"\\My Documents"), std::vector<std::wstring>{L"a.twsb"}) << failures;
  }
  EXPECT_EQ(failures, 4);  // create, write, close, replace
  EXPECT_EQ(TextOf(kBackup), whole);
}

TEST_F(SettingsBackupTest, ADiskThatFillsUpDuringAnExportKeepsTheOldBackup) {
  ASSERT_TRUE(backup.ExportTo(L"\\My Documents\\size.twsb"));
  const std::size_t size = files.Contents(L"\\My Documents\\size.twsb")->size();
  files.Remove(L"\\My Documents\\size.twsb");
  files.Put(kBackup, "old backup");
  for (std::size_t room = 0; room < size; room += 97) {
    files.SetFreeBytes(room);
    EXPECT_FALSE(backup.ExportTo(kBackup)) << room;
    EXPECT_EQ(files.Contents(kBackup)->size(), 10u) << room;
  }
  files.SetFreeBytes(size);
  EXPECT_TRUE(backup.ExportTo(kBackup));
}

TEST_F(SettingsBackupTest, AnImportGoesOnWithoutItsCopy) {
  PutText(kBackup, L"\n[Software\\Velmont\\Tidewell]\n\"OnClick\"=dword:1\n");
  files.SetFreeBytes(0);
  EXPECT_EQ(Import(backup), ImportResult::kDone);
  EXPECT_EQ(FindDword(registry, kUser, kRoot, L"OnClick"), 1u);
  EXPECT_FALSE(files.Contents(kCopy).has_value());
}

}  // namespace
}  // namespace tidewell
