#include "tests/support/window_support.h"

#include <algorithm>
#include <utility>

#include "win32/window_owner.h"

namespace tidewell {

namespace {

constexpr wchar_t kTestClass[] = L"TidewellTestWindow";

// What the one waiting InModalLoop is to do.
std::function<void()>& ModalAction() {
  static std::function<void()> action;
  return action;
}

}  // namespace

bool PumpMessages() {
  bool ended = false;
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    ended |= message.message == WM_QUIT;
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  return ended;
}

HWND FindOwnWindow(const wchar_t* className, HWND owner) {
  HWND window = nullptr;
  while ((window = FindWindowExW(nullptr, window, className, nullptr)) != nullptr) {
    const bool isOurs = GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId();
    if (isOurs && (!owner || GetWindow(window, GW_OWNER) == owner)) break;
  }
  return window;
}

void PostTap(HWND window, POINT point, UINT downMessage) {
  PostMessageW(window, downMessage, MK_LBUTTON, MAKELPARAM(point.x, point.y));
  PostMessageW(window, WM_LBUTTONUP, 0, MAKELPARAM(point.x, point.y));
}

void Tap(HWND window, POINT point) {
  PostTap(window, point);
  PumpMessages();
}

void PressKey(HWND window, WPARAM key) {
  PostMessageW(window, WM_KEYDOWN, key, 1);
  PumpMessages();
}

RECT WindowRect(HWND window) {
  RECT rect{};
  GetWindowRect(window, &rect);
  return rect;
}

std::wstring CaptionOf(HWND window) {
  wchar_t caption[128] = {};
  GetWindowTextW(window, caption, ARRAYSIZE(caption));
  return caption;
}

Screenshot::Screenshot(HWND window)
    : width_(ClientArea(window).right),
      height_(ClientArea(window).bottom),
      copy_(WindowDc(window).Dc(), width_, height_) {
  BitBlt(copy_.Dc(), 0, 0, width_, height_, WindowDc(window).Dc(), 0, 0, SRCCOPY);
}

int Screenshot::FirstDrawnRow(int top) const {
  for (int y = top; y < height_; ++y) {
    for (int x = 1; x < width_; ++x) {
      if (At(x, y) != At(0, y)) return y;
    }
  }
  return height_;
}

// Wine's GetGuiResources tells nothing, but its table of handles takes the lower halves alone.
int CountDrawingObjects() {
  if (const DWORD count = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS)) {
    return static_cast<int>(count);
  }
  int count = 0;
  for (UINT_PTR handle = 1; handle <= 0xFFFF; ++handle) {
    count += GetObjectType(reinterpret_cast<HGDIOBJ>(handle)) != 0;
  }
  return count;
}

TestWindow::TestWindow(DWORD style, DWORD extendedStyle, const RECT& place, HWND owner) {
  WNDCLASSW windowClass{};
  windowClass.lpfnWndProc = WindowProc;
  windowClass.hInstance = GetModuleHandleW(nullptr);
  windowClass.lpszClassName = kTestClass;
  RegisterClassW(&windowClass);
  window_ = CreateWindowExW(extendedStyle, kTestClass, L"Test", style, place.left, place.top,
                            place.right - place.left, place.bottom - place.top, owner, nullptr,
                            windowClass.hInstance, this);
}

TestWindow::~TestWindow() {
  if (IsWindow(window_)) DestroyWindow(window_);
}

int TestWindow::Count(UINT id) const {
  return static_cast<int>(
      std::count_if(messages.begin(), messages.end(), [&](auto& each) { return each.id == id; }));
}

std::vector<int> TestWindow::TakeCommands() {
  std::vector<int> commands;
  for (const Message& each : std::exchange(messages, {})) {
    if (each.id == WM_COMMAND) commands.push_back(LOWORD(each.wParam));
  }
  return commands;
}

LRESULT CALLBACK TestWindow::WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* self = OwnerOf(&TestWindow::window_, window, message, lParam);
  if (self) self->messages.push_back({message, wParam, lParam});
  return DefWindowProcW(window, message, wParam, lParam);
}

InModalLoop::InModalLoop(std::function<void()> action)
    : timer_(SetTimer(nullptr, 0, USER_TIMER_MINIMUM, OnTimer)) {
  ModalAction() = std::move(action);
}

InModalLoop::~InModalLoop() {
  KillTimer(nullptr, timer_);
}

void CALLBACK InModalLoop::OnTimer(HWND, UINT, UINT_PTR id, DWORD) {
  KillTimer(nullptr, id);
  ModalAction()();
}

}  // namespace tidewell
