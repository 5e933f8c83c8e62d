// Resource libraries that a test lays down, text by text.
#pragma once

#include <map>
#include <memory>

#include "platform/libraries.h"

namespace tidewell {

class MemoryLibraries final : public ResourceLibraries {
 public:
  using Texts = std::map<int, std::wstring>;

  void Put(const std::wstring& path, Texts texts);
  std::unique_ptr<ResourceLibrary> Load(const std::wstring& path) override;
  // How many loaded libraries have not been freed yet.
  long LoadedCount() const { return loaded_.use_count() - 1; }

 private:
  class Library;

  std::map<std::wstring, std::shared_ptr<const Texts>> libraries_;  // by folded path
  std::shared_ptr<int> loaded_ = std::make_shared<int>();           // shared by every library
};

}  // namespace tidewell
