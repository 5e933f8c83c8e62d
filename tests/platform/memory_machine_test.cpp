#include "platform/memory/memory_machine.h"

#include <gtest/gtest.h>

#include "platform/memory/metered_files.h"
#include "platform/memory/metered_registry.h"
#include "tests/platform/files_contract.h"
#include "tests/platform/registry_contract.h"
#include "tests/support/registry_support.h"
#include "tests/support/utf8.h"

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

TEST(MemoryRegistry, EnumeratesInTheOrderAskedFor) {
  for (const auto order : {MemoryRegistry::Order::kAsWritten, MemoryRegistry::Order::kSorted}) {
    MemoryRegistry registry(order);
    const auto key = registry.Create(RegistryRoot::kCurrentUser, L"Key");
    std::string values;
    std::string subkeys;
    for (const wchar_t* name : {L"b", L"C", L"a"}) {
      key->Set(name, kTypeBinary, {});
      registry.Create(RegistryRoot::kCurrentUser, std::wstring(L"Key\\") + name);
    }
    EnumeratedValue value;
    std::wstring name;
    for (std::uint32_t i = 0; i < 3; ++i) {
      ASSERT_EQ(key->EnumValue(i, 9, 9, value), kStatusSuccess);
      ASSERT_EQ(key->EnumSubkey(i, 9, name), kStatusSuccess);
      values += Utf8(value.name);
      subkeys += Utf8(name);
    }
    EXPECT_EQ(values, order == MemoryRegistry::Order::kSorted ? "abC" : "bCa");
    EXPECT_EQ(subkeys, values);
  }
}

TEST(MeteredRegistry, CountsAndWritesDownWhatWasDone) {
  MemoryRegistry memory;
  MeteredRegistry registry(memory);
  SetDword(registry, RegistryRoot::kCurrentUser, L"Key", L"Number", 1);
  {
    const auto key = registry.Open(RegistryRoot::kCurrentUser, L"Key");
    key->DeleteValue(L"Absent");
    key->Flush();
  }
  registry.DeleteTree(RegistryRoot::kLocalMachine, L"Key");
  EXPECT_EQ(registry.Count(RegistryCall::kClose), 2);
  EXPECT_EQ(registry.Count(RegistryCall::kFlush), 1);
  EXPECT_EQ(registry.CountWrites(), 3);
  EXPECT_EQ(registry.Meter().FailableCount(), 5);

  std::string log;
  for (const auto& entry : registry.Meter().Log()) {
    log += Utf8(entry.path) + (entry.succeeded ? "\n" : " failed\n");
  }
  EXPECT_EQ(
      log, "HKCU\\Key\nHKCU\\Key\\Number\nHKCU\\Key\nHKCU\\Key\\Absent failed\nHKLM\\Key failed\n");
  EXPECT_EQ(registry.Meter().Paths(RegistryCall::kOpen), std::vector<std::wstring>{L"HKCU\\Key"});
}

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

TEST(MemoryLibraries, GiveTheirTextsAndKnowWhoIsLoaded) {
  MemoryLibraries libraries;
  libraries.Put(L"\\LangRes\\A.dll", {{5, L"five"}, {6, L""}});
  EXPECT_EQ(libraries.Load(L"\\LangRes\\B.dll"), nullptr);
  auto library = libraries.Load(L"\\langres\\a.DLL");
  ASSERT_TRUE(library);
  EXPECT_EQ(library->FindText(5), L"five");
  EXPECT_EQ(library->FindText(6), std::nullopt);
  EXPECT_EQ(library->FindText(7), std::nullopt);
  EXPECT_EQ(libraries.LoadedCount(), 1);
  library.reset();
  EXPECT_EQ(libraries.LoadedCount(), 0);
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
