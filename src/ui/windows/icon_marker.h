// The strip of an icon marker, window class IconMarkerClass: worked by taps, and by keys while it
// has the focus. Windows only.
#pragma once

#include <windows.h>

#include <optional>

#include "ui/icon_marker_model.h"
#include "ui/windows/tooltip_window.h"

namespace tidewell {

inline constexpr wchar_t kIconMarkerClass[] = L"IconMarkerClass";

// Sent to the host, with the marker's id as the second argument: after a tap in a strip of many,
// also in one that changed nothing, and after a choice, which is the first argument.
inline constexpr UINT kMarkerTappedMessage = 1788;
inline constexpr UINT kMarkerChosenMessage = 1789;

class IconMarker {
 public:
  // A hidden child window of `host`, its size being the model's. `icons` outlives it; null shows
  // none.
  IconMarker(HWND host, POINT place, LPARAM markerId, int controlId, IconMarkerModel model,
             IconSource* icons, const ScreenScale& scale);
  IconMarker(const IconMarker&) = delete;
  IconMarker& operator=(const IconMarker&) = delete;
  ~IconMarker();

  HWND Window() const { return window_; }
  const IconMarkerModel& Model() const { return model_; }
  void SetValue(std::uint32_t value);
  void SetOff(std::uint32_t value);
  void SetDisabled(std::uint32_t value);

 private:
  static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
  void Paint() const;
  void OnPointerDown(POINT point);
  void OnKey(WPARAM key);
  void OnFocus();
  void OnTimer(WPARAM id);
  void OnMenuCommand(int command);
  // What a tap does; the name comes at a point of the strip after a while.
  void Tap(POINT point, unsigned delay);
  void DropCharacter() const;
  void OpenMenu();
  void Walk(int direction);
  // The corner of the focused cell.
  POINT FocusedPoint() const;
  void PrepareName(int cell, POINT point, unsigned delay);
  void HideName();
  void Repaint() const { InvalidateRect(window_, nullptr, FALSE); }

  HWND window_ = nullptr;
  LPARAM markerId_;
  IconMarkerModel model_;
  IconSource* icons_;
  ScreenScale scale_;
  int focusedCell_ = 0;
  std::optional<TooltipWindow> name_;
};

}  // namespace tidewell
