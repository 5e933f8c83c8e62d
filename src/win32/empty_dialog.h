// A modal dialog whose template is empty: it makes its controls, if any, by itself. Windows only.
#pragma once

#include <windows.h>

namespace tidewell {

// WM_INITDIALOG brings `owner`. Returns what the dialog is ended with, or -1 when there is none.
inline INT_PTR RunEmptyDialog(HINSTANCE instance, HWND parent, DLGPROC procedure, void* owner) {
  static constexpr struct {
    DLGTEMPLATE header{WS_POPUP | WS_VISIBLE | WS_CAPTION | WS_CLIPCHILDREN, 0, 0, 0, 0, 0, 0};
    WORD menu = 0;
    WORD windowClass = 0;
    WORD title = 0;
  } kTemplate;
  return DialogBoxIndirectParamW(instance, &kTemplate.header, parent, procedure,
                                 reinterpret_cast<LPARAM>(owner));
}

}  // namespace tidewell
