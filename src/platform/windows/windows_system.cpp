#include "platform/windows/windows_system.h"

#include <windows.h>

namespace tidewell {

namespace {

constexpr WPARAM kTodayScreenChanged = 0xF2;

// A name that begins with an at sign is a face turned for vertical writing.
int CALLBACK TakeFace(const LOGFONTW* font, const TEXTMETRICW*, DWORD, LPARAM faces) {
  if (font->lfFaceName[0] != L'@') {
    reinterpret_cast<std::vector<std::wstring>*>(faces)->emplace_back(font->lfFaceName);
  }
  return 1;
}

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

std::vector<std::wstring> WindowsSystem::FontFaces() {
  std::vector<std::wstring> faces;
  const HDC screen = GetDC(nullptr);
  EnumFontFamiliesW(screen, nullptr, TakeFace, reinterpret_cast<LPARAM>(&faces));
  ReleaseDC(nullptr, screen);
  return faces;
}

}  // namespace tidewell
