// The base of every settings page: a window over the main list in which one group's settings are
// edited, with a row of tabs along its bottom. Windows only.
#pragma once

#include <windows.h>

#include <aygshell.h>
#include <commctrl.h>

#include <memory>
#include <span>
#include <string>
#include <utility>

#include "pages/hosted_page.h"
#include "pages/page_controls.h"
#include "pages/page_layout.h"
#include "platform/gdi.h"

namespace tidewell {

// Sent to a page by the preview controls in it.
inline constexpr UINT kPreviewMessage1 = 1788;
inline constexpr UINT kPreviewMessage2 = 1789;

// What a page owns beyond the base's own things; deleted with the page.
class PageExtra {
 public:
  virtual ~PageExtra() = default;
};

class SettingsPage : public HostedPage, private ControlsOwner {
 public:
  explicit SettingsPage(PageContext& context);
  SettingsPage(const SettingsPage&) = delete;
  SettingsPage& operator=(const SettingsPage&) = delete;
  ~SettingsPage() override;

  // Makes the window over its host's, fills and shows it. False when there is no window.
  bool Create(HWND host, const wchar_t* className, const std::wstring& caption);
  HWND Window() const override { return window_; }

 protected:
  virtual int GetTabCount() const = 0;
  virtual int GetTabTitleId(int index) const = 0;
  // Builds the controls, none of them visible.
  virtual void OnCreate(HWND window) = 0;
  // The page has been painted for the first time; what its first tab does not show can be built
  // now.
  virtual void OnShown(HWND window);
  // Shows or hides the controls of the tab that is selected now.
  virtual void ShowTab(HWND window, int showCommand) = 0;
  // Writes the state of every control that there is into the settings.
  virtual void OnDestroy(HWND window) = 0;
  virtual void OnPaint(HWND window);
  virtual LRESULT OnLButtonDown(HWND window, WPARAM wParam, LPARAM lParam);
  virtual LRESULT OnDrawItem(HWND window, WPARAM wParam, LPARAM lParam);
  virtual LRESULT OnMeasureItem(HWND window, WPARAM wParam, LPARAM lParam);
  virtual LRESULT OnPreviewMessage2(HWND window, WPARAM wParam, LPARAM lParam);
  virtual LRESULT OnPreviewMessage1(HWND window, WPARAM wParam, LPARAM lParam);
  virtual LRESULT OnCommand(HWND window, WPARAM wParam, LPARAM lParam);
  // The window was moved or resized.
  virtual void OnLayout(HWND window);
  virtual LRESULT OnNotify(HWND window, NMHDR* header);
  // Any message that the page does not know.
  virtual LRESULT OnOther(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  virtual void OnEraseBackground(HWND window, HDC dc);

  void OnFocusMoved(HWND control) override;
  bool OnPageKey(int direction) override;
  void OnWheel(int distance) override;

  // The control factory. Controls begin hidden; `y` is in pixels. A row returns where it stands,
  // its height among it.
  void AddLabel(int id, int textId, int x, int y, int width, int height, DWORD style);
  void AddEdit(int id, const std::wstring& text, int x, int y, int width, int height);
  void AddButton(int id, int textId, int x, int y, int width, int height);
  RowPlace AddCheckBox(int id, int textId, bool checked, int y);
  RowPlace AddComboRow(int labelId, int comboId, int textId, std::span<const Choice> items,
                       int selection, int y, bool editable);
  RowPlace AddPathRow(int labelId, int editId, int clearId, int browseId, int textId,
                      const std::wstring& path, int y);
  RowPlace AddPathEdit(int editId, int clearId, int browseId, const std::wstring& path, int y);
  void AddList(int id, std::span<const int> itemIds, int yOffset);

  void DrawColorSwatch(HDC dc, COLORREF color, int x, int y) const;
  // Every control of the ids from `firstId` to `lastId` that the page has.
  void ShowControlRange(HWND window, int firstId, int lastId, int showCommand) const;
  // Moves the selected row one place; without one, tells the user to select it first.
  void MoveListItem(HWND window, int listId, bool up);
  void Enable(std::span<const Enabling> rule) const;

  HWND Control(int id) const { return GetDlgItem(window_, id); }
  LRESULT Send(int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
  std::wstring TextOfControl(int id) const;
  void SetTextOfControl(int id, const std::wstring& text) const;
  void SetPathOfControl(int id, const std::wstring& path) const;
  // A path that is longer than its field is told by its end.
  void ShowEndOfPath(int id) const;
  bool IsChecked(int id) const;
  std::wstring Text(int textId) const;
  void ShowMessage(int textId, int captionId) const;

  PageContext& Context() const { return context_; }
  const ScreenScale& Scale() const { return context_.scale; }
  HFONT TextFont() const { return font_.Get(); }
  HWND Tabs() const { return tabs_; }
  int SelectedTab() const;
  // The page destroys or deletes these when it goes.
  void OwnImageList(HIMAGELIST images) { imageList_ = images; }
  void Own(std::unique_ptr<PageExtra> extra) { extra_ = std::move(extra); }
  HWND FocusedControl() const { return focused_; }
  // The client area, and text measured in the page's font.
  PageMetrics Metrics(TextMeasure& measure) const;

 private:
  static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT Build();
  LRESULT AskToClose() const;
  LRESULT TakeDown();
  LRESULT Turn(NMHDR* header);
  void MakeMenuBar();
  void MakeTabRow();
  Rect TabRowPlace() const;
  void InvalidateFocus(HWND control) const;
  RECT FocusFrame(HWND control) const;
  HWND MakeControl(const wchar_t* windowClass, DWORD style, int id, const std::wstring& text,
                   const Rect& place);
  void MakePathControls(const std::wstring& path, std::span<const ControlPlace> places);
  void MakeButton(int id, int textId, const Rect& place);

  HWND window_ = nullptr;
  HWND menuBar_ = nullptr;
  HIMAGELIST imageList_ = nullptr;  // of a page that shows icons
  std::wstring className_;
  SHACTIVATEINFO activation_{};
  HWND tabs_ = nullptr;
  HINSTANCE instance_ = nullptr;
  std::unique_ptr<PageExtra> extra_;

  PageContext& context_;
  Font font_;
  PageControls controls_{*this};
  HWND focused_ = nullptr;      // the control that has the focus now
  HWND lastFocused_ = nullptr;  // or had it last
};

// A control's text is drawn in the page's font, so it is measured in it.
class FontMeasure final : public TextMeasure {
 public:
  FontMeasure(HWND window, HFONT font) : dc_(window), font_(dc_.Dc(), font) {}
  int Width(const std::wstring& text) override;
  int Height(const std::wstring& text, int width) override;

 private:
  WindowDc dc_;
  Selected font_;
};

}  // namespace tidewell
