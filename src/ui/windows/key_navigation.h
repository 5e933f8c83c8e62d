// The focusable controls of a page or a dialog: keys walk through them and work them. A device has
// four directions and an action key (Enter); a keyboard adds Tab, Space and the rest.
#pragma once

#include <windows.h>

#include <cstdint>
#include <deque>
#include <optional>

#include "win32/control_hook.h"

namespace tidewell {

enum class ControlKind : std::uint8_t {
  kButton,
  kCheck,
  kList,
  kNumber,
  kEdit,
  kSlider,
  kRows,
  kTabs,
  kStrip
};

// What the keys tell the page or dialog whose controls they walk through.
class NavigationOwner {
 public:
  virtual ~NavigationOwner() = default;
  // Null when the focus has left the navigation.
  virtual void OnFocusMoved(HWND control) = 0;
  // Up (-1) or down (1) by what is in view; true when there is more to see at all.
  virtual bool OnPageKey(int /*direction*/) { return false; }
  virtual void OnWheel(int /*distance*/) {}
  // Up (-1) or down (1) from a control; true when the owner has moved the focus by itself.
  virtual bool OnVerticalKey(HWND /*control*/, int /*direction*/) { return false; }
  // True when the owner has dealt with it.
  virtual bool OnEscape() { return false; }
};

class KeyNavigation {
 public:
  explicit KeyNavigation(NavigationOwner& owner) : owner_(owner) {}
  KeyNavigation(const KeyNavigation&) = delete;
  KeyNavigation& operator=(const KeyNavigation&) = delete;

  // Takes the control's user data. The order of the calls is the order of the walk.
  void Add(HWND control, ControlKind kind);

  // The focus goes to the first usable control, to `preferred` when that is one.
  void FocusFirst(HWND preferred = nullptr);
  bool CanFocus(HWND control) const;
  // Whether the control itself shows that it has the focus: lists, tabs and strips do.
  bool MarksItself(HWND control) const;

 private:
  struct Entry {
    HWND control;  // the list itself, also for the edit inside of it
    ControlKind kind;
    ControlHook hook;
  };

  void Hook(HWND window, HWND control, ControlKind kind);
  // The answer to a message that the control is not to have.
  std::optional<LRESULT> OnMessage(const Entry& entry, UINT message, WPARAM wParam, LPARAM lParam);
  bool OnKey(const Entry& entry, WPARAM key);
  bool OnArrow(const Entry& entry, int direction, bool vertical);
  bool OnAction(const Entry& entry, bool isSpace);
  bool Swallows(const Entry& entry, WPARAM character) const;
  void Walk(HWND from, int direction);

  NavigationOwner& owner_;
  std::deque<Entry> entries_;  // their addresses stay
};

}  // namespace tidewell
