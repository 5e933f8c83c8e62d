// A modal dialog over the whole screen: title strip, white paper, two soft keys. Windows only.
#pragma once

#include <windows.h>

#include <aygshell.h>

#include <string>

#include "platform/language.h"
#include "platform/machine.h"
#include "platform/scale.h"
#include "win32/gdi.h"

namespace tidewell {

// What a dialog is given by whoever opens it.
struct DialogContext {
  HWND parent = nullptr;
  const Machine& machine;
  const Language& language;
  const ScreenScale& scale;
};

class FullScreenDialog {
 public:
  FullScreenDialog(const FullScreenDialog&) = delete;
  FullScreenDialog& operator=(const FullScreenDialog&) = delete;

 protected:
  struct SoftKeys {
    std::wstring left;   // sends IDOK
    std::wstring right;  // sends IDCANCEL, which closes the dialog with 0
  };

  FullScreenDialog(const DialogContext& context, std::wstring title, SoftKeys keys);
  virtual ~FullScreenDialog() = default;

  // Returns when the dialog has been closed, with what it was closed with.
  INT_PTR Run();
  void Close(INT_PTR result) { EndDialog(window_, result); }

  HWND Window() const { return window_; }
  const ScreenScale& Scale() const { return scale_; }
  HFONT TextFont() const { return font_.Get(); }
  void EnableLeftKey(bool enable);
  // A control of the dialog in its type face.
  HWND MakeControl(const wchar_t* windowClass, DWORD style, int id, const std::wstring& text);
  // A text of one line, in smaller letters, that names what stands beside it.
  HWND MakeLabel(int id, const std::wstring& text);

  // Makes the controls; OnLayout follows, then OnShown once.
  virtual void OnCreate() = 0;
  virtual void OnLayout(int width, int height) = 0;
  virtual void OnShown() = 0;
  virtual void OnCommand(int id, int notification) = 0;
  virtual LRESULT OnNotify(const NMHDR& header) = 0;
  virtual void OnMeasureItem(MEASUREITEMSTRUCT& item) = 0;
  virtual void OnDrawItem(const DRAWITEMSTRUCT& item) = 0;

 private:
  static INT_PTR CALLBACK DialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  INT_PTR Handle(UINT message, WPARAM wParam, LPARAM lParam);
  void OnInit();
  void MakeSoftKeys();
  void LayOut();

  HWND parent_;
  const ScreenScale& scale_;
  std::wstring title_;
  SoftKeys keys_;
  HWND window_ = nullptr;
  HWND menuBar_ = nullptr;
  SHACTIVATEINFO activation_{};
  Font font_;
  Font labelFont_;
};

}  // namespace tidewell
