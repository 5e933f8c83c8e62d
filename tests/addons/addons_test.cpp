// The add-ons that are kept as lists: alphabets, language packs and folders of notes.
#include <gtest/gtest.h>

#include <algorithm>

#include "addons/alphabets.h"
#include "addons/language_packs.h"
#include "addons/note_folders.h"
#include "platform/text.h"
#include "resources/text/text_ids.h"
#include "tests/support/test_device.h"

namespace tidewell {
namespace {

constexpr const wchar_t* kAlphabets = L"Software\\Velmont\\Tidewell\\Contacts\\Alphabets";
const std::wstring kAlphabetFolder = L"\\Tidewell\\CustomAlphabets\\";

TEST(AlphabetFiles, AreToldByTheFirstOfThreeCharacters) {
  const std::pair<const wchar_t*, bool> cases[] = {
      {L"Thai.txt", true},  {L"Latvian.txt", false}, {L"latin.txt", true}, {L"T.txt", true},
      {L".txt", false},     {L"A.b.txt", false},     {L"Greek.TXT", true}, {L"Index.txt", false},
      {L"Runes.dat", true}, {L"Runestab", false},    {L"Runetabc", true},  {L"Runes", false},
      {L"", false}};
  for (const auto& [name, isOne] : cases) {
    EXPECT_EQ(IsAlphabetFile(name), isOne) << testing::PrintToString(std::wstring(name));
  }
}

class AlphabetsTest : public testing::Test, protected TestDevice {
 protected:
  AlphabetsTest() {
    for (const wchar_t* name : {L"Latin.txt", L"Runes.txt", L"Latvian.txt", L"Folder.txt\\"}) {
      files.Put(kAlphabetFolder + name);
    }
  }
  Alphabets alphabets{machine, L"\\Tidewell"};
};

TEST_F(AlphabetsTest, KeepTheCustomOnesInTheirKeyAndOfferThoseThatAreThere) {
  PutBytes(kAlphabets, L"runes", {});  // whatever its type
  Put(kAlphabets, L"Gone", 1);
  Put(kAlphabets, std::wstring(300, L'n'), 1);
  Put(kAlphabets, L"Latin", 1);
  std::vector<Alphabet> offered = alphabets.Offered(kCyrillic | kGreek | kCustomAlphabets);
  const std::vector<Alphabet> expected = {
      {L"Latin", kLatin, false},          {L"Cyrillic", kCyrillic, true},
      {L"Hebrew", kHebrew, false},        {L"Greek", kGreek, true},
      {L"Latin", kCustomAlphabets, true}, {L"Runes", kCustomAlphabets, true}};
  EXPECT_EQ(offered, expected);
  EXPECT_EQ(alphabets.ActiveCustom(), std::vector<std::wstring>{L"runes"});

  offered[0].active = true;
  EXPECT_EQ(alphabets.Activate(offered), kLatin | kCyrillic | kGreek | kCustomAlphabets);
  EXPECT_EQ(Dump(kAlphabets),
            "[Software\\Velmont\\Tidewell\\Contacts\\Alphabets]\nLatin = 1\nrunes = 1\n");
  offered[4].active = offered[5].active = false;
  EXPECT_EQ(alphabets.Activate(offered), kLatin | kCyrillic | kGreek);
  EXPECT_EQ(Dump(kAlphabets), "");
}

// An unread one would seem to be off.
TEST_F(AlphabetsTest, LeaveAKeyAloneThatWasReadInPart) {
  Put(kAlphabets, L"Latin", 1);
  Put(kAlphabets, L"Runes", 1);
  const std::string before = Dump(kAlphabets);
  for (int call = 1; call <= 4; ++call) {
    recorded.Calls().Reset();
    recorded.Calls().FailNth(call);
    std::vector<Alphabet> offered = alphabets.Offered(0);
    recorded.Calls().Reset();
    for (const bool isOn : {false, true}) {
      offered[4].active = isOn;
      alphabets.Activate(offered);
      EXPECT_EQ(Dump(kAlphabets), before) << call;
    }
  }
}

// ---- Language packs

class Packs : public testing::Test, protected TestDevice {
 protected:
  // A file that is a library with a name, with texts but no name (null), or none at all.
  void PutPack(const std::wstring& file, const wchar_t* name) {
    const std::wstring path = L"\\Tidewell\\LangRes\\" + file;
    files.Put(path, "MZ");
    memory.libraries.Put(path, name ? MemoryLibraries::Texts{{IDS_LANGUAGE_NAME, name}}
                                    : MemoryLibraries::Texts{{IDS_LANGUAGE, L"Language"}});
  }
  LanguagePacks Scan(const std::wstring& present = L"") {
    return ScanLanguagePacks(machine, L"\\Tidewell", present);
  }
};

// Two packs may have one name.
TEST_F(Packs, WhatIsNoLibraryTakesNoSlotButALibraryWithoutANameDoes) {
  files.Put(L"\\Tidewell\\LangRes\\Aaa.dll", "not a library");
  files.Put(L"\\Tidewell\\LangRes\\Folder.dll\\");
  PutPack(L"Bbb.dll", nullptr);
  PutPack(L"TWEngRc.dll", L"English");
  PutPack(L"TWOldRc.dll", L"English");
  const LanguagePacks packs = Scan(L"\\Tidewell\\LangRes\\TWOldRc.dll");
  EXPECT_EQ(packs.names, (std::vector<std::wstring>{L"English", L"English"}));
  EXPECT_EQ(packs.selection, 2);
  for (const int choice : {-1, 0, 20}) EXPECT_EQ(packs.PathOf(choice), nullptr);
  ASSERT_TRUE(packs.PathOf(1));
  EXPECT_EQ(*packs.PathOf(1), L"\\Tidewell\\LangRes\\TWEngRc.dll");
  EXPECT_EQ(Scan(L"\\Tidewell\\LangRes\\twoldrc.dll").selection, 0) << "by its exact path";
  EXPECT_EQ(memory.libraries.LoadedCount(), 0);
}

TEST_F(Packs, TheFirstTwentyAreOffered) {
  for (int i = 0; i < 25; ++i) PutPack(FormatDecimal(100 + i) + L".dll", L"Pack");
  const LanguagePacks packs = Scan(L"\\Tidewell\\LangRes\\119.dll");
  EXPECT_EQ(packs.names.size(), 20u);
  EXPECT_EQ(packs.selection, 19);
}

// ---- Folders of notes

using Paths = std::vector<std::wstring>;
constexpr const wchar_t* kFolders = L"Software\\Velmont\\Tidewell\\Notes\\Folders";

class NoteFoldersTest : public testing::Test, protected TestDevice {
 protected:
  NoteFoldersTest() {
    for (const wchar_t* path : {L"\\A\\", L"\\B\\", L"\\C\\"}) files.Put(path);
  }
  // The values "0", "1", "2" ...
  void PutList(const Paths& paths) {
    Delete(kFolders);
    for (std::int32_t i = 0; i < std::ssize(paths); ++i) {
      Put(kFolders, FormatDecimal(i), paths[static_cast<std::size_t>(i)]);
    }
  }
  Paths Stored() {
    Machine unrecorded = memory.Door();
    return NoteFolders(unrecorded).Paths();
  }
};

TEST_F(NoteFoldersTest, AreListedByTheirNumbersOnceAndOnlyWhereTheyAre) {
  PutList({L"\\B", L"\\gone", L"\\A"});
  Put(kFolders, L"10", L"\\C");
  Put(kFolders, L"3", L"\\b");
  Put(kFolders, L"4", L"\\*");
  Put(kFolders, L"5", 5);
  Put(kFolders, L"07", L"\\");
  Put(kFolders, std::wstring(300, L'n'), L"\\A");
  NoteFolders folders(machine);
  EXPECT_EQ(folders.Paths(), (Paths{L"\\B", L"\\A", L"\\C"}));
  EXPECT_FALSE(folders.Add(L"\\c\\"));
  EXPECT_TRUE(folders.Add(L"\\"));
  folders.Remove(1);
  folders.Save();
  EXPECT_EQ(Dump(kFolders),
            "[Software\\Velmont\\Tidewell\\Notes\\Folders]\n0 = \"\\B\"\n1 = \"\\C\"\n");
  folders.Save();
  EXPECT_TRUE(folders.Add(L"\\A\\"));
  folders.Save();
  EXPECT_EQ(Stored(), (Paths{L"\\B", L"\\C", L"\\A"}));
}

// Cut short by a kill or by one refusal, wherever.
TEST_F(NoteFoldersTest, LoseNoneThatStaysHoweverTheSavingEnds) {
  for (int call = 2; call < 80; ++call) {
    PutList({L"\\A", L"\\B", L"\\gone", L"\\C"});
    recorded.Calls().Reset();
    NoteFolders folders(machine);
    folders.Remove(0);
    folders.Add(L"\\A");  // to the end
    folders.Remove(0);
    recorded.Calls().Reset();
    call % 2 ? recorded.Calls().FailNth(call / 2) : recorded.Calls().FailFrom(call / 2);
    folders.Save();
    ASSERT_LT(recorded.Calls().FailableCount(), 40);
    for (const wchar_t* path : {L"\\C", L"\\A"}) {
      EXPECT_EQ(std::ranges::count(Stored(), path), 1) << call;
    }
  }
  EXPECT_EQ(Stored(), (Paths{L"\\C", L"\\A"}));
}

// A list that was not read is not written.
TEST_F(NoteFoldersTest, LeaveAKeyAloneThatWasReadInPart) {
  PutList({L"\\A", L"\\B"});
  const std::string before = Dump(kFolders);
  for (int call = 1; call <= 4; ++call) {
    recorded.Calls().Reset();
    recorded.Calls().FailNth(call);
    NoteFolders folders(machine);
    recorded.Calls().Reset();
    folders.Add(L"\\C");
    folders.Save();
    EXPECT_EQ(Dump(kFolders), before) << call;
  }
}

}  // namespace
}  // namespace tidewell
