// A page that is a table: its rows are built, shown, scrolled and saved by this one class. What is
// particular to a page is a short override beside its table. Windows only.
#pragma once

#include <optional>
#include <vector>

#include "pages/page_layout.h"
#include "pages/page_table.h"
#include "pages/scroll_range.h"
#include "pages/settings_page.h"

namespace tidewell {

class TablePage : public SettingsPage {
 public:
  TablePage(PageContext& context, PageTable table);

 protected:
  int GetTabCount() const override { return static_cast<int>(table_.size()); }
  int GetTabTitleId(int index) const override { return TabAt(index).titleId; }
  void OnCreate(HWND window) override;
  void OnShown(HWND window) override;
  void ShowTab(HWND window, int showCommand) override;
  void OnDestroy(HWND window) override;
  void OnLayout(HWND window) override;
  LRESULT OnLButtonDown(HWND window, WPARAM wParam, LPARAM lParam) override;
  LRESULT OnOther(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;
  void OnEraseBackground(HWND window, HDC dc) override;
  void OnFocusMoved(HWND control) override;
  bool OnPageKey(int direction) override;
  void OnWheel(int distance) override;

  // The controls of a tab are there now: what its rows alone cannot say is set.
  virtual void OnTabBuilt(int tab);

  const PageTable& Table() const { return table_; }

 private:
  struct TabPlace {
    std::vector<RowPlace> rows;
    ScrollRange scroll;
  };
  // What moves under the finger, and by what it is held.
  struct Drag {
    bool thumb;
    int grip;  // from its top to the finger
  };

  const PageTab& TabAt(int index) const { return table_[static_cast<std::size_t>(index)]; }
  TabPlace& SelectedPlace() { return places_[static_cast<std::size_t>(SelectedTab())]; }
  void BuildTab(int tab);
  RowPlace BuildRow(const Row& row, int y);
  void LayOutTab(std::size_t tab);
  void ShowCaption(const Row& row, const RowPlace& place) const;
  void FitScroll(TabPlace& place) const;
  void MoveControls(const TabPlace& place, UINT flags) const;
  ControlState ReadState(const Row& row) const;

  // After the selected tab's scroll offset changed.
  void Follow(bool changed);
  void DragTo(int y);
  int ViewHeight() const;
  RECT ThumbArea(const ScrollRange& scroll) const;

  PageTable table_;
  std::vector<TabPlace> places_;
  SIZE laidOut_{};  // the client size that the controls stand in
  std::optional<Drag> drag_;
};

}  // namespace tidewell
