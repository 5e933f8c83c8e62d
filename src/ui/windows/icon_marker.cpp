#include "ui/windows/icon_marker.h"

#include <windowsx.h>

#include <algorithm>
#include <utility>

#include "preview/windows/gdi_canvas.h"
#include "win32/gdi.h"
#include "win32/window_owner.h"

namespace tidewell {

namespace {

constexpr UINT_PTR kShowNameTimer = 9979;
constexpr UINT_PTR kHideNameTimer = 9980;
constexpr unsigned kShowDelay = 350;   // milliseconds that the finger rests first
constexpr unsigned kHideDelay = 3200;  // and after which the name goes by itself
constexpr unsigned kAtOnce = 0;
constexpr int kOwnSlot = 0;  // of the class's own bytes: the user data is left to a hook

}  // namespace

IconMarker::IconMarker(HWND host, POINT place, LPARAM markerId, int controlId,
                       IconMarkerModel model, IconSource* icons, const ScreenScale& scale)
    : markerId_(markerId), model_(std::move(model)), icons_(icons), scale_(scale) {
  const HINSTANCE instance = GetModuleHandleW(nullptr);
  WNDCLASSW windowClass{};
  windowClass.lpfnWndProc = WindowProc;
  windowClass.cbWndExtra = sizeof(IconMarker*);
  windowClass.hInstance = instance;
  windowClass.hbrBackground = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
  windowClass.lpszClassName = kIconMarkerClass;
  RegisterClassW(&windowClass);
  CreateWindowExW(0, kIconMarkerClass, L"", WS_CHILD | WS_CLIPSIBLINGS | WS_TABSTOP, place.x,
                  place.y, IconMarkerModel::Width(model_.Mode(), model_.Items().size(), scale),
                  IconMarkerModel::Height(scale), host,
                  reinterpret_cast<HMENU>(static_cast<INT_PTR>(controlId)), instance, this);
}

// The class goes with its last window.
IconMarker::~IconMarker() {
  if (window_) DestroyWindow(window_);
  UnregisterClassW(kIconMarkerClass, GetModuleHandleW(nullptr));
}

void IconMarker::SetValue(std::uint32_t value) {
  model_.SetValue(value);
  Repaint();
}

void IconMarker::SetOff(std::uint32_t value) {
  model_.SetOff(value);
  Repaint();
}

void IconMarker::SetDisabled(std::uint32_t value) {
  model_.SetDisabled(value);
  Repaint();
}

LRESULT CALLBACK IconMarker::WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  IconMarker* marker =
      OwnerOf(&IconMarker::window_, window, message, lParam, WM_NCCREATE, kOwnSlot);
  return marker ? marker->Handle(message, wParam, lParam)
                : DefWindowProcW(window, message, wParam, lParam);
}

LRESULT IconMarker::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_ERASEBKGND:
      return 1;
    case WM_PAINT:
      Paint();
      return 0;
    case WM_LBUTTONDOWN:
      OnPointerDown({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
      return 0;
    case WM_LBUTTONUP:
      ReleaseCapture();
      HideName();
      return 0;
    case WM_CAPTURECHANGED:
    case WM_DESTROY:
      HideName();
      return 0;
    case WM_KEYDOWN:
      OnKey(wParam);
      return 0;
    case WM_SETFOCUS:
      OnFocus();
      return 0;
    case WM_KILLFOCUS:
      HideName();
      Repaint();
      return 0;
    case WM_TIMER:
      OnTimer(wParam);
      return 0;
    case WM_COMMAND:
      OnMenuCommand(LOWORD(wParam));
      return 0;
    case WM_NCDESTROY:
      return LetGo(window_, wParam, lParam, kOwnSlot);
    default:
      return DefWindowProcW(window_, message, wParam, lParam);
  }
}

void IconMarker::Paint() const {
  const BufferedPaint paint(window_);
  GdiCanvas canvas(paint.Dc());
  const RECT& client = paint.Client();
  const bool isFocused = GetFocus() == window_;
  model_.Paint(canvas, {0, 0, client.right, client.bottom}, scale_, icons_,
               isFocused ? std::optional(focusedCell_) : std::nullopt);
}

void IconMarker::OnPointerDown(POINT point) {
  SetCapture(window_);
  SetFocus(window_);
  if (model_.Mode() == MarkerMode::kMany) {
    Tap(point, kShowDelay);
  } else {
    ReleaseCapture();
    OpenMenu();
  }
}

void IconMarker::OnKey(WPARAM key) {
  switch (key) {
    case VK_LEFT:
      Walk(-1);
      break;
    case VK_RIGHT:
      Walk(1);
      break;
    case VK_SPACE:
    case VK_RETURN:
      if (model_.Mode() == MarkerMode::kOne) {
        DropCharacter();
        OpenMenu();
      } else {
        Tap(FocusedPoint(), kAtOnce);
      }
      break;
  }
}

// A finger names what it rests on by itself.
void IconMarker::OnFocus() {
  if (GetCapture() != window_) PrepareName(focusedCell_, FocusedPoint(), kAtOnce);
  Repaint();
}

void IconMarker::OnTimer(WPARAM id) {
  KillTimer(window_, id);
  if (id == kShowNameTimer && name_) name_->Show();
  if (id == kHideNameTimer) HideName();
}

void IconMarker::OnMenuCommand(int command) {
  const auto value = model_.Choose(command);
  if (!value) return;
  Repaint();
  SendMessageW(GetParent(window_), kMarkerChosenMessage, *value, markerId_);
}

void IconMarker::Tap(POINT point, unsigned delay) {
  model_.Tap(point.x, scale_);
  const int cell = IconMarkerModel::CellAt(point.x, scale_);
  focusedCell_ = std::min(cell, model_.CellCount() - 1);
  PrepareName(cell, point, delay);
  Repaint();
  SendMessageW(GetParent(window_), kMarkerTappedMessage, 0, markerId_);
}

// What is chosen comes back as a command; a menu that is left alone sends none.
void IconMarker::OpenMenu() {
  HideName();
  const HMENU menu = CreatePopupMenu();
  for (const MarkerMenuEntry& entry : model_.Menu()) {
    AppendMenuW(menu, MF_STRING | (entry.isChecked ? MF_CHECKED : 0u),
                static_cast<UINT_PTR>(entry.command), entry.text.c_str());
  }
  POINT place{0, scale_.ScaleX(18)};
  ClientToScreen(window_, &place);
  TrackPopupMenuEx(menu, TPM_LEFTALIGN | TPM_TOPALIGN, place.x, place.y, window_, nullptr);
  DestroyMenu(menu);
}

// That of the key that is down would end the menu as soon as it is there.
void IconMarker::DropCharacter() const {
  MSG character;
  PeekMessageW(&character, window_, WM_CHAR, WM_CHAR, PM_REMOVE);
}

void IconMarker::Walk(int direction) {
  focusedCell_ = std::clamp(focusedCell_ + direction, 0, model_.CellCount() - 1);
  PrepareName(focusedCell_, FocusedPoint(), kAtOnce);
  Repaint();
}

POINT IconMarker::FocusedPoint() const {
  const Rect cell = IconMarkerModel::PlaceOfCell(focusedCell_, scale_);
  return {cell.left, cell.top};
}

void IconMarker::PrepareName(int cell, POINT point, unsigned delay) {
  HideName();
  const std::wstring name = model_.NameOfCell(cell);
  if (name.empty()) return;
  ClientToScreen(window_, &point);
  name_.emplace(window_, name, point, scale_);
  if (delay == kAtOnce) {
    name_->Show();
  } else {
    SetTimer(window_, kShowNameTimer, delay, nullptr);
  }
  SetTimer(window_, kHideNameTimer, kHideDelay, nullptr);
}

void IconMarker::HideName() {
  KillTimer(window_, kShowNameTimer);
  KillTimer(window_, kHideNameTimer);
  name_.reset();
}

}  // namespace tidewell
