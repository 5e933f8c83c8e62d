#include "ui/windows/full_screen_dialog.h"

#include <commctrl.h>

#include <utility>

#include "resources/text/text_ids.h"
#include "ui/windows/look.h"
#include "ui/windows/soft_keys.h"
#include "win32/empty_dialog.h"
#include "win32/tahoma.h"
#include "win32/window_owner.h"

namespace tidewell {

namespace {

constexpr int kTextHeight = 12;  // design heights of the letters
constexpr int kLabelHeight = 10;
constexpr int kRightKey = 1;  // its position in the menu

void SetKeyText(HWND menuBar, int command, std::wstring& text) {
  TBBUTTONINFOW info{};
  info.cbSize = sizeof info;
  info.dwMask = TBIF_TEXT;
  info.pszText = text.data();
  SendMessageW(menuBar, TB_SETBUTTONINFOW, static_cast<WPARAM>(command),
               reinterpret_cast<LPARAM>(&info));
}

}  // namespace

FullScreenDialog::SoftKeys FullScreenDialog::OkAndCancel(const Language& language) {
  return {language.Text(IDS_OK, L"OK"), language.Text(IDS_CANCEL, L"Cancel")};
}

FullScreenDialog::FullScreenDialog(const DialogContext& context, std::wstring title, SoftKeys keys)
    : parent_(context.parent),
      scale_(context.scale),
      title_(std::move(title)),
      keys_(std::move(keys)),
      font_(TahomaFont(scale_.ScaleY(kTextHeight), FW_NORMAL)),
      labelFont_(TahomaFont(scale_.ScaleY(kLabelHeight), FW_NORMAL)) {}

INT_PTR FullScreenDialog::Run() {
  return RunEmptyDialog(GetModuleHandleW(nullptr), parent_, DialogProc, this);
}

void FullScreenDialog::EnableLeftKey(bool enable) {
  SendMessageW(menuBar_, TB_ENABLEBUTTON, IDOK, MAKELPARAM(enable, 0));
}

void FullScreenDialog::CheckEntry(int first, int last, int checked) {
  CheckMenuRadioItem(menu_, static_cast<UINT>(first), static_cast<UINT>(last),
                     static_cast<UINT>(checked), MF_BYCOMMAND);
}

HWND FullScreenDialog::MakeControl(const wchar_t* windowClass, DWORD style, int id,
                                   const std::wstring& text) {
  return MakeHiddenControl(windowClass, WS_VISIBLE | style, id, text);
}

HWND FullScreenDialog::MakeHiddenControl(const wchar_t* windowClass, DWORD style, int id,
                                         const std::wstring& text) {
  const HWND control = CreateWindowExW(0, windowClass, text.c_str(), WS_CHILD | style, 0, 0, 0, 0,
                                       window_, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                                       GetModuleHandleW(nullptr), nullptr);
  SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(font_.Get()), FALSE);
  return control;
}

HWND FullScreenDialog::MakeLabel(int id, const std::wstring& text) {
  const HWND label = MakeControl(WC_STATICW, SS_LEFTNOWORDWRAP | SS_NOPREFIX, id, text);
  SendMessageW(label, WM_SETFONT, reinterpret_cast<WPARAM>(labelFont_.Get()), FALSE);
  return label;
}

INT_PTR CALLBACK FullScreenDialog::DialogProc(HWND window, UINT message, WPARAM wParam,
                                              LPARAM lParam) {
  FullScreenDialog* dialog = DialogOwnerOf(&FullScreenDialog::window_, window, message, lParam);
  return dialog ? dialog->Handle(message, wParam, lParam) : FALSE;
}

INT_PTR FullScreenDialog::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  if (const auto answer = OnMessage(message, wParam, lParam)) return *answer;
  switch (message) {
    case WM_INITDIALOG:
      OnInit();
      return FALSE;  // the focus is set
    case WM_SIZE:
      LayOut();
      return TRUE;
    case WM_ACTIVATE:
      SHHandleWMActivate(window_, wParam, lParam, &activation_, 0);
      return TRUE;
    case WM_SETTINGCHANGE:
      SHHandleWMSettingChange(window_, wParam, lParam, &activation_);
      return TRUE;
    case WM_CTLCOLORDLG:
    case WM_CTLCOLORSTATIC:
      SetBkMode(reinterpret_cast<HDC>(wParam), TRANSPARENT);
      return reinterpret_cast<INT_PTR>(GetStockObject(WHITE_BRUSH));
    case WM_CLOSE:
      if (IsWindowEnabled(window_)) Close(0);  // not below a message of its own
      return TRUE;
    case WM_COMMAND:
      if (LOWORD(wParam) == IDCANCEL) {
        Close(0);
      } else {
        OnCommand(LOWORD(wParam), HIWORD(wParam));
      }
      return TRUE;
    case WM_NOTIFY:
      SetWindowLongPtrW(window_, DWLP_MSGRESULT, OnNotify(*reinterpret_cast<const NMHDR*>(lParam)));
      return TRUE;
    case WM_MEASUREITEM:
      OnMeasureItem(*reinterpret_cast<MEASUREITEMSTRUCT*>(lParam));
      return TRUE;
    case WM_DRAWITEM:
      OnDrawItem(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
      return TRUE;
    default:
      return FALSE;
  }
}

void FullScreenDialog::OnInit() {
  activation_ = {};
  activation_.cbSize = sizeof activation_;
  SetWindowTextW(window_, title_.c_str());
  MakeSoftKeys();
  OnCreate();
  laidOut_ = {};  // there was nothing to place before
  SHINITDLGINFO info{};
  info.dwMask = SHIDIM_FLAGS;
  info.hDlg = window_;
  info.dwFlags = SHIDIF_SIZEDLGFULLSCREEN | SHIDIF_SIPDOWN;
  SHInitDialog(&info);
  LayOut();
  OnShown();
}

void FullScreenDialog::MakeSoftKeys() {
  SHMENUBARINFO bar{};
  bar.cbSize = sizeof bar;
  bar.hwndParent = window_;
  bar.dwFlags = SHCMBF_HMENU;
  bar.nToolBarId = keys_.menu.empty() ? IDR_CHOICE_KEYS : IDR_CHOICE_AND_MENU;
  bar.hInstRes = GetModuleHandleW(nullptr);
  if (!SHCreateMenuBar(&bar)) return;
  menuBar_ = bar.hwndMB;
  SetKeyText(menuBar_, IDOK, keys_.left);
  if (keys_.menu.empty()) {
    SetKeyText(menuBar_, IDCANCEL, keys_.right);
  } else {
    FillMenu();
  }
}

// Takes the place of what the resource holds for a menu to be one.
void FullScreenDialog::FillMenu() {
  menu_ =
      GetSubMenu(reinterpret_cast<HMENU>(SendMessageW(menuBar_, SHCMBM_GETMENU, 0, 0)), kRightKey);
  DeleteMenu(menu_, 0, MF_BYPOSITION);
  for (const MenuEntry& entry : keys_.menu) {
    AppendMenuW(menu_, entry.command ? MF_STRING : MF_SEPARATOR,
                static_cast<UINT_PTR>(entry.command), entry.text.c_str());
  }
}

void FullScreenDialog::LayOut() {
  const RECT client = ClientArea(window_);
  if (EqualRect(&client, &laidOut_)) return;
  laidOut_ = client;
  OnLayout(client.right, client.bottom);
}

}  // namespace tidewell
