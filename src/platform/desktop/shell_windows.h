// The windows that the device shell looks after, and their strips.
#pragma once

#include <windows.h>

#include <memory>
#include <vector>

#include "platform/desktop/menu_bar.h"
#include "platform/desktop/title_strip.h"

namespace tidewell {

// A window with its strips. Lives from the window's first message to its last.
struct ShellWindow {
  HWND window = nullptr;
  WNDPROC procedure = nullptr;  // its own
  std::unique_ptr<TitleStrip> title;
  std::unique_ptr<MenuBar> menuBar;
};

class ShellWindows {
 public:
  static ShellWindows& Instance();

  void InstallHooks();

  // Null for a window that the shell does not look after.
  ShellWindow* Find(HWND window);
  // Begins to look after a window; asking again returns the same.
  ShellWindow& Adopt(HWND window);
  void SetTitleButton(ShellWindow& shellWindow, TitleButton button);
  void ShowTitle(ShellWindow& shellWindow, bool show);
  // Takes the caption's frame away and fills the screen below the title strip; `menuBarBelow`
  // leaves the room of a menu bar.
  void FillScreen(ShellWindow& shellWindow, bool menuBarBelow);
  // Puts the strips where their window is now.
  void PlaceStrips(ShellWindow& shellWindow);

  const RECT& Room() const { return room_; }
  // The screen below the title strip.
  RECT Client() const;
  void Turn();

 private:
  ShellWindows();
  static LRESULT CALLBACK CreationHook(int code, WPARAM wParam, LPARAM lParam);
  static LRESULT CALLBACK KeyHook(int code, WPARAM wParam, LPARAM lParam);
  static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT Handle(ShellWindow& shellWindow, UINT message, WPARAM wParam, LPARAM lParam);
  void Forget(HWND window);
  bool OnKey(WPARAM key);
  void OnScreenChanged();
  void ActivatePopup(HWND window);

  std::vector<std::unique_ptr<ShellWindow>> windows_;  // in the order of their creation
  UINT activatePopupMessage_;
  bool turned_ = false;
  RECT room_;
};

}  // namespace tidewell
