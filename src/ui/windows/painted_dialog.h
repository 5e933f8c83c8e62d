// A full-screen dialog that paints its own paper without flicker; keys walk through its controls,
// and a frame shows which of them has the focus. Windows only.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "platform/rect.h"
#include "ui/windows/full_screen_dialog.h"
#include "ui/windows/key_navigation.h"

namespace tidewell {

class PaintedDialog : public FullScreenDialog, protected NavigationOwner {
 protected:
  using FullScreenDialog::FullScreenDialog;

  // The whole client area, controls aside; only what is to be painted anew reaches the screen.
  virtual void Paint(HDC dc) = 0;
  // Of the frame around a control.
  virtual COLORREF FocusInk(HWND control) const = 0;

  // Reached by keys, in the order of the calls.
  void AddToWalk(HWND control, ControlKind kind) { navigation_.Add(control, kind); }
  static void Place(HWND control, const Rect& place);
  void Repaint(const Rect& area) const;
  std::optional<INT_PTR> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  void OnFocusMoved(HWND control) override;
  bool OnEscape() override;
  void OnPaint();
  bool HasFrame() const { return focused_ && !navigation_.MarksItself(focused_); }
  void RepaintFrame() const;

  KeyNavigation navigation_{*this};
  HWND focused_ = nullptr;
};

}  // namespace tidewell
