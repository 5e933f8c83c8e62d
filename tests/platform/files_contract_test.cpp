#include "tests/platform/files_contract.h"

#include <algorithm>

#include "tests/support/utf8.h"

namespace tidewell {

bool FilesContract::WriteFileOf(const std::wstring& name, const std::string& text) {
  const auto file = Door().OpenForWriting(In(name));
  return file && file->Write(std::as_bytes(std::span(text))) && file->Close();
}

std::string FilesContract::TextIn(const std::wstring& name) {
  const auto file = Door().OpenForReading(In(name));
  if (!file) return "absent";
  std::string text;
  char piece[3];
  while (const std::size_t count = file->Read(std::as_writable_bytes(std::span(piece))).value()) {
    text.append(piece, count);
  }
  return text;
}

std::string FilesContract::NamesOf(const std::wstring& pattern) {
  std::vector<std::string> names;
  EXPECT_TRUE(Door().List(In(pattern), [&](const FileEntry& entry) {
    names.push_back(Utf8(entry.name) + (entry.isFolder ? "\\" : ""));
    return true;
  }));
  std::sort(names.begin(), names.end());
  std::string joined;
  for (const std::string& name : names) joined += (joined.empty() ? "" : " ") + name;
  return joined;
}

namespace {

TEST_P(FilesContract, WhatWasWrittenIsRead) {
  std::string large;
  for (int i = 0; i < 100'000; ++i) large += static_cast<char>(i * 7);
  for (const std::string& text : {std::string(), std::string("a\0\r\n\x1A!", 6), large}) {
    ASSERT_TRUE(WriteFileOf(L"file", text));
    EXPECT_TRUE(TextIn(L"file") == text) << text.size();
  }
}

TEST_P(FilesContract, PiecesFollowEachOtherAndASecondWriterStartsAnew) {
  auto file = Door().OpenForWriting(In(L"file"));
  EXPECT_TRUE(file->Write(std::as_bytes(std::span("first", 5))));
  EXPECT_TRUE(file->Write({}));
  EXPECT_TRUE(file->Write(std::as_bytes(std::span("second", 6))));
  file.reset();  // without Close
  EXPECT_EQ(TextIn(L"file"), "firstsecond");
  ASSERT_TRUE(WriteFileOf(L"FILE", "3"));
  EXPECT_EQ(TextIn(L"file"), "3");
}

TEST_P(FilesContract, AClosedWriterWritesNoMore) {
  const auto file = Door().OpenForWriting(In(L"file"));
  EXPECT_TRUE(file->Close());
  EXPECT_FALSE(file->Write(std::as_bytes(std::span("late", 4))));
  EXPECT_FALSE(file->Close());
  EXPECT_EQ(TextIn(L"file"), "");
}

TEST_P(FilesContract, NamesAreFoundInAnyLetterCaseAndShownAsWritten) {
  ASSERT_TRUE(WriteFileOf(L"Gr\u00FCn.txt", "x"));
  ASSERT_TRUE(Door().MakeFolder(In(L"\u00C4pfel")));
  EXPECT_EQ(TextIn(L"gR\u00DCN.TXT"), "x");
  const auto file = Door().Find(In(L"GR\u00DCN.txt"));
  ASSERT_TRUE(file);
  EXPECT_EQ(file->name, L"Gr\u00FCn.txt");
  EXPECT_FALSE(file->isFolder);
  const auto folder = Door().Find(In(L"\u00E4pfel"));
  ASSERT_TRUE(folder);
  EXPECT_EQ(folder->name, L"\u00C4pfel");
  EXPECT_TRUE(folder->isFolder);
}

TEST_P(FilesContract, WhatIsAbsentIsNotReadRemovedOrFound) {
  for (const wchar_t* name : {L"absent", L"absent\\deeper", L"a*", L"?"}) {
    EXPECT_EQ(Door().OpenForReading(In(name)), nullptr);
    EXPECT_FALSE(Door().Remove(In(name)));
    EXPECT_FALSE(Door().Find(In(name)));
  }
  EXPECT_EQ(Door().OpenForReading(L""), nullptr);
  EXPECT_EQ(Door().OpenForWriting(L""), nullptr);
  EXPECT_FALSE(Door().List(In(L"absent\\*"), [](const FileEntry&) { return true; }));
}

TEST_P(FilesContract, NothingIsWrittenIntoAMissingFolderOrBelowAFile) {
  ASSERT_TRUE(WriteFileOf(L"file", "x"));
  for (const wchar_t* name : {L"absent\\file", L"file\\file"}) {
    EXPECT_EQ(Door().OpenForWriting(In(name)), nullptr);
    EXPECT_FALSE(Door().MakeFolder(In(name)));
    EXPECT_FALSE(Door().Find(In(name)));
  }
  EXPECT_EQ(NamesOf(L"*"), "file");
}

TEST_P(FilesContract, AFolderIsMadeOnceAndIsNoFile) {
  EXPECT_TRUE(Door().MakeFolder(In(L"folder")));
  ASSERT_TRUE(WriteFileOf(L"folder\\file", "x"));
  EXPECT_TRUE(Door().MakeFolder(In(L"FOLDER")));
  EXPECT_EQ(TextIn(L"folder\\file"), "x");
  EXPECT_EQ(Door().OpenForReading(In(L"folder")), nullptr);
  EXPECT_EQ(Door().OpenForWriting(In(L"folder")), nullptr);
  EXPECT_FALSE(Door().Remove(In(L"folder")));
  EXPECT_FALSE(Door().MakeFolder(In(L"folder\\file")));
}

TEST_P(FilesContract, SomeNamesAreNoFileNames) {
  for (const wchar_t* name : {L"a<b", L"a>b", L"a\"b", L"a|b", L"a?b", L"a*b", L"a\tb"}) {
    EXPECT_EQ(Door().OpenForWriting(In(name)), nullptr) << Utf8(name);
    EXPECT_FALSE(Door().MakeFolder(In(name))) << Utf8(name);
  }
  constexpr std::size_t kLongestPath = 259;
  const std::wstring longest(kLongestPath - In(L"").size(), L'n');
  EXPECT_TRUE(WriteFileOf(longest, "x"));
  EXPECT_EQ(TextIn(longest), "x");
  EXPECT_FALSE(WriteFileOf(std::wstring(256, L'n'), "x"));
}

TEST_P(FilesContract, ReplacingPutsOneFileInAnothersPlace) {
  ASSERT_TRUE(WriteFileOf(L"new", "fresh"));
  ASSERT_TRUE(WriteFileOf(L"Old", "stale"));
  EXPECT_TRUE(Door().Replace(In(L"new"), In(L"old")));
  EXPECT_EQ(TextIn(L"old"), "fresh");
  EXPECT_EQ(TextIn(L"new"), "absent");
  EXPECT_TRUE(Door().Replace(In(L"old"), In(L"third")));
  EXPECT_EQ(NamesOf(L"*"), "third");
  EXPECT_TRUE(Door().Replace(In(L"third"), In(L"third")));
  EXPECT_EQ(TextIn(L"third"), "fresh");
}

TEST_P(FilesContract, AReplacementThatFailsLeavesBothAsTheyWere) {
  ASSERT_TRUE(WriteFileOf(L"new", "fresh"));
  ASSERT_TRUE(WriteFileOf(L"old", "stale"));
  ASSERT_TRUE(Door().MakeFolder(In(L"folder")));
  EXPECT_FALSE(Door().Replace(In(L"absent"), In(L"old")));
  EXPECT_FALSE(Door().Replace(In(L"new"), In(L"absent\\old")));
  EXPECT_FALSE(Door().Replace(In(L"new"), In(L"folder")));
  const auto lock = underTest_->Lock(In(L"old"));
  ASSERT_TRUE(lock);
  EXPECT_FALSE(Door().Replace(In(L"new"), In(L"old")));
  EXPECT_FALSE(Door().Replace(In(L"old"), In(L"new")));
  EXPECT_EQ(TextIn(L"new"), "fresh");
  EXPECT_EQ(NamesOf(L"*"), "folder\\ new old");
}

TEST_P(FilesContract, ALockedFileIsLeftAlone) {
  ASSERT_TRUE(WriteFileOf(L"file", "x"));
  auto lock = underTest_->Lock(In(L"file"));
  ASSERT_TRUE(lock);
  EXPECT_EQ(Door().OpenForReading(In(L"file")), nullptr);
  EXPECT_EQ(Door().OpenForWriting(In(L"file")), nullptr);
  EXPECT_FALSE(Door().Remove(In(L"file")));
  EXPECT_TRUE(Door().Find(In(L"file")));
  lock.reset();
  EXPECT_EQ(TextIn(L"file"), "x");
}

TEST_P(FilesContract, AnOpenFileCanBeReadTwiceButNotTakenAway) {
  ASSERT_TRUE(WriteFileOf(L"file", "x"));
  ASSERT_TRUE(WriteFileOf(L"other", "y"));
  {
    const auto open = Door().OpenForReading(In(L"file"));
    EXPECT_EQ(TextIn(L"file"), "x");
    EXPECT_FALSE(Door().Remove(In(L"file")));
    EXPECT_FALSE(Door().Replace(In(L"other"), In(L"file")));
    EXPECT_FALSE(Door().Replace(In(L"file"), In(L"third")));
  }
  EXPECT_TRUE(Door().Remove(In(L"file")));
  EXPECT_EQ(NamesOf(L"*"), "other");
}

TEST_P(FilesContract, AReadOnlyFileIsReadAndNotRemoved) {
  ASSERT_TRUE(WriteFileOf(L"file", "x"));
  underTest_->MakeReadOnly(In(L"file"));
  EXPECT_FALSE(Door().Remove(In(L"file")));
  EXPECT_EQ(TextIn(L"file"), "x");
}

TEST_P(FilesContract, APatternListsFilesAndFoldersThatFitIt) {
  for (const wchar_t* name : {L"a.scm", L"B.SCM", L"long name.scm", L"c.scm_old", L"c.scmx",
                              L"nodot", L"two.dots.scm", L"\u00C4.txt"}) {
    ASSERT_TRUE(WriteFileOf(name, ""));
  }
  ASSERT_TRUE(Door().MakeFolder(In(L"folder.scm")));
  ASSERT_TRUE(WriteFileOf(L"folder.scm\\inside.scm", ""));
  struct Case {
    const wchar_t* pattern;
    const char* names;
  };
  const Case cases[] = {
      {L"*.scm", "B.SCM a.scm folder.scm\\ long name.scm two.dots.scm"},
      {L"*.ScM", "B.SCM a.scm folder.scm\\ long name.scm two.dots.scm"},
      {L"?.scm", "B.SCM a.scm"},
      {L"c.scm?*", "c.scm_old c.scmx"},
      {L"*o*", "c.scm_old folder.scm\\ long name.scm nodot two.dots.scm"},
      {L"*name.scm", "long name.scm"},
      {L"two.*.scm", "two.dots.scm"},
      {L"\u00E4.*", "\u00C4.txt"},
      {L"nodot", "nodot"},
      {L"*.dll", ""},
      {L"folder.scm\\*", "inside.scm"},
  };
  for (const Case& c : cases) EXPECT_EQ(NamesOf(c.pattern), c.names) << Utf8(c.pattern);
  EXPECT_EQ(NamesOf(L"*"), NamesOf(L"*.*"));
}

TEST_P(FilesContract, AListComesInTheSameOrderAgainAndStopsWhenTold) {
  for (const wchar_t* name : {L"b", L"c", L"a"}) ASSERT_TRUE(WriteFileOf(name, ""));
  std::vector<std::wstring> names;
  for (std::size_t wanted : {3u, 6u, 7u}) {
    EXPECT_TRUE(Door().List(In(L"*"), [&](const FileEntry& entry) {
      names.push_back(entry.name);
      return names.size() < wanted;
    }));
    ASSERT_EQ(names.size(), wanted);
  }
  EXPECT_TRUE(std::equal(names.begin(), names.begin() + 3, names.begin() + 3));
  EXPECT_EQ(names[6], names[0]);
}

}  // namespace
}  // namespace tidewell
