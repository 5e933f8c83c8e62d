// The strip at the bottom of the device's screen with a window's two soft keys.
#pragma once

#include <windows.h>

#include <array>
#include <optional>
#include <string>

struct tagSHMENUBARINFO;

namespace tidewell {

struct SoftKey {
  int command = 0;
  std::wstring text;
  bool enabled = true;
  HMENU popup = nullptr;  // opened by the key instead of sending its command
};

class MenuBar {
 public:
  // The keys are the first two items of the menu that `info` names; without SHCMBF_HMENU, or with a
  // menu that is not there, the bar has none.
  explicit MenuBar(const tagSHMENUBARINFO& info);
  MenuBar(const MenuBar&) = delete;
  MenuBar& operator=(const MenuBar&) = delete;
  ~MenuBar();

  HWND Window() const { return window_; }
  bool Hidden() const { return hidden_; }
  void Place(const RECT& place, bool visible);
  // 0 is the left key, 1 the right one. False when the bar has no such key.
  bool Press(std::size_t index);

 private:
  static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT HandleShellMessage(UINT message, WPARAM wParam, LPARAM lParam);
  void LoadKeys();
  LRESULT SetKeyInfo(int command, const void* info);
  SoftKey* FindKey(int command);
  void OnPaint();
  void DrawKey(HDC dc, const RECT& area, const SoftKey& key, bool pressed) const;
  void OnPointerDown(POINT point);
  void OnPointerUp(POINT point);
  std::optional<std::size_t> KeyAt(POINT point) const;
  RECT KeyArea(std::size_t index) const;
  void OpenPopup(std::size_t index);
  void Refresh();

  HWND parent_;
  HWND window_ = nullptr;
  HMENU menu_ = nullptr;
  std::array<std::optional<SoftKey>, 2> keys_;
  std::optional<std::size_t> pressed_;
  bool hidden_ = false;
};

}  // namespace tidewell
