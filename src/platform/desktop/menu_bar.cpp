#include "platform/desktop/menu_bar.h"

#include <aygshell.h>
#include <commctrl.h>
#include <windowsx.h>

#include <utility>

#include "platform/desktop/shell_look.h"
#include "win32/window_owner.h"

namespace tidewell {

namespace {

constexpr wchar_t kClassName[] = L"DeviceMenuBar";

std::wstring TextOfItem(HMENU menu, int position) {
  wchar_t text[64] = {};
  GetMenuStringW(menu, static_cast<UINT>(position), text, ARRAYSIZE(text), MF_BYPOSITION);
  return text;
}

}  // namespace

MenuBar::MenuBar(const SHMENUBARINFO& info)
    : parent_(info.hwndParent), hidden_((info.dwFlags & SHCMBF_HIDDEN) != 0) {
  WNDCLASSW windowClass{};
  windowClass.style = CS_HREDRAW | CS_VREDRAW;
  windowClass.lpfnWndProc = WindowProc;
  windowClass.hInstance = GetModuleHandleW(nullptr);
  windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  windowClass.lpszClassName = kClassName;
  RegisterClassW(&windowClass);
  CreateWindowExW(WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE, kClassName, L"", WS_POPUP, 0, 0, 0, 0,
                  parent_, nullptr, windowClass.hInstance, this);

  const DWORD kind = info.dwFlags & (SHCMBF_EMPTYBAR | SHCMBF_HMENU);
  if (kind != SHCMBF_HMENU) return;
  menu_ = LoadMenuW(info.hInstRes, MAKEINTRESOURCEW(info.nToolBarId));
  LoadKeys();
}

MenuBar::~MenuBar() {
  if (window_) DestroyWindow(window_);
  if (menu_) DestroyMenu(menu_);
}

void MenuBar::LoadKeys() {
  for (std::size_t i = 0; i < keys_.size(); ++i) {
    const int position = static_cast<int>(i);
    if (position >= GetMenuItemCount(menu_)) return;
    const HMENU popup = GetSubMenu(menu_, position);
    const int command = popup ? position : static_cast<int>(GetMenuItemID(menu_, position));
    keys_[i] = SoftKey{command, TextOfItem(menu_, position), true, popup};
  }
}

void MenuBar::Place(const RECT& place, bool visible) {
  const bool show = visible && !hidden_;
  SetWindowPos(window_, nullptr, place.left, place.top, place.right - place.left,
               place.bottom - place.top,
               SWP_NOACTIVATE | SWP_NOZORDER | (show ? SWP_SHOWWINDOW : SWP_HIDEWINDOW));
}

bool MenuBar::Press(std::size_t index) {
  if (!keys_[index]) return false;
  const SoftKey& key = *keys_[index];
  if (!key.enabled || !IsWindowEnabled(parent_)) return true;
  if (key.popup) {
    OpenPopup(index);
  } else {
    PostMessageW(parent_, WM_COMMAND, MAKEWPARAM(key.command, 0),
                 reinterpret_cast<LPARAM>(window_));
  }
  return true;
}

void MenuBar::OpenPopup(std::size_t index) {
  RECT bar;
  GetWindowRect(window_, &bar);
  const HMENU popup = keys_[index]->popup;
  pressed_ = index;
  Refresh();
  UpdateWindow(window_);
  // The parent hears WM_INITMENUPOPUP and the command; it may destroy this bar in answer.
  const HWND window = window_;
  const bool right = index == 1;
  TrackPopupMenuEx(popup, TPM_BOTTOMALIGN | (right ? TPM_RIGHTALIGN : TPM_LEFTALIGN),
                   right ? bar.right : bar.left, bar.top, parent_, nullptr);
  if (!IsWindow(window)) return;
  pressed_.reset();
  Refresh();
}

LRESULT CALLBACK MenuBar::WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  MenuBar* bar = OwnerOf(&MenuBar::window_, window, message, lParam);
  return bar ? bar->Handle(message, wParam, lParam)
             : DefWindowProcW(window, message, wParam, lParam);
}

LRESULT MenuBar::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
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
      OnPointerDown({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
      return 0;
    case WM_LBUTTONUP:
      OnPointerUp({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
      return 0;
    case WM_CAPTURECHANGED:
      pressed_.reset();
      Refresh();
      return 0;
    case WM_NCDESTROY:
      return LetGo(window_, wParam, lParam);
    default:
      return HandleShellMessage(message, wParam, lParam);
  }
}

LRESULT MenuBar::HandleShellMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case SHCMBM_GETMENU:
      return reinterpret_cast<LRESULT>(menu_);
    case SHCMBM_GETSUBMENU: {
      const SoftKey* key = FindKey(static_cast<int>(lParam));
      return key ? reinterpret_cast<LRESULT>(key->popup) : 0;
    }
    case SHCMBM_SETSUBMENU: {
      SoftKey* key = FindKey(static_cast<int>(wParam));
      if (!key) return 0;
      return reinterpret_cast<LRESULT>(std::exchange(key->popup, reinterpret_cast<HMENU>(lParam)));
    }
    case TB_ENABLEBUTTON: {
      SoftKey* key = FindKey(static_cast<int>(wParam));
      if (!key) return FALSE;
      key->enabled = LOWORD(lParam) != 0;
      Refresh();
      return TRUE;
    }
    case TB_ISBUTTONENABLED: {
      const SoftKey* key = FindKey(static_cast<int>(wParam));
      return key && key->enabled;
    }
    case TB_SETBUTTONINFOW:
      return SetKeyInfo(static_cast<int>(wParam), reinterpret_cast<const void*>(lParam));
    default:
      return DefWindowProcW(window_, message, wParam, lParam);
  }
}

LRESULT MenuBar::SetKeyInfo(int command, const void* info) {
  const auto& wanted = *static_cast<const TBBUTTONINFOW*>(info);
  SoftKey* key = FindKey(command);
  if (!key) return FALSE;
  if (wanted.dwMask & TBIF_TEXT) key->text = wanted.pszText;
  if (wanted.dwMask & TBIF_STATE) key->enabled = (wanted.fsState & TBSTATE_ENABLED) != 0;
  if (wanted.dwMask & TBIF_COMMAND) key->command = wanted.idCommand;
  Refresh();
  return TRUE;
}

SoftKey* MenuBar::FindKey(int command) {
  for (auto& key : keys_) {
    if (key && key->command == command) return &*key;
  }
  return nullptr;
}

void MenuBar::OnPaint() {
  const BufferedPaint paint(window_);
  const HDC dc = paint.Dc();
  DrawStripBackground(dc, paint.Client(), false);
  SetBkMode(dc, TRANSPARENT);
  const Font font = ShellFont(12, FW_BOLD);
  const Selected selected(dc, font.Get());
  for (std::size_t i = 0; i < keys_.size(); ++i) {
    if (keys_[i]) DrawKey(dc, KeyArea(i), *keys_[i], pressed_ == i);
  }
}

void MenuBar::DrawKey(HDC dc, const RECT& area, const SoftKey& key, bool pressed) const {
  if (pressed) DrawStripBackground(dc, area, true);
  SetTextColor(dc, key.enabled ? kStripText : kStripTextDisabled);
  RECT text = area;
  InflateRect(&text, -ShellScale().ScaleX(4), 0);
  DrawTextW(dc, key.text.c_str(), -1, &text,
            DT_SINGLELINE | DT_VCENTER | DT_CENTER | DT_END_ELLIPSIS);
}

void MenuBar::OnPointerDown(POINT point) {
  const auto index = KeyAt(point);
  if (!index || !keys_[*index]->enabled || !IsWindowEnabled(parent_)) return;
  if (keys_[*index]->popup) {
    OpenPopup(*index);
    return;
  }
  SetCapture(window_);
  pressed_ = index;
  Refresh();
}

void MenuBar::OnPointerUp(POINT point) {
  if (!pressed_) return;
  const auto index = pressed_;
  ReleaseCapture();
  if (KeyAt(point) == index) Press(*index);
}

std::optional<std::size_t> MenuBar::KeyAt(POINT point) const {
  for (std::size_t i = 0; i < keys_.size(); ++i) {
    const RECT area = KeyArea(i);
    if (keys_[i] && PtInRect(&area, point)) return i;
  }
  return std::nullopt;
}

RECT MenuBar::KeyArea(std::size_t index) const {
  RECT area = ClientArea(window_);
  const LONG middle = area.right / 2;
  if (index == 0) area.right = middle;
  if (index == 1) area.left = middle;
  return area;
}

void MenuBar::Refresh() {
  InvalidateRect(window_, nullptr, FALSE);
}

}  // namespace tidewell
