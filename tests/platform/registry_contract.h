// What every registry must do, whoever answers: one suite, run on the twins and on the system's.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <ostream>
#include <string>

#include "platform/registry.h"

namespace tidewell {

struct RegistryAnswer {
  const char* name;
  std::function<std::shared_ptr<Registry>()> make;
};

inline void PrintTo(const RegistryAnswer& answer, std::ostream* out) {
  *out << answer.name;
}

inline std::string NameOfRegistryAnswer(const testing::TestParamInfo<RegistryAnswer>& info) {
  return info.param.name;
}

// Each test has a key of its own, absent before it and removed after it.
class RegistryContract : public testing::TestWithParam<RegistryAnswer> {
 protected:
  static constexpr RegistryRoot kRoot = RegistryRoot::kCurrentUser;

  void SetUp() override {
    const std::string test = testing::UnitTest::GetInstance()->current_test_info()->name();
    path_ = L"Software\\TidewellContract." + std::wstring(test.begin(), test.end());
    registry_ = GetParam().make();
    registry_->DeleteTree(kRoot, path_);
  }
  void TearDown() override { registry_->DeleteTree(kRoot, path_); }

  std::wstring Below(const std::wstring& name) const { return path_ + L'\\' + name; }
  std::unique_ptr<RegistryKey> Create() { return registry_->Create(kRoot, path_); }

  std::shared_ptr<Registry> registry_;
  std::wstring path_;
};

}  // namespace tidewell
