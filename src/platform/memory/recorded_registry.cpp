#include "platform/memory/recorded_registry.h"

#include <utility>

namespace tidewell {

namespace {

std::wstring FullPath(RegistryRoot root, const std::wstring& path) {
  if (root == RegistryRoot::kCurrentUser) return L"HKCU\\" + path;
  return root == RegistryRoot::kLocalMachine ? L"HKLM\\" + path : path;
}

}  // namespace

class RecordedRegistry::Key final : public RegistryKey {
 public:
  Key(std::unique_ptr<RegistryKey> inner, std::wstring path,
      std::shared_ptr<CallRecorder<RegistryCall>> calls, RegistryStatus failure)
      : inner_(std::move(inner)),
        path_(std::move(path)),
        calls_(std::move(calls)),
        failure_(failure) {}
  ~Key() override { calls_->NoteUnfailing(RegistryCall::kClose); }
  Key(const Key&) = delete;
  Key& operator=(const Key&) = delete;

  RegistryStatus Query(const std::wstring& name, std::span<std::byte> buffer,
                       ValueInfo& info) override {
    if (calls_->Note(RegistryCall::kQuery)) return failure_;
    return inner_->Query(name, buffer, info);
  }
  RegistryStatus Set(const std::wstring& name, std::uint32_t type,
                     std::span<const std::byte> data) override {
    const bool fails = calls_->Note(RegistryCall::kSet);
    return Logged(RegistryCall::kSet, name, fails ? failure_ : inner_->Set(name, type, data));
  }
  RegistryStatus DeleteValue(const std::wstring& name) override {
    const bool fails = calls_->Note(RegistryCall::kDeleteValue);
    return Logged(RegistryCall::kDeleteValue, name, fails ? failure_ : inner_->DeleteValue(name));
  }
  RegistryStatus CountValues(ValueCounts& counts) override {
    if (calls_->Note(RegistryCall::kCountValues)) return failure_;
    return inner_->CountValues(counts);
  }
  RegistryStatus EnumValue(std::uint32_t index, std::uint32_t nameCapacity,
                           std::uint32_t dataCapacity, EnumeratedValue& value) override {
    if (calls_->Note(RegistryCall::kEnumValue)) return failure_;
    return inner_->EnumValue(index, nameCapacity, dataCapacity, value);
  }
  RegistryStatus EnumSubkey(std::uint32_t index, std::uint32_t nameCapacity,
                            std::wstring& name) override {
    if (calls_->Note(RegistryCall::kEnumSubkey)) return failure_;
    return inner_->EnumSubkey(index, nameCapacity, name);
  }
  void Flush() override {
    calls_->NoteUnfailing(RegistryCall::kFlush);
    inner_->Flush();
  }

 private:
  RegistryStatus Logged(RegistryCall call, const std::wstring& name, RegistryStatus status) {
    calls_->Write(call, path_ + L'\\' + name, status == kStatusSuccess);
    return status;
  }

  std::unique_ptr<RegistryKey> inner_;
  std::wstring path_;
  std::shared_ptr<CallRecorder<RegistryCall>> calls_;
  RegistryStatus failure_;
};

RecordedRegistry::RecordedRegistry(Registry& inner)
    : inner_(inner), calls_(std::make_shared<CallRecorder<RegistryCall>>()) {}

std::unique_ptr<RegistryKey> RecordedRegistry::Wrap(RegistryCall call,
                                                    std::unique_ptr<RegistryKey> key,
                                                    std::wstring path) {
  calls_->Write(call, path, key != nullptr);
  if (!key) return nullptr;
  return std::make_unique<Key>(std::move(key), std::move(path), calls_, failure_);
}

std::unique_ptr<RegistryKey> RecordedRegistry::Open(RegistryRoot root, const std::wstring& path) {
  const bool fails = calls_->Note(RegistryCall::kOpen);
  return Wrap(RegistryCall::kOpen, fails ? nullptr : inner_.Open(root, path), FullPath(root, path));
}

std::unique_ptr<RegistryKey> RecordedRegistry::Create(RegistryRoot root, const std::wstring& path) {
  const bool fails = calls_->Note(RegistryCall::kCreate);
  return Wrap(RegistryCall::kCreate, fails ? nullptr : inner_.Create(root, path),
              FullPath(root, path));
}

RegistryStatus RecordedRegistry::DeleteTree(RegistryRoot root, const std::wstring& path) {
  const bool fails = calls_->Note(RegistryCall::kDeleteTree);
  const RegistryStatus status = fails ? failure_ : inner_.DeleteTree(root, path);
  calls_->Write(RegistryCall::kDeleteTree, FullPath(root, path), status == kStatusSuccess);
  return status;
}

int RecordedRegistry::CountWrites() const {
  return Count(RegistryCall::kSet) + Count(RegistryCall::kDeleteValue) +
         Count(RegistryCall::kDeleteTree);
}

}  // namespace tidewell
