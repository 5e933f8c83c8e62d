#include "platform/replacement_file.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_files.h"
#include "platform/text.h"

namespace tidewell {
namespace {

TEST(ReplacementFile, TakesItsPlaceOnlyWhenItIsCommitted) {
  MemoryFiles files;
  files.Put(L"\\a.txt", "old");
  {
    ReplacementFile file(files, L"\\a.txt");
    ASSERT_TRUE(file.Stream());
    EXPECT_TRUE(file.Stream()->Write(BytesOf(L"new")));
  }
  EXPECT_EQ(files.Contents(L"\\a.txt")->size(), 3u);
  EXPECT_FALSE(files.Find(L"\\a.txt.new").has_value());

  ReplacementFile file(files, L"\\a.txt");
  ASSERT_TRUE(file.Stream()->Write(BytesOf(L"new")));
  EXPECT_TRUE(file.Commit());
  EXPECT_EQ(files.Contents(L"\\a.txt"), BytesOf(L"new"));
  EXPECT_FALSE(files.Find(L"\\a.txt.new").has_value());
}

TEST(ReplacementFile, IsNeitherWrittenNorCommittedWhereItCannotBeCreated) {
  MemoryFiles files;
  ReplacementFile file(files, L"\\gone\\a.txt");
  EXPECT_FALSE(file.Stream());
  EXPECT_FALSE(file.Commit());
}

TEST(ReplacementFile, AnOlderAttemptDoesNotStandInTheWay) {
  MemoryFiles files;
  files.Put(L"\\a.txt.new", "left behind by a lost battery");
  ReplacementFile file(files, L"\\a.txt");
  ASSERT_TRUE(file.Stream()->Write(BytesOf(L"x")));
  EXPECT_TRUE(file.Commit());
  EXPECT_EQ(files.Contents(L"\\a.txt"), BytesOf(L"x"));
}

TEST(ReplacementFile, ALockedTargetStaysAsItIs) {
  MemoryFiles files;
  files.Put(L"\\a.txt", "old");
  files.SetLocked(L"\\a.txt", true);
  {
    ReplacementFile file(files, L"\\a.txt");
    ASSERT_TRUE(file.Stream()->Write(BytesOf(L"x")));
    EXPECT_FALSE(file.Commit());
  }
  EXPECT_EQ(files.Contents(L"\\a.txt")->size(), 3u);
  EXPECT_FALSE(files.Find(L"\\a.txt.new").has_value());
}

}  // namespace
}  // namespace tidewell
