// The door to the device itself: its screen, its version, its type faces and its Today screen.
#pragma once

#include <string>
#include <vector>

namespace tidewell {

struct ScreenFacts {
  int width = 240;  // pixels
  int height = 320;
  int dpiX = 96;  // logical dots per inch
  int dpiY = 96;
};

struct SystemVersion {
  unsigned major = 5;
  unsigned minor = 1;
};

// Pocket PC 2002 and 2003 (Windows CE 3 and 4.20) lack what later systems have.
constexpr bool IsBeforeWindowsMobile5(SystemVersion version) {
  return version.major == 3 || (version.major == 4 && version.minor == 20);
}

class System {
 public:
  virtual ~System() = default;
  virtual ScreenFacts Screen() = 0;
  virtual SystemVersion Version() = 0;
  // Asks the Today screen to read anew what is registered with it.
  virtual void RefreshTodayScreen() = 0;
  // The names of the installed faces, in no promised order; one may come twice.
  virtual std::vector<std::wstring> FontFaces() = 0;
};

}  // namespace tidewell
