// A row of tabs below a window, in a device's look: flat tabs on one baseline, the selected one
// open to the window above it, and arrows for a finger where not all of them fit. The system's
// control keeps the tabs and answers its keys; its own painting and its small arrows are not seen.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "platform/desktop/subclass.h"

namespace tidewell {

class TabRow final : public Subclass {
 public:
  // For a window that is being created. False when it must not be: the small arrows of a row of
  // tabs.
  static bool Attend(HWND window, const CREATESTRUCTW& created);

 private:
  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;
  LRESULT AfterSystem(UINT message, WPARAM wParam, LPARAM lParam);
  void OnPointerDown(POINT point);
  void OnPaint();
  void DrawTab(HDC dc, int index) const;
  void DrawArrow(HDC dc, bool right) const;
  // Selects a tab as the system's control does for a tap; the window may refuse.
  void Select(int index);
  void Scroll(int first);
  void ShowSelected();
  void Measure();

  int Count() const { return static_cast<int>(widths_.size()); }
  int SelectedTab() const;
  std::wstring TitleOf(int index) const;
  // Of the tabs from the first of the two up to the second.
  int Length(int from, int to) const;
  bool Scrolls() const;
  // What the arrows leave for the tabs.
  RECT TabsArea() const;
  RECT ArrowArea(bool right) const;
  // May lie outside of the row, where it is scrolled.
  RECT TabArea(int index) const;
  // The first tab that is shown when the row is scrolled to its end.
  int LastFirst() const;

  std::vector<int> widths_;  // of each tab, in pixels
  int first_ = 0;            // the leftmost tab that is shown
};

}  // namespace tidewell
