// A device whose screen, version and faces a test lays down.
#pragma once

#include "platform/system.h"

namespace tidewell {

class FixedSystem final : public System {
 public:
  ScreenFacts screen;
  SystemVersion version;
  int refreshes = 0;  // asked for
  std::vector<std::wstring> fontFaces = {L"Tahoma", L"Courier New", L"Arial"};

  ScreenFacts Screen() override { return screen; }
  SystemVersion Version() override { return version; }
  void RefreshTodayScreen() override { ++refreshes; }
  std::vector<std::wstring> FontFaces() override { return fontFaces; }
};

}  // namespace tidewell
