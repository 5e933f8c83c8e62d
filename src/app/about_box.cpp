#include "app/about_box.h"

#include <aygshell.h>
#include <windowsx.h>

#include "resources/art/bitmap_ids.h"
#include "ui/windows/command_bar.h"
#include "ui/windows/look.h"
#include "ui/windows/picture.h"
#include "win32/empty_dialog.h"
#include "win32/tahoma.h"
#include "win32/window_owner.h"

namespace tidewell {

namespace {

class AboutBox {
 public:
  AboutBox(const AboutRecord& record, const ScreenScale& scale) : record_(record), scale_(scale) {}

  static INT_PTR CALLBACK DialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

 private:
  INT_PTR Handle(UINT message, WPARAM wParam, LPARAM lParam);
  void OnInit();
  void OnActivate(WPARAM wParam, LPARAM lParam);
  void OnPaint();
  int PaintLogo(HDC dc, const RECT& client, int y) const;
  int PaintText(HDC dc, const RECT& client, int y, const std::wstring& text) const;
  void OnPointer(UINT message, POINT point);
  void Close() { EndDialog(window_, 1); }
  RECT BarArea() const;

  const AboutRecord& record_;
  const ScreenScale& scale_;
  HWND window_ = nullptr;
  SHACTIVATEINFO activation_{};
  Font regular_;
  Font bold_;
  CommandBar commandBar_;
};

INT_PTR CALLBACK AboutBox::DialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  AboutBox* box = DialogOwnerOf(&AboutBox::window_, window, message, lParam);
  return box ? box->Handle(message, wParam, lParam) : FALSE;
}

INT_PTR AboutBox::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG:
      OnInit();
      return TRUE;
    case WM_PAINT:
      OnPaint();
      return TRUE;
    case WM_ERASEBKGND:
      SetWindowLongPtrW(window_, DWLP_MSGRESULT, TRUE);
      return TRUE;
    case WM_SIZE:
      InvalidateRect(window_, nullptr, FALSE);
      return TRUE;
    case WM_ACTIVATE:
      OnActivate(wParam, lParam);
      return TRUE;
    case WM_SETTINGCHANGE:
      SHHandleWMSettingChange(window_, wParam, lParam, &activation_);
      return TRUE;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
      OnPointer(message, {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
      return TRUE;
    case WM_COMMAND:
      if (LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL) Close();
      return TRUE;
    case WM_DESTROY:
      regular_.Reset();
      bold_.Reset();
      return TRUE;
    default:
      return FALSE;
  }
}

void AboutBox::OnInit() {
  regular_ = TahomaFont(scale_.ScaleX(12), FW_THIN);
  bold_ = TahomaFont(scale_.ScaleX(12), FW_BOLD);
  activation_ = {};
  activation_.cbSize = sizeof activation_;
  SetWindowTextW(window_, record_.caption.c_str());
  SHINITDLGINFO info{};
  info.dwMask = SHIDIM_FLAGS;
  info.hDlg = window_;
  info.dwFlags = SHIDIF_DONEBUTTON | SHIDIF_FULLSCREENNOMENUBAR;
  SHInitDialog(&info);
  commandBar_.SetButton(CommandBar::kLeftSlot, Picture(record_.pictures, IDB_DONE), IDOK);
}

void AboutBox::OnActivate(WPARAM wParam, LPARAM lParam) {
  if (LOWORD(wParam) == WA_ACTIVE) {
    SHFullScreen(window_, SHFS_HIDESIPBUTTON);
    SHSipPreference(window_, SIP_FORCEDOWN);
  }
  SHHandleWMActivate(window_, wParam, lParam, &activation_, 0);
}

void AboutBox::OnPaint() {
  const BufferedPaint paint(window_);
  const HDC dc = paint.Dc();
  const RECT& client = paint.Client();
  FillPlain(dc, client, RGB(255, 255, 255));
  SetTextColor(dc, RGB(0, 0, 0));
  SetBkMode(dc, TRANSPARENT);
  const Selected font(dc, bold_.Get());
  int y = scale_.ScaleY(6);
  y += PaintLogo(dc, client, y) + scale_.ScaleY(2);
  y += PaintText(dc, client, y, record_.version) + scale_.ScaleY(4);
  PaintText(dc, client, y, BuildLine(record_));
  commandBar_.Paint(dc, BarArea(), scale_);
}

int AboutBox::PaintLogo(HDC dc, const RECT& client, int y) const {
  const Picture logo(record_.pictures, record_.logoId);
  if (!logo) return 0;
  const int x = (client.right - logo.Width()) / 2;
  TransparentImage(dc, x, y, logo.Width(), logo.Height(), logo.Handle(), 0, 0, logo.Width(),
                   logo.Height(), RGB(255, 0, 0));
  return logo.Height();
}

int AboutBox::PaintText(HDC dc, const RECT& client, int y, const std::wstring& text) const {
  if (text.empty()) return 0;
  RECT place{0, y, client.right, client.bottom};
  return DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &place,
                   DT_CENTER | DT_WORDBREAK);
}

void AboutBox::OnPointer(UINT message, POINT point) {
  const bool down = message == WM_LBUTTONDOWN;
  if (commandBar_.ShowPressed(BarArea(), down ? std::optional(point) : std::nullopt)) {
    InvalidateRect(window_, nullptr, FALSE);
  }
  if (!down && commandBar_.CommandAt(BarArea(), point)) Close();
}

RECT AboutBox::BarArea() const {
  RECT area = ClientArea(window_);
  area.top = area.bottom - CommandBar::Height(scale_);
  return area;
}

}  // namespace

AboutRecord AboutTidewell(HINSTANCE instance, HMODULE pictures) {
  return {
      instance,     pictures, 174, IDB_LOGO, true, L"About Tidewell", L"Tidewell 5.5 Public Beta 2",
      L"04/17/2009"};
}

std::wstring BuildLine(const AboutRecord& record) {
  std::wstring line = record.buildDate;
  if (!record.buildSuffix) return line;
  if (!line.empty()) line += L", ";
  return line + L"WM5/WM6 Build";
}

void ShowAboutBox(HWND parent, const AboutRecord& record, const ScreenScale& scale) {
  AboutBox box(record, scale);
  RunEmptyDialog(record.instance, parent, AboutBox::DialogProc, &box);
}

}  // namespace tidewell
