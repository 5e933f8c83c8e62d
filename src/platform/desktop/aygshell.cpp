#include <aygshell.h>

#include <memory>

#include "platform/desktop/shell_windows.h"
#include "win32/gdi.h"

using tidewell::ShellWindow;
using tidewell::ShellWindows;
using tidewell::TitleButton;

BOOL SHHandleWMActivate(HWND hwnd, WPARAM wParam, LPARAM, SHACTIVATEINFO* psai, DWORD) {
  const HWND focus = GetFocus();
  if (LOWORD(wParam) == WA_INACTIVE) {
    psai->fActive = FALSE;
    if (IsChild(hwnd, focus)) psai->hwndLastFocus = focus;
  } else {
    psai->fActive = TRUE;
    if (IsChild(hwnd, psai->hwndLastFocus)) SetFocus(psai->hwndLastFocus);
  }
  return TRUE;
}

// Windows are placed anew when the screen turns, and no input panel ever covers them: nothing is
// left to do.
BOOL SHHandleWMSettingChange(HWND, WPARAM, LPARAM, SHACTIVATEINFO*) {
  return TRUE;
}

BOOL SHFullScreen(HWND hwndRequester, DWORD dwState) {
  ShellWindow* window = ShellWindows::Instance().Find(hwndRequester);
  if (!window) return FALSE;
  if (dwState & (SHFS_SHOWTASKBAR | SHFS_HIDETASKBAR)) {
    ShellWindows::Instance().ShowTitle(*window, (dwState & SHFS_SHOWTASKBAR) != 0);
  }
  return TRUE;
}

// A desktop has a keyboard and no input panel, so wishes for one are met by doing nothing.
BOOL SHSipPreference(HWND, SIPSTATE) {
  return TRUE;
}

BOOL SHSipInfo(UINT uiAction, UINT, PVOID pvParam, UINT) {
  if (uiAction != SPI_GETSIPINFO) return FALSE;
  auto& info = *static_cast<SIPINFO*>(pvParam);
  info.fdwFlags = SIPF_OFF | SIPF_DOCKED;
  info.rcVisibleDesktop = ShellWindows::Instance().Client();
  info.rcSipRect = {};
  return TRUE;
}

BOOL SHInitDialog(PSHINITDLGINFO pshidi) {
  if (!pshidi || !(pshidi->dwMask & SHIDIM_FLAGS) || !IsWindow(pshidi->hDlg)) return FALSE;
  ShellWindows& shell = ShellWindows::Instance();
  ShellWindow& dialog = shell.Adopt(pshidi->hDlg);
  const DWORD flags = pshidi->dwFlags;

  shell.SetTitleButton(dialog, flags & SHIDIF_DONEBUTTON     ? TitleButton::kOk
                               : flags & SHIDIF_CANCELBUTTON ? TitleButton::kCancel
                                                             : TitleButton::kNone);
  if (flags & SHIDIF_EMPTYMENU) {
    SHMENUBARINFO bar{};
    bar.cbSize = sizeof bar;
    bar.hwndParent = pshidi->hDlg;
    bar.dwFlags = SHCMBF_EMPTYBAR;
    SHCreateMenuBar(&bar);
  }
  if (flags & SHIDIF_FULLSCREENNOMENUBAR) {
    shell.FillScreen(dialog, false);
  } else if (flags & (SHIDIF_SIZEDLG | SHIDIF_SIZEDLGFULLSCREEN)) {
    shell.FillScreen(dialog, dialog.menuBar || (flags & SHIDIF_SIZEDLG));
  }
  return TRUE;
}

BOOL SHDoneButton(HWND hwndRequester, DWORD dwState) {
  ShellWindow* window = ShellWindows::Instance().Find(hwndRequester);
  if (!window) return FALSE;
  ShellWindows::Instance().SetTitleButton(*window, dwState & SHDB_SHOW ? TitleButton::kOk
                                                   : dwState & SHDB_SHOWCANCEL
                                                       ? TitleButton::kCancel
                                                       : TitleButton::kNone);
  return TRUE;
}

BOOL SHCreateMenuBar(SHMENUBARINFO* pmbi) {
  pmbi->hwndMB = nullptr;
  if (pmbi->cbSize != sizeof *pmbi || !IsWindow(pmbi->hwndParent)) return FALSE;
  ShellWindows& shell = ShellWindows::Instance();
  ShellWindow& parent = shell.Adopt(pmbi->hwndParent);
  parent.menuBar = std::make_unique<tidewell::MenuBar>(*pmbi);
  shell.PlaceStrips(parent);
  pmbi->hwndMB = parent.menuBar->Window();
  return pmbi->hwndMB != nullptr;
}

HWND SHFindMenuBar(HWND hwnd) {
  const ShellWindow* window = ShellWindows::Instance().Find(hwnd);
  return window && window->menuBar ? window->menuBar->Window() : nullptr;
}

HBITMAP SHLoadDIBitmap(LPCTSTR szFileName) {
  return static_cast<HBITMAP>(
      LoadImageW(nullptr, szFileName, IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE | LR_CREATEDIBSECTION));
}

BOOL TransparentImage(HDC hdcDest, LONG DstX, LONG DstY, LONG DstCx, LONG DstCy, HANDLE hSrc,
                      LONG SrcX, LONG SrcY, LONG SrcCx, LONG SrcCy, COLORREF TransparentColor) {
  const auto copy = [&](HDC source) {
    return TransparentBlt(hdcDest, DstX, DstY, DstCx, DstCy, source, SrcX, SrcY, SrcCx, SrcCy,
                          TransparentColor);
  };
  if (GetObjectType(hSrc) != OBJ_BITMAP) return copy(static_cast<HDC>(hSrc));
  const tidewell::BitmapReader source(static_cast<HBITMAP>(hSrc));
  return copy(source.Dc());
}

DWORD_PTR SHGetFileInfo(LPCTSTR pszPath, DWORD dwFileAttributes, SHFILEINFOW* psfi, UINT cbFileInfo,
                        UINT uFlags) {
  wchar_t path[MAX_PATH] = {};
  const DWORD length = GetFullPathNameW(pszPath, MAX_PATH, path, nullptr);
  if (length == 0 || length >= MAX_PATH) return 0;
  return SHGetFileInfoW(path, dwFileAttributes, psfi, cbFileInfo, uFlags);
}
