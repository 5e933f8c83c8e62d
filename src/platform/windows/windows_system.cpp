#include "platform/windows/windows_system.h"

#include <windows.h>

namespace tidewell {

namespace {

constexpr WPARAM kTodayScreenChanged = 0xF2;

}  // namespace

ScreenFacts WindowsSystem::Screen() {
  const HDC screen = GetDC(nullptr);
  const ScreenFacts facts{GetDeviceCaps(screen, HORZRES), GetDeviceCaps(screen, VERTRES),
                          GetDeviceCaps(screen, LOGPIXELSX), GetDeviceCaps(screen, LOGPIXELSY)};
  ReleaseDC(nullptr, screen);
  return facts;
}

SystemVersion WindowsSystem::Version() {
  OSVERSIONINFOW info{};
  info.dwOSVersionInfoSize = sizeof info;
  if (!GetVersionExW(&info)) return {};
  return {info.dwMajorVersion, info.dwMinorVersion};
}

void WindowsSystem::RefreshTodayScreen() {
  SendMessageW(GetDesktopWindow(), WM_SETTINGCHANGE, kTodayScreenChanged, 0);
}

}  // namespace tidewell
