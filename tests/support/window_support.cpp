#include "tests/support/window_support.h"

#include <algorithm>
#include <utility>

#include "platform/gdi.h"

namespace tidewell {

namespace {

constexpr wchar_t kTestClass[] = L"TidewellTestWindow";

// What the one waiting InModalLoop is to do.
std::function<void()>& ModalAction() {
  static std::function<void()> action;
  return action;
}

struct Search {
  const wchar_t* className;
  HWND owner;  // null: whatever the owner
  HWND found;
};

BOOL CALLBACK Compare(HWND window, LPARAM data) {
  auto& search = *reinterpret_cast<Search*>(data);
  wchar_t name[64];
  GetClassNameW(window, name, ARRAYSIZE(name));
  if (std::wstring(name) != search.className) return TRUE;
  if (search.owner && GetWindow(window, GW_OWNER) != search.owner) return TRUE;
  search.found = window;
  return FALSE;
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

HWND FindOwnWindow(const wchar_t* className) {
  return FindStrip(nullptr, className);
}

HWND FindStrip(HWND owner, const wchar_t* className) {
  Search search{className, owner, nullptr};
  EnumThreadWindows(GetCurrentThreadId(), Compare, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

void Tap(HWND window, POINT point) {
  const LPARAM where = MAKELPARAM(point.x, point.y);
  PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, where);
  PostMessageW(window, WM_LBUTTONUP, 0, where);
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

RECT ClientRect(HWND window) {
  RECT rect{};
  GetClientRect(window, &rect);
  return rect;
}

std::wstring CaptionOf(HWND window) {
  wchar_t caption[128] = {};
  GetWindowTextW(window, caption, ARRAYSIZE(caption));
  return caption;
}

Screenshot::Screenshot(HWND window)
    : width_(ClientRect(window).right), height_(ClientRect(window).bottom) {
  const WindowDc screen(window);
  MemoryBitmap copy(screen.Dc(), width_, height_);
  BitBlt(copy.Dc(), 0, 0, width_, height_, screen.Dc(), 0, 0, SRCCOPY);
  pixels_.resize(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_));
  for (int y = 0; y < height_; ++y) {
    for (int x = 0; x < width_; ++x) {
      pixels_[static_cast<std::size_t>(y * width_ + x)] = GetPixel(copy.Dc(), x, y);
    }
  }
}

COLORREF Screenshot::At(int x, int y) const {
  return pixels_[static_cast<std::size_t>(y * width_ + x)];
}

int Screenshot::FirstDrawnRow(int top) const {
  for (int y = top; y < height_; ++y) {
    for (int x = 1; x < width_; ++x) {
      if (At(x, y) != At(0, y)) return y;
    }
  }
  return height_;
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
  if (message == WM_NCCREATE) {
    SetWindowLongPtrW(
        window, GWLP_USERDATA,
        reinterpret_cast<LONG_PTR>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams));
  }
  auto* self = reinterpret_cast<TestWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (self) {
    self->messages.push_back({message, wParam, lParam});
    self->onMessage(self->messages.back());
  }
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
