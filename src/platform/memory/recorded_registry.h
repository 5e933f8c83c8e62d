// Wraps any registry: counts its calls, keeps a log of them and can make them fail.
#pragma once

#include <memory>

#include "platform/memory/call_recorder.h"
#include "platform/registry.h"

namespace tidewell {

enum class RegistryCall : std::uint8_t {
  kOpen,
  kCreate,
  kDeleteTree,
  kQuery,
  kSet,
  kDeleteValue,
  kCountValues,
  kEnumValue,
  kEnumSubkey,
  kFlush,  // flush and close cannot fail
  kClose,
  kCount
};

// The log has every call but queries, enumerations, flushes and closes. Its paths begin with
// "HKCU\" or "HKLM\" and end, for values, with the value's name.
class RecordedRegistry final : public Registry {
 public:
  explicit RecordedRegistry(Registry& inner);
  std::unique_ptr<RegistryKey> Open(RegistryRoot root, const std::wstring& path) override;
  std::unique_ptr<RegistryKey> Create(RegistryRoot root, const std::wstring& path) override;
  RegistryStatus DeleteTree(RegistryRoot root, const std::wstring& path) override;

  CallRecorder<RegistryCall>& Calls() { return *calls_; }
  int Count(RegistryCall call) const { return calls_->Count(call); }
  // Values set, values deleted and trees deleted.
  int CountWrites() const;
  // What calls that are made to fail return, where they return a status.
  void SetFailure(RegistryStatus status) { failure_ = status; }

 private:
  class Key;

  std::unique_ptr<RegistryKey> Wrap(RegistryCall call, std::unique_ptr<RegistryKey> key,
                                    std::wstring path);

  Registry& inner_;
  std::shared_ptr<CallRecorder<RegistryCall>> calls_;  // shared with the open keys
  RegistryStatus failure_ = kStatusAccessDenied;
};

}  // namespace tidewell
