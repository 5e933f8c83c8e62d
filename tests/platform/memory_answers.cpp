// The contracts' answers by the fakes in memory.
#include "platform/memory/memory_machine.h"
#include "platform/memory/recorded_files.h"
#include "platform/memory/recorded_registry.h"
#include "tests/platform/contracts.h"

namespace tidewell {
namespace {

struct RecordedMemoryRegistry {
  MemoryRegistry memory;
  RecordedRegistry recorded{memory};
};

class MemoryFilesUnderTest final : public FilesUnderTest {
 public:
  MemoryFilesUnderTest() { files_.Put(L"\\Temp\\Test\\", ""); }
  Files& Door() override { return recorded_; }
  std::wstring Folder() const override { return L"\\Temp\\Test"; }
  std::shared_ptr<void> Lock(const std::wstring& path) override {
    files_.SetLocked(path, true);
    return {&files_, [path](MemoryFiles* files) { files->SetLocked(path, false); }};
  }
  void MakeReadOnly(const std::wstring& path) override { files_.SetReadOnly(path, true); }
  std::wstring FileOnFullDisk() override {
    files_.SetFreeBytes(0);
    return Folder() + L"\\file";
  }

 private:
  MemoryFiles files_;
  RecordedFiles recorded_{files_};
};

}  // namespace

Answers<Registry> RegistryAnswers() {
  using Order = MemoryRegistry::Order;
  return {[] { return std::make_shared<MemoryRegistry>(Order::kSorted); },
          [] {
            const auto both = std::make_shared<RecordedMemoryRegistry>();
            return std::shared_ptr<Registry>(both, &both->recorded);
          }};
}

Answers<FilesUnderTest> FilesAnswers() {
  return {std::make_shared<MemoryFilesUnderTest>};
}

}  // namespace tidewell
