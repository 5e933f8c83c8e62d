// What a device's shell offers to programs, under its own names, for systems that lack it. A
// device's own header takes the place of this one.
#pragma once

#include <windows.h>

#include <shellapi.h>

#ifdef __cplusplus
extern "C" {
#endif

// The caption bears an OK button, which sends WM_COMMAND with IDOK.
#define WS_EX_CAPTIONOKBTN 0x80000000L

// wParam of a WM_SETTINGCHANGE after the screen was turned.
#define SETTINGCHANGE_RESET 0x3001

// ---- Activation and the input panel

typedef struct {
  DWORD cbSize;
  HWND hwndLastFocus;
  UINT fSipUp : 1;
  UINT fSipOnDeactivation : 1;
  UINT fActive : 1;
  UINT fReserved : 29;
} SHACTIVATEINFO, *PSHACTIVATEINFO;

BOOL SHHandleWMActivate(HWND hwnd, WPARAM wParam, LPARAM lParam, SHACTIVATEINFO* psai,
                        DWORD dwFlags);
BOOL SHHandleWMSettingChange(HWND hwnd, WPARAM wParam, LPARAM lParam, SHACTIVATEINFO* psai);

#define SHFS_SHOWTASKBAR 0x0001
#define SHFS_HIDETASKBAR 0x0002
#define SHFS_SHOWSIPBUTTON 0x0004
#define SHFS_HIDESIPBUTTON 0x0008
#define SHFS_SHOWSTARTICON 0x0010
#define SHFS_HIDESTARTICON 0x0020
BOOL SHFullScreen(HWND hwndRequester, DWORD dwState);

typedef enum tagSIPSTATE {
  SIP_UP = 0,
  SIP_DOWN,
  SIP_FORCEDOWN,
  SIP_UNCHANGED,
  SIP_INPUTDIALOG
} SIPSTATE;
BOOL SHSipPreference(HWND hwnd, SIPSTATE st);

#define SIPF_OFF 0x00000000
#define SIPF_ON 0x00000001
#define SIPF_DOCKED 0x00000002
#define SIPF_LOCKED 0x00000004
#ifndef SPI_SETSIPINFO
#define SPI_SETSIPINFO 224
#define SPI_GETSIPINFO 225
#endif
typedef struct tagSIPINFO {
  DWORD cbSize;
  DWORD fdwFlags;
  RECT rcVisibleDesktop;
  RECT rcSipRect;
  DWORD dwImDataSize;
  void* pvImData;
} SIPINFO;
BOOL SHSipInfo(UINT uiAction, UINT uiParam, PVOID pvParam, UINT fWinIni);

// ---- Full-screen dialogs

#define SHIDIM_FLAGS 0x0001

#define SHIDIF_DONEBUTTON 0x0001
#define SHIDIF_SIZEDLG 0x0002
#define SHIDIF_SIZEDLGFULLSCREEN 0x0004
#define SHIDIF_SIPDOWN 0x0008
#define SHIDIF_FULLSCREENNOMENUBAR 0x0010
#define SHIDIF_EMPTYMENU 0x0020
#define SHIDIF_WANTSCROLLBAR 0x0040
#define SHIDIF_CANCELBUTTON 0x0080

typedef struct tagSHINITDIALOGINFO {
  DWORD dwMask;
  HWND hDlg;
  DWORD dwFlags;
} SHINITDLGINFO, *PSHINITDLGINFO;
BOOL SHInitDialog(PSHINITDLGINFO pshidi);

#define SHDB_SHOW 0x0001
#define SHDB_HIDE 0x0002
#define SHDB_SHOWCANCEL 0x0004
BOOL SHDoneButton(HWND hwndRequester, DWORD dwState);

// ---- Menu bars

#define SHCMBF_EMPTYBAR 0x0001
#define SHCMBF_HIDDEN 0x0002
#define SHCMBF_HIDESIPBUTTON 0x0004
#define SHCMBF_COLORBK 0x0008
#define SHCMBF_HMENU 0x0010

typedef struct tagSHMENUBARINFO {
  DWORD cbSize;
  HWND hwndParent;
  DWORD dwFlags;
  UINT nToolBarId;
  HINSTANCE hInstRes;
  int nBmpId;
  int cBmpImages;
  HWND hwndMB;
  COLORREF clrBk;
} SHMENUBARINFO, *PSHMENUBARINFO;
BOOL SHCreateMenuBar(SHMENUBARINFO* pmbi);
HWND SHFindMenuBar(HWND hwnd);

// Sent to a menu bar. wParam is 0 for the menus; for the others lParam is the command of a button.
#define SHCMBM_SETSUBMENU (WM_USER + 400)  // wParam the command, lParam the new pop-up menu
#define SHCMBM_GETSUBMENU (WM_USER + 401)
#define SHCMBM_GETMENU (WM_USER + 402)

// ---- Pictures

HBITMAP SHLoadDIBitmap(LPCTSTR szFileName);

// Copies a picture (an HBITMAP, or the HDC that holds one) but for its pixels of one colour.
BOOL TransparentImage(HDC hdcDest, LONG DstX, LONG DstY, LONG DstCx, LONG DstCy, HANDLE hSrc,
                      LONG SrcX, LONG SrcY, LONG SrcCx, LONG SrcCy, COLORREF TransparentColor);

// The icon of a file or folder. A desktop's own knows no path without a drive.
#undef SHGetFileInfo
DWORD_PTR SHGetFileInfo(LPCTSTR pszPath, DWORD dwFileAttributes, SHFILEINFOW* psfi, UINT cbFileInfo,
                        UINT uFlags);

#ifdef __cplusplus
}
#endif
