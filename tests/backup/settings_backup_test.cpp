#include "backup/settings_backup.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/text.h"
#include "tests/support/test_device.h"
#include "tests/support/utf8.h"

namespace tidewell {
namespace {

const std::wstring kRoot(kProductKey);
const std::wstring kFiltersFile = L"\\Program Files\\Velmont\\Tidewell\\TWFilters.txt";
const std::wstring kBackup = L"\\My Documents\\a.twsb";
const std::wstring kCopy = L"\\My Documents\\TW_BeforeImport_2026_11_15_235907.twsb";
const std::wstring kUnfinished = L"\\My Documents\\~TidewellSettings1.tmp";

class SettingsBackupTest : public testing::Test, protected TestDevice {
 protected:
  SettingsBackupTest() {
    files.Put(L"\\My Documents\\");
    files.Put(L"\\Program Files\\Velmont\\Tidewell\\");
    Put(SettingKey::kCalendar, L"dNumOfDays", 14);
    memory.locale.now = {2026, 11, 15, 23, 59, 7};
    LoadWith({L"Home", L"Work"});
  }

  ImportResult Import(const std::wstring& path = kBackup) {
    const ImportQuestions questions{[this](const std::wstring& key) {
                                      asked += Utf8(key) + '?';
                                      return answer;
                                    },
                                    [this](FileStatus cause) {
                                      asked += "no copy?";
                                      copyStatus = cause;
                                      return answer;
                                    }};
    const ImportOutcome outcome = backup.ImportFrom(path, questions, scale, language);
    copy = outcome.copy;
    return outcome.result;
  }
  // The files of a folder, those of other names left out.
  std::vector<std::wstring> Copies() {
    std::vector<std::wstring> names;
    files.List(L"\\My Documents\\TW_Before*", [&](const FileEntry& entry) {
      names.push_back(entry.name);
      return true;
    });
    std::sort(names.begin(), names.end());
    return names;
  }
  void PutText(const std::wstring& path, std::wstring_view text) { files.Put(path, BytesOf(text)); }
  std::string TextOf(const std::wstring& path) {
    return Utf8(TextOfBytes(files.Contents(path).value_or(std::vector<std::byte>())));
  }
  std::string Tree() { return Dump(kRoot); }

  SettingsBackup backup{machine, store, catalog};
  std::string asked;
  bool answer = false;
  FileStatus copyStatus = FileStatus::kOther;
  std::wstring copy;
};

TEST_F(SettingsBackupTest, AnExportedAndImportedDeviceIsTheSameAndItsStoresAreSaved) {
  Put(kRoot, L"a b%", L"100% \"quoted\" =dword: [\x0100]");
  Put(kRoot + L"\\Tab [1]\\\x4E2D", L"n", std::wstring(127, L'\x20AC'));
  catalog.FindCategory(L"Work")->color = 0xFF;
  catalog.Filters()[0].title = L"Mine";
  catalog.SaveCategoryValues();
  catalog.SaveFiltersFile();
  const std::string tree = Tree();
  const std::string filters = TextOf(kFiltersFile);
  EXPECT_EQ(backup.DefaultExportName(), L"TW_Backup_2026_11_15");
  ASSERT_EQ(backup.ExportTo(kBackup), FileStatus::kOk);

  Delete(kRoot);
  files.Remove(kFiltersFile);
  LoadWith({L"Home", L"Work"});
  Put(kRoot + L"\\Later", L"x", 1);
  EXPECT_EQ(store.calendar.dNumOfDays.Value(), 7u);
  ASSERT_EQ(Import(), ImportResult::kDone);
  EXPECT_EQ(Tree(), tree);
  EXPECT_EQ(TextOf(kFiltersFile), filters);
  EXPECT_EQ(store.calendar.dNumOfDays.Value(), 14u);
}

TEST_F(SettingsBackupTest, AFileThatIsNoBackupChangesNothing) {
  PutText(kBackup, L"[Software\\Velmont\\Tidewell]\n");
  const std::string tree = Tree();
  EXPECT_EQ(Import(L"\\My Documents\\gone.twsb"), ImportResult::kRefused);
  EXPECT_EQ(Import(), ImportResult::kRefused);
  PutText(kBackup, L"\n[\\no key]\n");
  answer = true;
  EXPECT_EQ(Import(), ImportResult::kRefused);
  PutText(kBackup, L"\n" + std::wstring(kLargestBackup / 2, L'x'));
  recordedFiles.Calls().Reset();
  EXPECT_EQ(Import(), ImportResult::kRefused);
  EXPECT_LE(recordedFiles.Count(FileCall::kRead), 1) << "only whether it is a copy";
  PutText(kBackup, L"\n[Software\\Velmont\\Tidewell]\n");
  recordedFiles.Calls().FailEvery(FileCall::kRead);
  EXPECT_EQ(Import(), ImportResult::kRefused);
  EXPECT_EQ(Tree(), tree);
  EXPECT_TRUE(Copies().empty());
}

TEST_F(SettingsBackupTest, ThePresentSettingsAreCopiedBeforeTheImportAndComeBackFromTheCopy) {
  Put(kRoot, L"SkinPath", std::wstring(9000, L's'));
  PutBytes(kRoot, L"Huge", std::vector<unsigned char>(5'000'000));
  LoadWith({L"A\nB"});
  catalog.FindCategory(L"A\nB")->color = 5;
  catalog.Filters()[2].title = std::wstring(2000, L't');
  catalog.SaveCategoryValues();
  const std::string tree = Tree();
  PutText(kBackup, L"\n[Software\\Velmont\\Tidewell]\n\"OnClick\"=dword:1\n");
  ASSERT_EQ(Import(), ImportResult::kDone);
  EXPECT_EQ(Stored(kRoot, L"OnClick"), 1u);
  EXPECT_EQ(Stored(SettingKey::kCalendar, L"dNumOfDays"), std::nullopt);
  const std::string original = TextOf(kCopy);
  ASSERT_GT(original.size(), kLargestBackup / 2);
  catalog.FindCategory(L"A\nB")->color = 6;
  catalog.Filters()[2].title.clear();
  ASSERT_EQ(Import(), ImportResult::kDone) << "in the same second";
  EXPECT_EQ(copy, L"TW_BeforeImport_2026_11_15_235907_2.twsb");
  ASSERT_EQ(Import(kCopy), ImportResult::kDone);
  EXPECT_EQ(Tree(), tree);
  EXPECT_EQ(catalog.Filters()[2].title, std::wstring(2000, L't'));
  EXPECT_EQ(TextOf(kCopy), original);
}

TEST_F(SettingsBackupTest, OfTheCopiesTheFiveNewestStay) {
  PutText(kBackup, L"\n[Software\\Velmont\\Tidewell\\Tasks]\n");
  const std::wstring others[] = {L"TW_BeforeImport.twsb",
                                 L"TW_BeforeImport_2026_11_15_235907 (2).twsb",
                                 L"TW_BeforeImport_2026_11_15_23590.twsb",
                                 L"TW_BeforeImport_2026_11_15_235907_1.twsb",
                                 L"TW_BeforeImport_2026_11_15_235907_2.twsb.txt",
                                 L"TW_BeforeImport_mine.twsb"};
  for (const std::wstring& name : others) PutText(L"\\My Documents\\" + name, L"a user's");
  for (int i = 0; i < 12; ++i) ASSERT_EQ(Import(), ImportResult::kDone);
  memory.locale.now = {2003, 1, 1, 0, 0, 0};
  ASSERT_EQ(Import(), ImportResult::kDone);
  std::vector<std::wstring> expected(std::begin(others), std::end(others));
  expected.push_back(L"TW_BeforeImport_2003_01_01_000000.twsb");
  for (const wchar_t* number : {L"9", L"10", L"11", L"12"}) {
    expected.push_back(L"TW_BeforeImport_2026_11_15_235907_" + std::wstring(number) + L".twsb");
  }
  std::sort(expected.begin(), expected.end());
  EXPECT_EQ(Copies(), expected);
}

TEST_F(SettingsBackupTest, WithoutACopyTheUserDecides) {
  PutText(kBackup,
          L"\n[Software\\Velmont\\Tidewell]\n\n[Software\\Velmont\\Tidewell\\Tasks]\n"
          L"\"x\"=dword:1\n");
  const std::string tree = Tree();
  const std::tuple<const char*, FileStatus, std::function<void()>> cases[] = {
      {"full", FileStatus::kFull, [&] { files.SetFreeBytes(100); }},
      {"locked", FileStatus::kRefused, [&] { files.SetWriteProtected(true); }},
      {"refused value", FileStatus::kOk, [&] { recorded.Calls().FailNth(2); }}};
  for (const auto& [name, status, prepare] : cases) {
    asked.clear();
    recorded.Calls().Reset();
    prepare();
    EXPECT_EQ(Import(), ImportResult::kDeclined) << name;
    EXPECT_EQ(asked, "no copy?") << name;
    EXPECT_EQ(copyStatus, status) << name;
    files.SetFreeBytes({});
    files.SetWriteProtected(false);
    EXPECT_EQ(Tree(), tree) << name;
    EXPECT_TRUE(Copies().empty()) << name;
    EXPECT_FALSE(files.Find(kUnfinished)) << name;
  }
  files.SetFreeBytes(100);
  answer = true;
  EXPECT_EQ(Import(), ImportResult::kDone);
  EXPECT_EQ(Stored(SettingKey::kTasks, L"x"), 1u);
  EXPECT_EQ(Stored(SettingKey::kCalendar, L"dNumOfDays"), std::nullopt);
}

TEST_F(SettingsBackupTest, WhatWritesOutsideTheProductIsImportedOnlyWhenTheUserWants) {
  PutText(kBackup, L"\n[Software\\Velmont\\Tidewell]\n\n[Control Panel]\n\"x\"=dword:1\n");
  const std::string tree = Tree();
  EXPECT_EQ(Import(), ImportResult::kDeclined);
  EXPECT_EQ(asked, "Control Panel?");
  EXPECT_EQ(Tree(), tree);
  EXPECT_TRUE(Copies().empty());
  answer = true;
  EXPECT_EQ(Import(), ImportResult::kDone);
  EXPECT_EQ(Stored(L"Control Panel", L"x"), 1u);
  PutText(kBackup,
          L"\n[Software\\Velmont\\Tidewell\\Calendar]\n\"dNumOfDays\"=dword:3\n\n[\\no key]\n");
  EXPECT_EQ(Import(), ImportResult::kReplacedInPart);
  EXPECT_EQ(Stored(SettingKey::kCalendar, L"dNumOfDays"), 3u);
  EXPECT_EQ(store.calendar.dNumOfDays.Value(), 7u) << "not loaded";
}

TEST_F(SettingsBackupTest, TheCategoriesOfTheRecordsWinOverTheirImportedValues) {
  catalog.FindCategory(L"Work")->color = 0xFF;
  PutText(kBackup,
          L"\n[Software\\Velmont\\Tidewell]\n\n[Software\\Velmont\\Tidewell\\Categories]\n"
          L"\"CatColor.Work\"=dword:1\n\"CatFilter.Work\"=dword:2\n\"CatColor.Gone\"=dword:3\n");
  ASSERT_EQ(Import(), ImportResult::kDone);
  EXPECT_EQ(Dump(SettingKey::kCategories),
            "[Software\\Velmont\\Tidewell\\Categories]\nCatColor.Gone = 3\nCatColor.Work = 255\n");
}

TEST_F(SettingsBackupTest, WhateverFailsABackupIsTheOldOrTheNewOneWhole) {
  ASSERT_EQ(backup.ExportTo(kBackup), FileStatus::kOk);
  const std::string whole = TextOf(kBackup);
  PutText(kBackup, L"old backup");
  for (int call = 3; call <= 5; ++call) {  // after list and create: write, close, replace
    recordedFiles.Calls().Reset();
    recordedFiles.Calls().FailNth(call);
    EXPECT_EQ(backup.ExportTo(kBackup), FileStatus::kOther) << call;
    EXPECT_EQ(TextOf(kBackup), "old backup") << call;
    EXPECT_FALSE(files.Find(kUnfinished)) << call;
  }
  recordedFiles.Calls().Reset();
  recorded.Calls().Reset();
  recorded.Calls().FailNth(1);
  EXPECT_EQ(backup.ExportTo(kBackup), FileStatus::kOther) << "the product's key";
  EXPECT_EQ(TextOf(kBackup), "old backup");
  recordedFiles.Calls().Reset();
  files.SetFreeBytes(whole.size());  // two bytes a unit are twice that
  EXPECT_EQ(backup.ExportTo(kBackup), FileStatus::kFull);
  EXPECT_EQ(TextOf(kBackup), "old backup");
  files.SetFreeBytes({});
  EXPECT_EQ(backup.ExportTo(kBackup), FileStatus::kOk);
  EXPECT_EQ(TextOf(kBackup), whole);
}

TEST_F(SettingsBackupTest, AnUnfinishedFileOfOursGoesAndNoOtherDoes) {
  const std::wstring others[] = {kBackup + L".new", L"\\My Documents\\~TidewellSettings.tmp",
                                 L"\\My Documents\\~TidewellSettingsX.tmp"};
  for (const std::wstring& other : others) PutText(other, L"a user's");
  PutText(kUnfinished, L"cut off");
  files.SetLocked(kUnfinished, true);
  EXPECT_EQ(backup.ExportTo(kBackup), FileStatus::kOk) << "under another name";
  files.SetLocked(kUnfinished, false);
  EXPECT_EQ(backup.ExportTo(kBackup), FileStatus::kOk);
  EXPECT_FALSE(files.Find(kUnfinished));
  for (const std::wstring& other : others) EXPECT_EQ(TextOf(other), "a user's");
}

}  // namespace
}  // namespace tidewell
