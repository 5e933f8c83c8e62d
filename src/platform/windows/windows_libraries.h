#pragma once

#include "platform/libraries.h"

namespace tidewell {

// Libraries are opened for their resources alone: none of their code runs, and one built for
// another processor will do. Texts have at most 1,023 characters, a longer one is cut.
class WindowsLibraries final : public ResourceLibraries {
 public:
  std::unique_ptr<ResourceLibrary> Load(const std::wstring& path) override;
};

}  // namespace tidewell
