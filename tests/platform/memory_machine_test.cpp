#include "platform/memory/memory_machine.h"

#include <gtest/gtest.h>

#include "platform/memory/metered_files.h"
#include "platform/memory/metered_registry.h"
#include "tests/platform/files_contract.h"
#include "tests/platform/registry_contract.h"
#include "tests/support/registry_support.h"

namespace tidewell {
namespace {

std::shared_ptr<Registry> MakeMeteredRegistry() {
  struct Both {
    MemoryRegistry memory;
    MeteredRegistry metered{memory};
  };
  const auto both = std::make_shared<Both>();
  return {both, &both->metered};
}

INSTANTIATE_TEST_SUITE_P(
    Twins, RegistryContract,
    testing::Values(RegistryAnswer{"AsWritten", [] { return std::make_shared<MemoryRegistry>(); }},
                    RegistryAnswer{"Sorted",
                                   [] {
                                     return std::make_shared<MemoryRegistry>(
                                         MemoryRegistry::Order::kSorted);
                                   }},
                    RegistryAnswer{"Metered", MakeMeteredRegistry}),
    NameOfRegistryAnswer);

class MemoryFilesUnderTest final : public FilesUnderTest {
 public:
  explicit MemoryFilesUnderTest(bool isMetered) : isMetered_(isMetered) {
    files_.Put(L"\\Temp\\Test\\", "");
  }
  Files& Door() override { return isMetered_ ? static_cast<Files&>(metered_) : files_; }
  std::wstring Folder() const override { return L"\\Temp\\Test"; }
  std::shared_ptr<void> Lock(const std::wstring& path) override {
    files_.SetLocked(path, true);
    return {&files_, [path](MemoryFiles* files) { files->SetLocked(path, false); }};
  }
  void MakeReadOnly(const std::wstring& path) override { files_.SetReadOnly(path, true); }

 private:
  MemoryFiles files_;
  MeteredFiles metered_{files_};
  bool isMetered_;
};

INSTANTIATE_TEST_SUITE_P(
    Twins, FilesContract,
    testing::Values(
        FilesAnswer{"Memory", [] { return std::make_unique<MemoryFilesUnderTest>(false); }},
        FilesAnswer{"Metered", [] { return std::make_unique<MemoryFilesUnderTest>(true); }}),
    NameOfFilesAnswer);

TEST(MeteredRegistry, FailsTheCallsItIsToldTo) {
  MemoryRegistry memory;
  MeteredRegistry registry(memory);
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
}

TEST(MemoryFiles, AFullDiskTakesWhatFitsAndSaysSo) {
  MemoryFiles files;
  const std::string_view eight = "12345678";
  const auto write = [&](const wchar_t* path) {
    const auto file = files.OpenForWriting(path);
    const bool isWritten = file->Write(std::as_bytes(std::span(eight)));
    EXPECT_EQ(file->Close(), isWritten);
    return isWritten;
  };
  files.SetFreeBytes(12);
  EXPECT_TRUE(write(L"\\a"));
  EXPECT_FALSE(write(L"\\b"));
  EXPECT_EQ(files.Contents(L"\\b")->size(), 4u);
  EXPECT_TRUE(files.Remove(L"\\a"));
  EXPECT_TRUE(write(L"\\b"));  // its four bytes and the eight freed
}

TEST(MemoryFiles, AReadOnlyFileIsNeitherWrittenNorReplaced) {
  MemoryFiles files;
  files.Put(L"\\folder\\file", "kept");
  files.Put(L"\\folder\\new", "fresh");
  files.SetReadOnly(L"\\folder\\file", true);
  EXPECT_EQ(files.OpenForWriting(L"\\folder\\file"), nullptr);
  EXPECT_FALSE(files.Replace(L"\\folder\\new", L"\\folder\\file"));
  EXPECT_EQ(files.Contents(L"\\folder\\file")->size(), 4u);
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
  EXPECT_EQ(files.Meter().Paths(FileCall::kReplace), std::vector<std::wstring>{L"\\file"});
  EXPECT_EQ(memory.Contents(L"\\file")->size(), 4u);
  EXPECT_EQ(memory.Contents(L"\\other")->size(), 0u);
  EXPECT_FALSE(memory.Find(L"\\folder"));
}

TEST(FixedLocale, FormatsDatesAndTimes) {
  FixedLocale locale;
  const LocalTime noon{2008, 3, 4, 12, 5};
  EXPECT_EQ(locale.FormatDate(noon, L"yyyy_MM_dd"), L"2008_03_04");
  EXPECT_EQ(locale.FormatDate(noon, L"d.M.yy 'dd'"), L"4.3.08 dd");
  EXPECT_EQ(locale.FormatTime(noon), L"12:05");
  locale.timeStyle = L"0";
  EXPECT_EQ(locale.FormatTime(noon), L"12:05 PM");
  EXPECT_EQ(locale.FormatTime({2008, 3, 4, 0, 0}), L"12:00 AM");
}

}  // namespace
}  // namespace tidewell
