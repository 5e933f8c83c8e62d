// A registry below a key of its own: what a test reads and writes stays out of the user's settings
// and off the machine's.
#pragma once

#include <string>
#include <utility>

#include "platform/registry.h"

namespace tidewell {

class RebasedRegistry final : public Registry {
 public:
  // Both roots become subkeys of `base`, which lies below the current user's root.
  RebasedRegistry(Registry& real, std::wstring base) : real_(real), base_(std::move(base)) {
    Empty();
  }
  ~RebasedRegistry() override { Empty(); }

  std::unique_ptr<RegistryKey> Open(RegistryRoot root, const std::wstring& path) override {
    return real_.Open(BaseRoot(root), PathOf(root, path));
  }
  std::unique_ptr<RegistryKey> Create(RegistryRoot root, const std::wstring& path) override {
    return real_.Create(BaseRoot(root), PathOf(root, path));
  }
  RegistryStatus DeleteTree(RegistryRoot root, const std::wstring& path) override {
    return real_.DeleteTree(BaseRoot(root), PathOf(root, path));
  }

 private:
  static RegistryRoot BaseRoot(RegistryRoot root) {
    return root == RegistryRoot::kNone ? root : RegistryRoot::kCurrentUser;
  }
  std::wstring PathOf(RegistryRoot root, const std::wstring& path) const {
    const wchar_t* name = root == RegistryRoot::kLocalMachine ? L"\\Machine\\" : L"\\User\\";
    return base_ + name + path;
  }
  void Empty() { real_.DeleteTree(RegistryRoot::kCurrentUser, base_); }

  Registry& real_;
  std::wstring base_;
};

}  // namespace tidewell
