// Passes everything on to another registry and keeps what a bare loop needs to ask the same of the
// system: which keys were opened, which names queried with how much room, what was enumerated.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/registry.h"

namespace tidewell::bench {

enum class Request : std::uint8_t {
  kOpen,
  kCreate,
  kQuery,
  kCountValues,
  kEnumValue,
  kEnumSubkey,
  kFlush,
  kClose
};

struct RecordedRequest {
  Request request = Request::kClose;
  RegistryRoot root = RegistryRoot::kNone;
  std::wstring name;       // the path of a key or the name of a value
  std::uint32_t room = 0;  // bytes of the query's buffer, or the index of the value or subkey
};

class RecordingRegistry final : public Registry {
 public:
  explicit RecordingRegistry(Registry& inner) : inner_(inner) {}

  std::unique_ptr<RegistryKey> Open(RegistryRoot root, const std::wstring& path) override {
    return Wrap({Request::kOpen, root, path, 0}, inner_.Open(root, path));
  }
  std::unique_ptr<RegistryKey> Create(RegistryRoot root, const std::wstring& path) override {
    return Wrap({Request::kCreate, root, path, 0}, inner_.Create(root, path));
  }
  RegistryStatus DeleteTree(RegistryRoot root, const std::wstring& path) override {
    return inner_.DeleteTree(root, path);
  }

  const std::vector<RecordedRequest>& Requests() const { return requests_; }

 private:
  class Key final : public RegistryKey {
   public:
    Key(std::unique_ptr<RegistryKey> inner, std::vector<RecordedRequest>& requests)
        : inner_(std::move(inner)), requests_(requests) {}
    ~Key() override { requests_.push_back(RecordedRequest{}); }

    RegistryStatus Query(const std::wstring& name, std::span<std::byte> buffer,
                         ValueInfo& info) override {
      requests_.push_back(
          {Request::kQuery, RegistryRoot::kNone, name, static_cast<std::uint32_t>(buffer.size())});
      return inner_->Query(name, buffer, info);
    }
    RegistryStatus Set(const std::wstring& name, std::uint32_t type,
                       std::span<const std::byte> data) override {
      return inner_->Set(name, type, data);
    }
    RegistryStatus DeleteValue(const std::wstring& name) override {
      return inner_->DeleteValue(name);
    }
    RegistryStatus CountValues(ValueCounts& counts) override {
      requests_.push_back({Request::kCountValues, RegistryRoot::kNone, L"", 0});
      return inner_->CountValues(counts);
    }
    RegistryStatus EnumValue(std::uint32_t index, std::uint32_t nameCapacity,
                             std::uint32_t dataCapacity, EnumeratedValue& value) override {
      requests_.push_back({Request::kEnumValue, RegistryRoot::kNone, L"", index});
      return inner_->EnumValue(index, nameCapacity, dataCapacity, value);
    }
    RegistryStatus EnumSubkey(std::uint32_t index, std::uint32_t nameCapacity,
                              std::wstring& name) override {
      requests_.push_back({Request::kEnumSubkey, RegistryRoot::kNone, L"", index});
      return inner_->EnumSubkey(index, nameCapacity, name);
    }
    void Flush() override {
      requests_.push_back({Request::kFlush, RegistryRoot::kNone, {}});
      inner_->Flush();
    }

   private:
    std::unique_ptr<RegistryKey> inner_;
    std::vector<RecordedRequest>& requests_;
  };

  // A key that did not open has no requests; its opening stands alone.
  std::unique_ptr<RegistryKey> Wrap(RecordedRequest request, std::unique_ptr<RegistryKey> key) {
    requests_.push_back(std::move(request));
    if (!key) return nullptr;
    return std::make_unique<Key>(std::move(key), requests_);
  }

  Registry& inner_;
  std::vector<RecordedRequest> requests_;
};

}  // namespace tidewell::bench
