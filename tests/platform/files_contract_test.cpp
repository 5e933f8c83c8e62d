#include <algorithm>

#include "tests/platform/contracts.h"
#include "tests/support/utf8.h"

namespace tidewell {
namespace {

using enum FileStatus;

class FilesContract : public testing::TestWithParam<Answers<FilesUnderTest>::value_type> {
 protected:
  std::wstring In(const std::wstring& name) const { return underTest_->Folder() + L'\\' + name; }

  FileStatus Write(const std::wstring& name, const std::string& text) {
    const auto [file, status] = files_.OpenForWriting(In(name));
    if (file) file->Write(std::as_bytes(std::span(text)));
    return file ? file->Close() : status;
  }

  FileStatus OpenStatus(const std::wstring& name) { return files_.OpenForReading(In(name)).status; }
  // The file's contents, "absent" for one that cannot be opened.
  std::string Read(const std::wstring& name) {
    const auto file = files_.OpenForReading(In(name)).stream;
    if (!file) return "absent";
    std::string text;
    char piece[3];
    while (const std::size_t count = file->Read(std::as_writable_bytes(std::span(piece))).value()) {
      text.append(piece, count);
    }
    return text;
  }

  // The names that fit a pattern, sorted, folders with a backslash behind.
  std::string NamesOf(const std::wstring& pattern) {
    std::vector<std::string> names;
    EXPECT_TRUE(files_.List(In(pattern), [&](const FileEntry& entry) {
      names.push_back(Utf8(entry.name) + (entry.isFolder ? "\\" : ""));
      return true;
    }));
    std::sort(names.begin(), names.end());
    std::string joined;
    for (const std::string& name : names) joined += (joined.empty() ? "" : " ") + name;
    return joined;
  }

  std::shared_ptr<FilesUnderTest> underTest_ = GetParam()();
  Files& files_ = underTest_->Door();
};

INSTANTIATE_TEST_SUITE_P(All, FilesContract, testing::ValuesIn(FilesAnswers()));

TEST_P(FilesContract, WhatWasWrittenIsRead) {
  std::string large;
  for (int i = 0; i < 100'000; ++i) large += static_cast<char>(i * 7);
  for (const std::string& text : {large, std::string("a\0\r\n\x1A!", 6), std::string()}) {
    ASSERT_EQ(Write(L"file", text), kOk);
    EXPECT_TRUE(Read(L"FILE") == text) << text.size();
  }
  const auto file = files_.OpenForWriting(In(L"file")).stream;
  EXPECT_EQ(file->Close(), kOk);
  EXPECT_FALSE(file->Write(std::as_bytes(std::span("late", 4))));
  EXPECT_EQ(file->Close(), kOther);
}

TEST_P(FilesContract, AFullDiskTakesNoMoreAndTheCloseSaysSo) {
  const auto file = files_.OpenForWriting(underTest_->FileOnFullDisk()).stream;
  for (int i = 0; i < 2; ++i) EXPECT_FALSE(file->Write(std::as_bytes(std::span("x", 1))));
  EXPECT_EQ(file->Close(), kFull);
}

TEST_P(FilesContract, WhatIsNoFileNameIsAbsent) {
  ASSERT_EQ(Write(L"file", "x"), kOk);
  for (const wchar_t* name : {L"absent", L"absent\\deeper", L"f*", L"fil?"}) {
    EXPECT_EQ(OpenStatus(name), kAbsent) << Utf8(name);
    EXPECT_EQ(files_.Remove(In(name)), kAbsent) << Utf8(name);
    EXPECT_FALSE(files_.Find(In(name))) << Utf8(name);
  }
  for (const wchar_t* name : {L"absent\\file", L"file\\file", L"a<b", L"a|b", L"a*b", L"a\tb"}) {
    EXPECT_EQ(files_.OpenForWriting(In(name)).status, kAbsent) << Utf8(name);
    EXPECT_EQ(files_.MakeFolder(In(name)), kAbsent) << Utf8(name);
  }
  EXPECT_EQ(NamesOf(L"*"), "file");
  EXPECT_FALSE(files_.List(In(L"absent\\*"), [](const FileEntry&) { return true; }));
  EXPECT_EQ(Write(std::wstring(256, L'n'), "x"), kAbsent);
}

TEST_P(FilesContract, AFolderIsMadeOnceAndIsNoFile) {
  EXPECT_EQ(files_.MakeFolder(In(L"\u00C4pfel")), kOk);
  ASSERT_EQ(Write(L"\u00E4PFEL\\file", "x"), kOk);
  EXPECT_EQ(files_.MakeFolder(In(L"\u00E4pfel")), kOk);
  const auto folder = files_.Find(In(L"\u00E4pfel"));
  ASSERT_TRUE(folder);
  EXPECT_EQ(folder->name, L"\u00C4pfel");
  EXPECT_TRUE(folder->isFolder);
  EXPECT_EQ(Read(L"\u00C4pfel\\FILE"), "x");
  EXPECT_EQ(OpenStatus(L"\u00C4pfel"), kRefused);
  EXPECT_EQ(Write(L"\u00C4pfel", "x"), kRefused);
  EXPECT_EQ(files_.Remove(In(L"\u00C4pfel")), kRefused);
  EXPECT_EQ(files_.MakeFolder(In(L"\u00C4pfel\\file")), kInUse);
}

TEST_P(FilesContract, ANameThatIsTakenIsNeitherCreatedNorMovedTo) {
  ASSERT_EQ(Write(L"file", "fresh"), kOk);
  ASSERT_EQ(Write(L"Old", "stale"), kOk);
  ASSERT_EQ(files_.MakeFolder(In(L"folder")), kOk);
  for (const wchar_t* taken : {L"old", L"folder"}) {
    EXPECT_EQ(files_.CreateNew(In(taken)).status, kInUse);
    EXPECT_EQ(files_.Move(In(L"file"), In(taken)), kInUse);
  }
  EXPECT_EQ(files_.Move(In(L"absent"), In(L"new")), kAbsent);
  EXPECT_EQ(files_.Move(In(L"file"), In(L"new")), kOk);
  EXPECT_EQ(Read(L"new") + Read(L"old"), "freshstale");
  EXPECT_EQ(files_.CreateNew(In(L"file")).status, kOk);
  EXPECT_EQ(files_.Find(In(L"file"))->size + files_.Find(In(L"new"))->size, 5u);
}

TEST_P(FilesContract, AReplacementIsWholeOrLeavesBothAsTheyWere) {
  ASSERT_EQ(Write(L"new", "fresh"), kOk);
  ASSERT_EQ(Write(L"Old", "stale"), kOk);
  {
    const auto lock = underTest_->Lock(In(L"old"));
    for (const auto& [from, to, status] : {std::tuple(L"absent", L"old", kAbsent),
                                           {L"new", L"absent\\old", kAbsent},
                                           {L"new", L"old", kRefused},
                                           {L"old", L"new", kInUse}}) {
      EXPECT_EQ(files_.Replace(In(from), In(to)), status) << Utf8(from) << " " << Utf8(to);
    }
  }
  EXPECT_EQ(Read(L"new") + Read(L"old"), "freshstale");
  EXPECT_EQ(files_.Replace(In(L"new"), In(L"old")), kOk);
  EXPECT_EQ(Read(L"old") + Read(L"new"), "freshabsent");
}

TEST_P(FilesContract, AFileInUseOrReadOnlyIsNotTakenAway) {
  ASSERT_EQ(Write(L"file", "x"), kOk);
  ASSERT_EQ(Write(L"other", "y"), kOk);
  {
    const auto lock = underTest_->Lock(In(L"file"));
    EXPECT_EQ(OpenStatus(L"file"), kInUse);
    EXPECT_EQ(files_.OpenForWriting(In(L"file")).status, kInUse);
    EXPECT_EQ(files_.Remove(In(L"file")), kInUse);
    EXPECT_TRUE(files_.Find(In(L"file")));
  }
  EXPECT_EQ(files_.Remove(In(L"file")), kOk);
  underTest_->MakeReadOnly(In(L"other"));
  EXPECT_EQ(files_.Remove(In(L"other")), kRefused);
}

TEST_P(FilesContract, APatternListsFilesAndFoldersThatFitIt) {
  ASSERT_EQ(files_.MakeFolder(In(L"folder.scm")), kOk);
  for (const wchar_t* name :
       {L"a.scm", L"B.SCM", L"c.scmx", L"nodot", L"two.dots.scm", L"folder.scm\\inside.scm"}) {
    ASSERT_EQ(Write(name, ""), kOk);
  }
  const std::pair<const wchar_t*, const char*> cases[] = {
      {L"*.ScM", "B.SCM a.scm folder.scm\\ two.dots.scm"},
      {L"?.scm", "B.SCM a.scm"},
      {L"two.*.scm", "two.dots.scm"},
      {L"nodot", "nodot"},
      {L"*.dll", ""},
      {L"folder.scm\\*", "inside.scm"},
  };
  for (const auto& [pattern, names] : cases) EXPECT_EQ(NamesOf(pattern), names) << Utf8(pattern);
  EXPECT_EQ(NamesOf(L"*"), NamesOf(L"*.*"));
}

}  // namespace
}  // namespace tidewell
