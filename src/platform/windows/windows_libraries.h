#pragma once

#include "platform/files.h"
#include "platform/libraries.h"

namespace tidewell {

// Libraries are opened for their resources alone: none of their code runs, and one built for
// another processor will do. A damaged one counts as absent; `files` outlives this.
class WindowsLibraries final : public ResourceLibraries {
 public:
  explicit WindowsLibraries(Files& files) : files_(files) {}
  std::unique_ptr<ResourceLibrary> Load(const std::wstring& path) override;

 private:
  Files& files_;
};

}  // namespace tidewell
