#include "ui/windows/painted_dialog.h"

#include "preview/windows/gdi_canvas.h"
#include "ui/windows/focus_frame.h"
#include "win32/gdi.h"

namespace tidewell {

void PaintedDialog::Place(HWND control, const Rect& place) {
  MoveWindow(control, place.left, place.top, place.width, place.height, TRUE);
}

void PaintedDialog::Repaint(const Rect& area) const {
  const RECT place = SystemRect(area);
  InvalidateRect(Window(), &place, FALSE);
}

std::optional<INT_PTR> PaintedDialog::OnMessage(UINT message, WPARAM, LPARAM) {
  switch (message) {
    case WM_ERASEBKGND:
      SetWindowLongPtrW(Window(), DWLP_MSGRESULT, TRUE);
      return TRUE;
    case WM_PAINT:
      OnPaint();
      return TRUE;
    default:
      return std::nullopt;
  }
}

void PaintedDialog::OnFocusMoved(HWND control) {
  RepaintFrame();
  focused_ = control;
  RepaintFrame();
}

bool PaintedDialog::OnEscape() {
  Close(0);
  return true;
}

void PaintedDialog::OnPaint() {
  const PartialPaint paint(Window());
  SetBkMode(paint.Dc(), TRANSPARENT);
  Paint(paint.Dc());
  if (HasFrame()) DrawFocusFrame(paint.Dc(), focused_, Scale(), FocusInk(focused_));
}

void PaintedDialog::RepaintFrame() const {
  if (!HasFrame()) return;
  const RECT frame = FocusFrame(focused_, Scale());
  InvalidateRect(Window(), &frame, FALSE);
}

}  // namespace tidewell
