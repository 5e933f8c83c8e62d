#include "platform/memory/memory_machine.h"

#include "platform/memory/metered_files.h"
#include "platform/memory/metered_registry.h"
#include "platform/replacement_file.h"
#include "platform/text.h"
#include "tests/platform/contracts.h"
#include "tests/support/registry_support.h"

namespace tidewell {

namespace {

struct MeteredMemoryRegistry {
  MemoryRegistry memory;
  MeteredRegistry metered{memory};
};

class MemoryFilesUnderTest final : public FilesUnderTest {
 public:
  MemoryFilesUnderTest() { files_.Put(L"\\Temp\\Test\\", ""); }
  Files& Door() override { return metered_; }
  std::wstring Folder() const override { return L"\\Temp\\Test"; }
  std::shared_ptr<void> Lock(const std::wstring& path) override {
    files_.SetLocked(path, true);
    return {&files_, [path](MemoryFiles* files) { files->SetLocked(path, false); }};
  }
  void MakeReadOnly(const std::wstring& path) override { files_.SetReadOnly(path, true); }

 private:
  MemoryFiles files_;
  MeteredFiles metered_{files_};
};

}  // namespace

std::vector<Answer<Registry>> RegistryAnswers() {
  using Order = MemoryRegistry::Order;
  return {{"Sorted", [] { return std::make_shared<MemoryRegistry>(Order::kSorted); }},
          {"Metered", [] {
             const auto both = std::make_shared<MeteredMemoryRegistry>();
             return std::shared_ptr<Registry>(both, &both->metered);
           }}};
}

std::vector<Answer<FilesUnderTest>> FilesAnswers() {
  return {{"Metered", [] { return std::make_shared<MemoryFilesUnderTest>(); }}};
}

namespace {

TEST(MeteredRegistry, FailsTheCallsItIsToldTo) {
  MeteredMemoryRegistry both;
  auto& [memory, registry] = both;
  const auto setThree = [&] {  // six calls that can fail
    for (const wchar_t* name : {L"1", L"2", L"3"}) {
      SetDword(registry, RegistryRoot::kCurrentUser, L"Key", name, 0);
    }
    std::string set = DumpTree(memory, RegistryRoot::kCurrentUser, L"Key");
    memory.DeleteTree(RegistryRoot::kCurrentUser, L"Key");
    registry.Meter().Reset();
    return set;
  };
  registry.Meter().FailNth(3);  // the second creation
  EXPECT_EQ(setThree(), "[Key]\n1 = 0\n3 = 0\n");
  registry.Meter().FailNth(4);  // the second value
  EXPECT_EQ(setThree(), "[Key]\n1 = 0\n3 = 0\n");
  registry.Meter().FailFrom(4);
  EXPECT_EQ(setThree(), "[Key]\n1 = 0\n");
  registry.Meter().FailEvery(RegistryCall::kSet);
  EXPECT_EQ(setThree(), "[Key]\n");
  EXPECT_EQ(setThree(), "[Key]\n1 = 0\n2 = 0\n3 = 0\n");

  registry.SetFailure(kStatusMoreData);
  const auto key = registry.Create(RegistryRoot::kCurrentUser, L"Key");
  registry.Meter().FailFrom(1);
  EXPECT_EQ(key->DeleteValue(L"1"), kStatusMoreData);
  EXPECT_EQ(registry.DeleteTree(RegistryRoot::kCurrentUser, L"Key"), kStatusMoreData);
  EXPECT_TRUE(memory.Open(RegistryRoot::kCurrentUser, L"Key"));
}

TEST(MeteredFiles, FailsEveryKindOfCallAndLeavesTheFilesAlone) {
  MemoryFiles memory;
  memory.Put(L"\\file", "text");
  MeteredFiles files(memory);
  const auto reader = files.OpenForReading(L"\\file");
  const auto writer = files.OpenForWriting(L"\\other");
  std::byte buffer[4];
  files.Meter().Reset();
  files.Meter().FailFrom(1);
  EXPECT_EQ(files.OpenForReading(L"\\file"), nullptr);
  EXPECT_EQ(files.OpenForWriting(L"\\file"), nullptr);
  EXPECT_FALSE(files.Remove(L"\\file"));
  EXPECT_FALSE(files.Replace(L"\\other", L"\\file"));
  EXPECT_FALSE(files.MakeFolder(L"\\folder"));
  EXPECT_FALSE(files.Find(L"\\file"));
  EXPECT_FALSE(files.List(L"\\*", [](const FileEntry&) { return true; }));
  EXPECT_FALSE(reader->Read(buffer));
  EXPECT_FALSE(writer->Write(buffer));
  EXPECT_FALSE(writer->Close());
  EXPECT_EQ(files.Meter().FailableCount(), static_cast<int>(FileCall::kCount));
  EXPECT_EQ(memory.Contents(L"\\file")->size(), 4u);
  EXPECT_EQ(memory.Contents(L"\\other")->size(), 0u);
  EXPECT_FALSE(memory.Find(L"\\folder"));
  EXPECT_TRUE(memory.Remove(L"\\other")) << "closed all the same";
}

// What stood in the file's place and what an earlier attempt left beside it; the disk has room for
// some bytes; the new text is committed or not.
TEST(ReplacementFile, IsTheNewOneWholeOrTheOldOneAndLeavesNothingBeside) {
  const struct {
    const char* what;
    bool isLocked, isReadOnly;
    std::size_t freeBytes;
    bool isCommitted, succeeds;
  } cases[] = {
      {"committed", false, false, 100, true, true},
      {"given up", false, false, 100, false, false},
      {"a locked target", true, false, 100, true, false},
      {"a read-only target", false, true, 100, true, false},
      {"a full disk", false, false, 4, true, false},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    MemoryFiles files;
    files.Put(L"\\a.txt", "old");
    files.Put(L"\\a.txt.new", "");
    files.SetLocked(L"\\a.txt", c.isLocked);
    files.SetReadOnly(L"\\a.txt", c.isReadOnly);
    files.SetFreeBytes(c.freeBytes);
    {
      ReplacementFile file(files, L"\\a.txt");
      ASSERT_TRUE(file.Stream());
      EXPECT_EQ(file.Stream()->Write(BytesOf(L"new")), c.freeBytes > 6);
      EXPECT_EQ(c.isCommitted && file.Commit(), c.succeeds);
    }
    EXPECT_EQ(files.Contents(L"\\a.txt")->size(), c.succeeds ? 6u : 3u);
    EXPECT_FALSE(files.Find(L"\\a.txt.new"));
  }
  MemoryFiles files;
  ReplacementFile nowhere(files, L"\\gone\\a.txt");
  EXPECT_FALSE(nowhere.Stream());
  EXPECT_FALSE(nowhere.Commit());
}

}  // namespace
}  // namespace tidewell
