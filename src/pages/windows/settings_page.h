// The base of every settings page: a window over the main list in which one group's settings are
// edited, with a row of tabs along its bottom. Windows only.
#pragma once

#include <windows.h>

#include <aygshell.h>
#include <commctrl.h>

#include <map>
#include <memory>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "pages/page_layout.h"
#include "pages/page_rules.h"
#include "pages/windows/page_window.h"
#include "ui/windows/icon_marker.h"
#include "ui/windows/key_navigation.h"
#include "win32/gdi.h"

namespace tidewell {

// A control's text is drawn in the page's font, so it is measured in it; in a device context that
// is kept, because getting a window's takes longer than measuring.
class FontMeasure final : public TextMeasure {
 public:
  explicit FontMeasure(HFONT font)
      : surface_(WindowDc(nullptr).Dc(), 1, 1), font_(surface_.Dc(), font) {}
  int Width(const std::wstring& text) override;
  int Height(const std::wstring& text, int width) override;

 private:
  MemoryBitmap surface_;
  Selected font_;
};

class SettingsPage : public PageWindow, private NavigationOwner {
 public:
  explicit SettingsPage(PageContext& context);
  SettingsPage(const SettingsPage&) = delete;
  SettingsPage& operator=(const SettingsPage&) = delete;
  ~SettingsPage() override;

  // Makes the window over its host's, fills and shows it. False when there is no window.
  bool Create(HWND host, const wchar_t* className, const std::wstring& caption);
  HWND Window() const override { return window_; }

  // The control factory. Controls begin hidden; places and `y` are in pixels, an id of 0 in place
  // of a text's leaves a control empty. A row returns where it stands, its height among it.
  void AddLabel(int id, int textId, const Rect& place, DWORD style);
  HWND AddEdit(int id, const std::wstring& text, const Rect& place, DWORD style = 0);
  void AddButton(int id, int textId, const Rect& place);
  HWND AddCheck(int id, const std::wstring& text, bool wraps, const Rect& place);
  HWND AddCombo(int id, bool editable, const Rect& place);
  HWND AddListView(int id, const Rect& place, DWORD style = 0);
  RowPlace AddCheckBox(int id, int textId, bool checked, int y);
  RowPlace AddComboRow(int labelId, int comboId, int textId, std::span<const Choice> items,
                       int selection, int y, bool editable);
  RowPlace AddPathRow(int labelId, int editId, int clearId, int browseId, int textId,
                      const std::wstring& path, int y);
  RowPlace AddTextRow(int labelId, int editId, int textId, const std::wstring& text, int y);
  RowPlace AddNotice(int labelId, int textId, int y);
  RowPlace AddPathEdit(int editId, int clearId, int browseId, const std::wstring& path, int y);
  void AddList(int id, std::span<const int> itemIds, int yOffset);
  RowPlace AddTwoRowPicker(const TwoRowPicker& picker, int y);

  void DrawColorSwatch(HDC dc, COLORREF color, int x, int y) const;
  // Every control of the ids from `firstId` to `lastId` that the page has.
  void ShowControlRange(HWND window, int firstId, int lastId, int showCommand) const;
  // Moves the selected row one place; without one, tells the user to select it first.
  void MoveListItem(HWND window, int listId, bool up);
  // The focus leaves what cannot be used any more.
  void Enable(std::span<const Enabling> rule);

  // Null where there is none, or none any more.
  HWND Control(int id) const;
  void Place(int id, const Rect& place) const;
  // What a control holds, by its kind; that of nothing where there is none.
  ControlState State(int id) const;
  void SetState(int id, const ControlState& state) const;
  // A path that is longer than its field is told by its end.
  void ShowEndOfPath(int id) const;
  // Replaces the lines of a drop-down list; none is selected.
  void SetChoices(int id, const Choices& choices) const;
  void SetTextOfControl(int id, const std::wstring& text) const;
  // Empty for the id 0.
  std::wstring Text(int textId) const;

  PageContext& Context() const { return context_; }
  const ScreenScale& Scale() const { return context_.scale; }
  HFONT TextFont() const { return font_.Get(); }
  // The client area, and text measured in the page's font.
  PageMetrics Metrics();
  // Of the client area above the row of tabs.
  int ViewHeight() const;

 protected:
  virtual int GetTabCount() const = 0;
  virtual int GetTabTitleId(int index) const = 0;
  // Builds the controls, none of them visible; those behind the first tab can follow in OnPainted.
  virtual void OnCreate(HWND window) = 0;
  // The first tab can be seen; the page is not handed to its host yet.
  virtual void OnPainted(HWND window);
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

  HWND Tabs() const { return tabs_; }
  int SelectedTab() const;

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
  HWND MakeControl(const wchar_t* windowClass, DWORD style, int id, const std::wstring& text,
                   const Rect& place);
  void AddStrip(const Row& row, const Rect& place);
  IconMarker* FindStrip(HWND control) const;
  void AddPathControls(const std::wstring& path, std::span<const ControlPlace> places);

  HWND window_ = nullptr;
  std::map<int, HWND> controls_;  // by their ids; the system would ask for all windows
  HWND menuBar_ = nullptr;
  std::wstring className_;
  SHACTIVATEINFO activation_{};
  HWND tabs_ = nullptr;
  HINSTANCE instance_ = nullptr;

  PageContext& context_;
  Font font_;
  FontMeasure measure_{font_.Get()};
  std::vector<std::unique_ptr<IconMarker>> strips_;
  KeyNavigation navigation_{*this};
  HWND focused_ = nullptr;      // the control that has the focus now
  HWND lastFocused_ = nullptr;  // or had it last
};

}  // namespace tidewell
