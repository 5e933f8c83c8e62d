// Makes a desktop treat this thread's windows as a device's shell would: windows with an OK button
// in the caption get a title strip and fill the device's screen, menu bars lie along its bottom.
//
// Keys of the desktop that stand for a device's own: Ctrl+F12 turns the screen, F1 and F2 are the
// soft keys under a menu bar, Ctrl+Enter is the OK key.
#pragma once

#include <windows.h>

#include <string>

namespace tidewell {

// Call once, before the thread's first window.
void InstallDeviceShell();

// What stands on the keys of message boxes.
struct MessageBoxWords {
  std::wstring ok;
  std::wstring cancel;
  std::wstring yes;
  std::wstring no;
};

// For every message box from now on; English until it is called, and where a word is empty.
void SetMessageBoxWords(const MessageBoxWords& words);

// Turns the screen between portrait and landscape; every window hears what a device tells it. On a
// desktop that is larger than a device's screen only the program's own room turns.
void TurnScreen();

}  // namespace tidewell
