#include "platform/desktop/title_strip.h"

#include <windowsx.h>

#include <string>

#include "platform/desktop/shell_look.h"
#include "win32/window_owner.h"

namespace tidewell {

namespace {

constexpr wchar_t kClassName[] = L"DeviceTitleStrip";
constexpr int kMargin = 8;
constexpr int kButtonSize = 20;

POINT PointOf(LPARAM lParam) {
  return {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
}

std::wstring CaptionOf(HWND window) {
  std::wstring caption(static_cast<std::size_t>(GetWindowTextLengthW(window)), L'\0');
  GetWindowTextW(window, caption.data(), static_cast<int>(caption.size()) + 1);
  return caption;
}

}  // namespace

TitleStrip::TitleStrip(HWND owner, TitleButton button) : owner_(owner), button_(button) {
  WNDCLASSW windowClass{};
  windowClass.style = CS_HREDRAW | CS_VREDRAW;
  windowClass.lpfnWndProc = WindowProc;
  windowClass.hInstance = GetModuleHandleW(nullptr);
  windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  windowClass.lpszClassName = kClassName;
  RegisterClassW(&windowClass);
  window_ = CreateWindowExW(WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE, kClassName, L"", WS_POPUP, 0, 0, 0,
                            0, owner, nullptr, windowClass.hInstance, this);
}

TitleStrip::~TitleStrip() {
  if (window_) DestroyWindow(window_);
}

void TitleStrip::SetButton(TitleButton button) {
  button_ = button;
  Refresh();
}

void TitleStrip::Place(const RECT& place, bool visible) {
  if (!visible && !IsWindowVisible(window_)) return;
  SetWindowPos(window_, nullptr, place.left, place.top, place.right - place.left,
               place.bottom - place.top,
               SWP_NOACTIVATE | SWP_NOZORDER | (visible ? SWP_SHOWWINDOW : SWP_HIDEWINDOW));
}

void TitleStrip::Refresh() {
  InvalidateRect(window_, nullptr, FALSE);
}

void TitleStrip::PressButton() {
  if (button_ == TitleButton::kNone || !IsWindowEnabled(owner_)) return;
  PostMessageW(owner_, WM_COMMAND, button_ == TitleButton::kOk ? IDOK : IDCANCEL, 0);
}

LRESULT CALLBACK TitleStrip::WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  TitleStrip* strip = OwnerOf(&TitleStrip::window_, window, message, lParam);
  return strip ? strip->Handle(message, wParam, lParam)
               : DefWindowProcW(window, message, wParam, lParam);
}

LRESULT TitleStrip::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_PAINT:
      OnPaint();
      return 0;
    case WM_ERASEBKGND:
      return 1;
    case WM_MOUSEACTIVATE:
      return MA_NOACTIVATE;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
      OnPointerDown(PointOf(lParam));
      return 0;
    case WM_MOUSEMOVE:
      if (tracking_) Track(PointOf(lParam));
      return 0;
    case WM_LBUTTONUP:
      OnPointerUp(PointOf(lParam));
      return 0;
    case WM_CAPTURECHANGED:
      tracking_ = inside_ = false;
      Refresh();
      return 0;
    case WM_NCDESTROY:
      return LetGo(window_, wParam, lParam);
    default:
      return DefWindowProcW(window_, message, wParam, lParam);
  }
}

void TitleStrip::OnPaint() {
  const BufferedPaint paint(window_);
  const HDC dc = paint.Dc();
  DrawStripBackground(dc, paint.Client(), false);
  SetBkMode(dc, TRANSPARENT);
  SetTextColor(dc, kStripText);

  RECT text = paint.Client();
  text.left += ShellScale().ScaleX(kMargin);
  text.right = button_ == TitleButton::kNone ? text.right : ButtonArea().left;
  const Font font = ShellFont(12, FW_BOLD);
  const Selected selected(dc, font.Get());
  const std::wstring caption = CaptionOf(owner_);
  DrawTextW(dc, caption.c_str(), -1, &text,
            DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
  if (button_ != TitleButton::kNone) DrawButton(dc);
}

void TitleStrip::DrawButton(HDC dc) const {
  const bool pressed = tracking_ && inside_;
  RECT area = ButtonArea();
  const int size = area.right - area.left;
  DrawCircle(dc, area, pressed ? size : ShellScale().ScaleX(1), kStripText);
  SetTextColor(dc, pressed ? RGB(36, 50, 70) : kStripText);
  const Font font = ShellFont(10, FW_BOLD);
  const Selected selected(dc, font.Get());
  // Lower-case letters look centred one design pixel above the middle of their line.
  OffsetRect(&area, 0, -ShellScale().ScaleY(1));
  DrawTextW(dc, button_ == TitleButton::kOk ? L"ok" : L"\u00D7", -1, &area,
            DT_SINGLELINE | DT_VCENTER | DT_CENTER | DT_NOPREFIX);
}

void TitleStrip::OnPointerDown(POINT point) {
  if (button_ == TitleButton::kNone || !IsWindowEnabled(owner_) || !HitsButton(point)) return;
  tracking_ = true;
  SetCapture(window_);
  Track(point);
}

void TitleStrip::OnPointerUp(POINT point) {
  if (!tracking_) return;
  const bool press = HitsButton(point);
  ReleaseCapture();
  if (press) PressButton();
}

void TitleStrip::Track(POINT point) {
  const bool inside = HitsButton(point);
  if (inside == inside_) return;
  inside_ = inside;
  Refresh();
}

RECT TitleStrip::ButtonArea() const {
  const RECT client = ClientArea(window_);
  const int size = ShellScale().ScaleY(kButtonSize);
  const int margin = (client.bottom - size) / 2;
  return {client.right - margin - size, margin, client.right - margin, margin + size};
}

bool TitleStrip::HitsButton(POINT point) const {
  const RECT client = ClientArea(window_);
  // The whole corner takes the tap: a finger is wider than the circle.
  const RECT corner{client.right - 2 * client.bottom, 0, client.right, client.bottom};
  return PtInRect(&corner, point);
}

}  // namespace tidewell
