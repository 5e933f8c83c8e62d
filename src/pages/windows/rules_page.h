// The window of a page: makes the bodies of its tabs, tells its rules what happens in them, and is
// the view through which the rules answer. Windows only.
#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "pages/page_rules.h"
#include "pages/windows/settings_page.h"
#include "pages/windows/tab_body.h"

namespace tidewell {

class RulesPage final : public SettingsPage, private PageView {
 public:
  RulesPage(PageContext& context, std::unique_ptr<PageRules> rules);

 private:
  struct BuiltTab {
    std::unique_ptr<TabBody> body;
    bool built = false;
  };

  int GetTabCount() const override { return static_cast<int>(tabs_.size()); }
  int GetTabTitleId(int index) const override;
  void OnCreate(HWND window) override;
  void OnPainted(HWND window) override;
  void ShowTab(HWND window, int showCommand) override;
  void OnDestroy(HWND window) override;
  void OnLayout(HWND window) override;
  LRESULT OnLButtonDown(HWND window, WPARAM wParam, LPARAM lParam) override;
  LRESULT OnCommand(HWND window, WPARAM wParam, LPARAM lParam) override;
  LRESULT OnNotify(HWND window, NMHDR* header) override;
  LRESULT OnOther(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;
  LRESULT OnPreviewMessage1(HWND window, WPARAM wParam, LPARAM lParam) override;
  LRESULT OnPreviewMessage2(HWND window, WPARAM wParam, LPARAM lParam) override;
  void OnEraseBackground(HWND window, HDC dc) override;
  void OnFocusMoved(HWND control) override;
  bool OnPageKey(int direction) override;
  void OnWheel(int distance) override;

  bool Has(int id) const override { return Control(id) != nullptr; }
  ControlState State(int id) const override { return SettingsPage::State(id); }
  void SetState(int id, const ControlState& state) override;
  void SetChoices(int id, const Choices& choices) override;
  std::vector<ListLine> Lines(int listId) const override;
  ListLine Line(int listId, int line) const override;
  void SetLines(int listId, const std::vector<ListLine>& lines) override;
  void SetLook(int listId, int line, const LineLook& look) override;
  int SelectedLine(int listId) const override;
  void SelectLine(int listId, int line) override;
  void MoveLine(int listId, bool up) override;
  void Repaint() override;

  TabBody& Body(int tab) const { return *bodies_[static_cast<std::size_t>(tab)].body; }
  TabBody& SelectedBody() const { return Body(SelectedTab()); }
  void BuildTab(int tab);
  // Does what the rules are not to be told of.
  template <typename Act>
  void Silently(Act act) {
    const bool wasSilent = std::exchange(silent_, true);
    act();
    silent_ = wasSilent;
  }
  // Tells the rules, and asks them what can be used now.
  void Tell(const PageEvent& event);
  void OnItemChanged(const NMLISTVIEW& change);
  bool IsDecision(int id, WORD notification);
  LRESULT OnIconChosen(int id);
  void PaintRoom(HDC dc, const RECT& place);

  std::unique_ptr<PageRules> rules_;
  PageTabs tabs_;
  std::vector<BuiltTab> bodies_;
  SIZE laidOut_{};        // the client size that the controls stand in
  bool decided_ = false;  // a line of the open drop-down list
  bool silent_ = false;   // the page and its rules change the controls themselves
};

}  // namespace tidewell
