#include "driven_program.h"

#include <utility>

namespace tidewell::device {

namespace {

std::wstring ProgramPath() {
  return std::wstring(kInstallFolder) + L"\\TidewellSettings.exe";
}

LPARAM PointParameter(POINT point) {
  return MAKELPARAM(point.x, point.y);
}

int DotsPerInch() {
  const HDC screen = GetDC(nullptr);
  const int dots = GetDeviceCaps(screen, LOGPIXELSY);
  ReleaseDC(nullptr, screen);
  return dots;
}

// The keyboard's own key, down or up.
void MoveKey(WPARAM key, DWORD flags) {
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = static_cast<WORD>(key);
  input.ki.dwFlags = flags;
  SendInput(1, &input, sizeof input);
}

void PressAndRelease(WPARAM key) {
  MoveKey(key, 0);
  MoveKey(key, KEYEVENTF_KEYUP);
}

}  // namespace

bool WaitUntil(const std::function<bool()>& condition, DWORD milliseconds) {
  const ULONGLONG end = GetTickCount64() + milliseconds;
  while (!condition()) {
    if (GetTickCount64() > end) return false;
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
    MsgWaitForMultipleObjects(0, nullptr, FALSE, 5, QS_ALLINPUT);
  }
  return true;
}

Process::Process(const std::wstring& path, const std::wstring& commandLine, HANDLE output) {
  std::wstring line = L"\"" + path + L"\"";
  if (!commandLine.empty()) line += L" " + commandLine;
  STARTUPINFOW start{};
  start.cb = sizeof start;
  start.hStdOutput = output;
  if (output) start.dwFlags = STARTF_USESTDHANDLES;
  PROCESS_INFORMATION made{};
  const auto make = [&] {
    return CreateProcessW(path.c_str(), line.data(), nullptr, nullptr, output != nullptr, 0,
                          nullptr, L"C:\\", &start, &made);
  };
  // Of some thousand processes Wine fails to make one, for no reason that lasts.
  if (!make() && !(GetLastError() == ERROR_INTERNAL_ERROR && make())) return;
  CloseHandle(made.hThread);
  handle_ = made.hProcess;
  id_ = made.dwProcessId;
}

std::optional<DWORD> Process::WaitForExit(DWORD milliseconds) const {
  if (!handle_) return std::nullopt;  // it never started
  DWORD code = 0;
  const bool ended =
      WaitUntil([this] { return WaitForSingleObject(handle_, 0) == WAIT_OBJECT_0; }, milliseconds);
  if (!ended || !GetExitCodeProcess(handle_, &code)) return std::nullopt;
  return code;
}

void Process::Kill() {
  if (!handle_) return;
  TerminateProcess(handle_, 1);
  WaitForSingleObject(handle_, kPatience);
  CloseHandle(std::exchange(handle_, nullptr));
}

DrivenProgram::DrivenProgram(const std::wstring& commandLine)
    : process_(ProgramPath(), commandLine) {}

HWND DrivenProgram::WaitForMainWindow() {
  const auto find = [this] {
    const HWND window = FindWindowW(kMainClass, nullptr);
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    main_ = owner == process_.Id() ? window : nullptr;
    return main_ && IsReady(main_);
  };
  return WaitUntil(find) ? main_ : nullptr;
}

HWND DrivenProgram::WaitForPopup() {
  const auto shown = [this] { return Front() != main_ && IsReady(Front()); };
  return WaitUntil(shown) ? Front() : nullptr;
}

bool DrivenProgram::WaitForPopupToGo() {
  return WaitUntil([this] { return Front() == main_; });
}

void DrivenProgram::Press(WPARAM key, int times) {
  for (; times > 0; --times) {
    PressAndRelease(key);
    Settle();
  }
}

void DrivenProgram::PressOk() {
  MoveKey(VK_CONTROL, 0);
  PressAndRelease(VK_RETURN);
  MoveKey(VK_CONTROL, KEYEVENTF_KEYUP);
  Settle();
}

void DrivenProgram::Tap(POINT point) {
  PostMessageW(Front(), WM_LBUTTONDOWN, MK_LBUTTON, PointParameter(point));
  PostMessageW(Front(), WM_LBUTTONUP, 0, PointParameter(point));
  Settle();
}

void DrivenProgram::Drag(POINT from, POINT to) {
  constexpr int kSteps = 10;
  PostMessageW(Front(), WM_LBUTTONDOWN, MK_LBUTTON, PointParameter(from));
  for (int step = 1; step <= kSteps; ++step) {
    const POINT point{from.x + (to.x - from.x) * step / kSteps,
                      from.y + (to.y - from.y) * step / kSteps};
    PostMessageW(Front(), WM_MOUSEMOVE, MK_LBUTTON, PointParameter(point));
    Settle();
  }
}

void DrivenProgram::TapLeftButton() {
  Tap(BarButton(false));
}

void DrivenProgram::TapRightButton() {
  Tap(BarButton(true));
}

void DrivenProgram::TapOk() {
  PostMessageW(Front(), WM_COMMAND, IDOK, 0);
  Settle();
}

// A window is painted only when no posted message waits, so a new request to paint that has been
// granted tells that all before it were handled.
void DrivenProgram::Settle() {
  const HWND front = Front();
  InvalidateRect(front, nullptr, FALSE);
  WaitUntil([front] { return !IsWindow(front) || IsReady(front); });
}

HWND DrivenProgram::Front() const {
  return GetLastActivePopup(main_);
}

POINT DrivenProgram::BarButton(bool right) const {
  const int half = 20 * DotsPerInch() / 96;
  RECT client;
  GetClientRect(Front(), &client);
  return {right ? client.right - half : half, client.bottom - half};
}

bool IsReady(HWND window) {
  return IsWindowVisible(window) && SendMessageTimeoutW(window, WM_NULL, 0, 0, 0, 1000, nullptr) &&
         !GetUpdateRect(window, nullptr, FALSE);
}

}  // namespace tidewell::device
