// Loaded into the process of the desktop's window: tells every top-level window what a Today screen
// in its place would have been asked for.
#include <windows.h>

extern "C" __declspec(dllexport) LRESULT CALLBACK
    HearTodayScreen(int code, WPARAM wParam, LPARAM lParam) {
  const CWPSTRUCT& sent = *reinterpret_cast<const CWPSTRUCT*>(lParam);
  if (code == HC_ACTION && sent.message == WM_SETTINGCHANGE && sent.hwnd == GetDesktopWindow()) {
    PostMessageW(HWND_BROADCAST, RegisterWindowMessageW(L"TidewellTodayScreen"), sent.wParam,
                 sent.lParam);
  }
  return CallNextHookEx(nullptr, code, wParam, lParam);
}
