#include "platform/desktop/shell_windows.h"

#include <aygshell.h>

#include <algorithm>
#include <utility>

#include "platform/desktop/device_room.h"
#include "platform/desktop/device_shell.h"
#include "platform/desktop/drop_list.h"
#include "platform/desktop/shell_look.h"
#include "platform/desktop/tab_row.h"

namespace tidewell {

namespace {

constexpr LPARAM kKeyIsUp = LPARAM{1} << 31;

// Of the main screen. Not from SystemParametersInfo, which may still know a screen's former size.
RECT WorkArea() {
  MONITORINFO screen{};
  screen.cbSize = sizeof screen;
  GetMonitorInfoW(MonitorFromPoint({0, 0}, MONITOR_DEFAULTTOPRIMARY), &screen);
  return screen.rcWork;
}

// False where the system knows no screen of the turned size.
bool TurnRealScreen() {
  DEVMODEW mode{};
  mode.dmSize = sizeof mode;
  mode.dmFields = DM_PELSWIDTH | DM_PELSHEIGHT;
  mode.dmPelsWidth = static_cast<DWORD>(GetSystemMetrics(SM_CYSCREEN));
  mode.dmPelsHeight = static_cast<DWORD>(GetSystemMetrics(SM_CXSCREEN));
  return ChangeDisplaySettingsW(&mode, 0) == DISP_CHANGE_SUCCESSFUL;
}

int StripHeight() {
  return ShellScale().ScaleY(kStripHeight);
}

void RemoveFrame(HWND window) {
  const LONG_PTR style = GetWindowLongPtrW(window, GWL_STYLE);
  SetWindowLongPtrW(window, GWL_STYLE, style & ~LONG_PTR{WS_CAPTION | WS_THICKFRAME});
}

void MoveTo(HWND window, const RECT& place, UINT flags) {
  SetWindowPos(window, nullptr, place.left, place.top, place.right - place.left,
               place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE | flags);
}

// The topmost window above `window` that belongs to it and can be used; null for none.
HWND TopPopupOf(HWND window) {
  HWND above = GetTopWindow(nullptr);
  while (above && above != window) {
    const bool usable = IsWindowVisible(above) && IsWindowEnabled(above) &&
                        !(GetWindowLongPtrW(above, GWL_EXSTYLE) & WS_EX_NOACTIVATE);
    if (usable && GetAncestor(above, GA_ROOTOWNER) == window) return above;
    above = GetWindow(above, GW_HWNDNEXT);
  }
  return nullptr;
}

bool HasShellCaption(const CREATESTRUCTW& created) {
  return !(created.style & WS_CHILD) &&
         (created.dwExStyle & static_cast<DWORD>(WS_EX_CAPTIONOKBTN));
}

// Pop-ups say where they want to be; other windows of a device take the default position.
bool HasDefaultPosition(const CREATESTRUCTW& created) {
  return !(created.style & WS_POPUP);
}

}  // namespace

void InstallDeviceShell() {
  ShellWindows::Instance().InstallHooks();
}

void TurnScreen() {
  ShellWindows::Instance().Turn();
}

ShellWindows& ShellWindows::Instance() {
  static ShellWindows instance;
  return instance;
}

ShellWindows::ShellWindows()
    : activatePopupMessage_(RegisterWindowMessageW(L"DeviceShellActivatePopup")),
      room_(DeviceRoom(WorkArea(), false)) {}

void ShellWindows::InstallHooks() {
  SetWindowsHookExW(WH_CBT, CreationHook, nullptr, GetCurrentThreadId());
  SetWindowsHookExW(WH_KEYBOARD, KeyHook, nullptr, GetCurrentThreadId());
}

LRESULT CALLBACK ShellWindows::CreationHook(int code, WPARAM wParam, LPARAM lParam) {
  if (code == HCBT_CREATEWND) {
    const CREATESTRUCTW& created = *reinterpret_cast<CBT_CREATEWNDW*>(lParam)->lpcs;
    const auto window = reinterpret_cast<HWND>(wParam);
    if (HasShellCaption(created)) Instance().Adopt(window);
    WatchForDropList(window, created);
    if (!TabRow::Attend(window, created)) return 1;  // which prevents it
  }
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

LRESULT CALLBACK ShellWindows::KeyHook(int code, WPARAM wParam, LPARAM lParam) {
  if (code == HC_ACTION && !(lParam & kKeyIsUp) && Instance().OnKey(wParam)) return 1;
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

bool ShellWindows::OnKey(WPARAM key) {
  const bool control = GetKeyState(VK_CONTROL) < 0;
  if (control && key == VK_F12) {
    Turn();
    return true;
  }
  const ShellWindow* active = Find(GetActiveWindow());
  if (!active) return false;
  if (control && key == VK_RETURN && active->title) {
    active->title->PressButton();
    return true;
  }
  if ((key == VK_F1 || key == VK_F2) && active->menuBar) {
    return active->menuBar->Press(key - VK_F1);
  }
  return false;
}

ShellWindow* ShellWindows::Find(HWND window) {
  const auto found = std::find_if(windows_.begin(), windows_.end(),
                                  [&](const auto& each) { return each->window == window; });
  return found == windows_.end() ? nullptr : found->get();
}

ShellWindow& ShellWindows::Adopt(HWND window) {
  if (ShellWindow* known = Find(window)) return *known;
  windows_.push_back(std::make_unique<ShellWindow>());
  ShellWindow& added = *windows_.back();
  added.window = window;
  // Not through SetWindowSubclass, for which the library of common controls would be loaded.
  added.procedure = reinterpret_cast<WNDPROC>(
      SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(WindowProc)));
  return added;
}

void ShellWindows::Forget(HWND window) {
  std::erase_if(windows_, [&](const auto& each) { return each->window == window; });
}

LRESULT CALLBACK ShellWindows::WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  ShellWindow* shellWindow = Instance().Find(window);
  if (!shellWindow) return DefWindowProcW(window, message, wParam, lParam);
  if (message != WM_NCDESTROY) return Instance().Handle(*shellWindow, message, wParam, lParam);
  const WNDPROC procedure = shellWindow->procedure;
  Instance().Forget(window);
  return CallWindowProcW(procedure, window, message, wParam, lParam);
}

LRESULT ShellWindows::Handle(ShellWindow& shellWindow, UINT message, WPARAM wParam, LPARAM lParam) {
  const HWND window = shellWindow.window;
  const WNDPROC procedure = shellWindow.procedure;
  if (message == activatePopupMessage_) {
    ActivatePopup(window);
    return 0;
  }
  switch (message) {
    case WM_NCCREATE:
      // A desktop forces a caption's frame upon windows that are no pop-ups.
      RemoveFrame(window);
      if (HasDefaultPosition(*reinterpret_cast<CREATESTRUCTW*>(lParam)))
        MoveTo(window, Client(), 0);
      break;
    case WM_CREATE: {
      const LRESULT result = CallWindowProcW(procedure, window, message, wParam, lParam);
      if (result != -1) SetTitleButton(shellWindow, TitleButton::kOk);
      return result;
    }
    case WM_WINDOWPOSCHANGED: {
      const LRESULT result = CallWindowProcW(procedure, window, message, wParam, lParam);
      if (Find(window)) PlaceStrips(shellWindow);
      return result;
    }
    case WM_SETTEXT: {
      const LRESULT result = CallWindowProcW(procedure, window, message, wParam, lParam);
      if (shellWindow.title) shellWindow.title->Refresh();
      return result;
    }
    case WM_ACTIVATE:
      if (LOWORD(wParam) != WA_INACTIVE) PostMessageW(window, activatePopupMessage_, 0, 0);
      break;
    case WM_DISPLAYCHANGE:
      OnScreenChanged();
      break;
    case WM_SETTINGCHANGE:
      if (wParam == SPI_SETWORKAREA) OnScreenChanged();
      break;
  }
  return CallWindowProcW(procedure, window, message, wParam, lParam);
}

void ShellWindows::SetTitleButton(ShellWindow& shellWindow, TitleButton button) {
  if (shellWindow.title) {
    shellWindow.title->SetButton(button);
    return;
  }
  shellWindow.title = std::make_unique<TitleStrip>(shellWindow.window, button);
  PlaceStrips(shellWindow);
}

void ShellWindows::ShowTitle(ShellWindow& shellWindow, bool show) {
  if (shellWindow.title) ShowWindow(shellWindow.title->Window(), show ? SW_SHOWNA : SW_HIDE);
}

void ShellWindows::FillScreen(ShellWindow& shellWindow, bool menuBarBelow) {
  RemoveFrame(shellWindow.window);
  RECT place = Client();
  if (menuBarBelow) place.bottom -= StripHeight();
  MoveTo(shellWindow.window, place, SWP_FRAMECHANGED);
}

void ShellWindows::PlaceStrips(ShellWindow& shellWindow) {
  const bool visible = IsWindowVisible(shellWindow.window) && !IsIconic(shellWindow.window);
  if (shellWindow.title) {
    RECT place;
    GetWindowRect(shellWindow.window, &place);
    place.top = std::max(place.top - StripHeight(), room_.top);
    place.bottom = place.top + StripHeight();
    shellWindow.title->Place(place, visible);
  }
  if (shellWindow.menuBar) {
    RECT place = room_;
    place.top = place.bottom - StripHeight();
    shellWindow.menuBar->Place(place, visible);
  }
}

RECT ShellWindows::Client() const {
  RECT client = room_;
  client.top += StripHeight();
  return client;
}

void ShellWindows::Turn() {
  const bool turnScreen = !turned_ && IsDeviceScreen(WorkArea());
  if (!turnScreen || !TurnRealScreen()) turned_ = !turned_;
  OnScreenChanged();
}

void ShellWindows::OnScreenChanged() {
  const RECT room = DeviceRoom(WorkArea(), turned_);
  if (EqualRect(&room, &room_)) return;
  const RECT before = std::exchange(room_, room);
  std::vector<HWND> windows;
  for (const auto& each : windows_) windows.push_back(each->window);
  for (const HWND window : windows) {
    RECT place;
    GetWindowRect(window, &place);
    MoveTo(window, PlaceInNewRoom(place, before, room), 0);
    SendMessageW(window, WM_SETTINGCHANGE, SETTINGCHANGE_RESET, 0);
    if (ShellWindow* placed = Find(window)) PlaceStrips(*placed);
  }
}

// A device brings a window's pop-ups forward with it; a desktop would leave the window active
// below them.
void ShellWindows::ActivatePopup(HWND window) {
  if (GetActiveWindow() != window) return;
  if (const HWND popup = TopPopupOf(window)) SetActiveWindow(popup);
}

}  // namespace tidewell
