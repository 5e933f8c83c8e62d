// A modal dialog over the whole screen: title strip, white paper, two soft keys. Windows only.
#pragma once

#include <windows.h>

#include <aygshell.h>

#include <optional>
#include <string>
#include <vector>

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
  struct MenuEntry {
    int command = 0;  // 0 for a dividing line
    std::wstring text;
  };
  struct SoftKeys {
    std::wstring left;   // sends IDOK
    std::wstring right;  // sends IDCANCEL, which closes the dialog with 0
    // Where there are entries, the right key is called "Menu" and opens them.
    std::vector<MenuEntry> menu = {};
  };

  static SoftKeys OkAndCancel(const Language& language);

  FullScreenDialog(const DialogContext& context, std::wstring title, SoftKeys keys);
  virtual ~FullScreenDialog() = default;

  // Returns when the dialog has been closed, with what it was closed with.
  INT_PTR Run();
  void Close(INT_PTR result) { EndDialog(window_, result); }

  HWND Window() const { return window_; }
  const ScreenScale& Scale() const { return scale_; }
  HFONT TextFont() const { return font_.Get(); }
  HFONT LabelFont() const { return labelFont_.Get(); }
  void EnableLeftKey(bool enable);
  // Marks one of the menu's entries from `first` to `last`.
  void CheckEntry(int first, int last, int checked);
  // A control of the dialog in its type face.
  HWND MakeControl(const wchar_t* windowClass, DWORD style, int id, const std::wstring& text);
  HWND MakeHiddenControl(const wchar_t* windowClass, DWORD style, int id, const std::wstring& text);
  // A text of one line, in smaller letters, that names what stands beside it.
  HWND MakeLabel(int id, const std::wstring& text);

  // Sees each message first; a value is what the dialog procedure returns.
  virtual std::optional<INT_PTR> OnMessage(UINT /*message*/, WPARAM /*wParam*/, LPARAM /*lParam*/) {
    return std::nullopt;
  }
  // Makes the controls; OnLayout follows, then OnShown once.
  virtual void OnCreate() = 0;
  virtual void OnLayout(int width, int height) = 0;
  virtual void OnShown() = 0;
  virtual void OnCommand(int id, int notification) = 0;
  virtual LRESULT OnNotify(const NMHDR& /*header*/) { return 0; }
  virtual void OnMeasureItem(MEASUREITEMSTRUCT& /*item*/) {}
  virtual void OnDrawItem(const DRAWITEMSTRUCT& /*item*/) {}

 private:
  static INT_PTR CALLBACK DialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  INT_PTR Handle(UINT message, WPARAM wParam, LPARAM lParam);
  void OnInit();
  void MakeSoftKeys();
  void FillMenu();
  void LayOut();

  HWND parent_;
  const ScreenScale& scale_;
  std::wstring title_;
  SoftKeys keys_;
  HWND window_ = nullptr;
  HWND menuBar_ = nullptr;
  HMENU menu_ = nullptr;  // of the right key, the menu bar's own
  SHACTIVATEINFO activation_{};
  RECT laidOut_{};  // the client area that the controls are placed in
  Font font_;
  Font labelFont_;
};

}  // namespace tidewell
