// The installed program, started, driven and watched from another process on the same desktop.
#pragma once

#include <windows.h>

#include <functional>
#include <optional>
#include <string>

namespace tidewell::device {

inline constexpr wchar_t kInstallFolder[] = L"C:\\Program Files\\Velmont\\Tidewell";
inline constexpr wchar_t kMainClass[] = L"TW_OPTIONS";
inline constexpr DWORD kPatience = 20'000;  // milliseconds until a wait has failed

// Asks again and again until the answer is yes; false when it never was.
bool WaitUntil(const std::function<bool()>& condition, DWORD milliseconds = kPatience);

// A process of our own; one that still runs is ended with its owner.
class Process {
 public:
  // `commandLine` stands behind the program's quoted path, after one blank, exactly as given. What
  // it prints goes to `output`, where that is not null.
  Process(const std::wstring& path, const std::wstring& commandLine, HANDLE output = nullptr);
  Process(const Process&) = delete;
  Process& operator=(const Process&) = delete;
  ~Process() { Kill(); }

  HANDLE Handle() const { return handle_; }
  DWORD Id() const { return id_; }
  // Nothing while it runs on after that time.
  std::optional<DWORD> WaitForExit(DWORD milliseconds = kPatience) const;
  void Kill();

 private:
  HANDLE handle_ = nullptr;
  DWORD id_ = 0;
};

class DrivenProgram {
 public:
  explicit DrivenProgram(const std::wstring& commandLine = L"");

  Process& GetProcess() { return process_; }
  // Whether the program ended as it should.
  bool Ended() const { return process_.WaitForExit() == 0u; }
  // The main window once it is visible and painted; null when that never comes.
  HWND WaitForMainWindow();
  // A message box or a dialog over the main window, visible and painted.
  HWND WaitForPopup();
  bool WaitForPopupToGo();
  HWND Main() const { return main_; }

  // Input goes to whatever window of the program is in front; keys are the keyboard's own.
  void Press(WPARAM key, int times = 1);
  // The OK key of a device.
  void PressOk();
  void Tap(POINT point);
  // Leaves the finger on the screen.
  void Drag(POINT from, POINT to);
  // The bar's buttons at its two ends.
  void TapLeftButton();
  void TapRightButton();
  // The OK button of the title strip.
  void TapOk();
  // Waits until the window in front has handled what was posted to it.
  void Settle();

 private:
  HWND Front() const;
  POINT BarButton(bool right) const;

  Process process_;
  HWND main_ = nullptr;
};

// Visible, answers, and has nothing left to paint.
bool IsReady(HWND window);

}  // namespace tidewell::device
