#pragma once

#include "platform/system.h"

namespace tidewell {

class WindowsSystem final : public System {
 public:
  ScreenFacts Screen() override;
  SystemVersion Version() override;
  void RefreshTodayScreen() override;
  std::vector<std::wstring> FontFaces() override;
};

}  // namespace tidewell
