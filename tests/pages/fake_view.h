// A page without a window: shows what its rows say, and is worked as a finger would.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "pages/page_rules.h"

namespace tidewell {

class FakeView final : public PageView {
 public:
  explicit FakeView(std::unique_ptr<PageRules> rules)
      : rules_(std::move(rules)), tabs_(rules_->Tabs()) {
    for (std::size_t tab = 0; tab < tabs_.size(); ++tab) {
      for (const Row* row : tabs_[tab].Rows()) {
        states_[row->controlId] = StateOf(*row);
        choices_[row->controlId] = row->choices;
      }
      for (const int id : tabs_[tab].ControlIds()) enabled_[id] = true;
      rules_->OnBuilt(*this, static_cast<int>(tab));
    }
    Ask();
  }

  void Tap(int id) {
    states_[id].checked = !states_[id].checked;
    Tell({id, PageEventKind::kClicked});
  }
  // A line of a drop-down list.
  void Choose(int id, int line) {
    SetState(id, ControlState::OfLine(line));
    Tell({id, PageEventKind::kChosen});
    Tell({id, PageEventKind::kChanged});
  }
  // A line of an item list; kNoChoice for none.
  void Select(int listId, int line, PageEventKind kind = PageEventKind::kSelected) {
    selected_[listId] = line;
    Tell({listId, kind, line});
  }
  // Selects an option, leaves its editor with a state and selects none.
  void Edit(int listId, int line, const ControlState& state) {
    for (const PageTab& tab : tabs_) {
      const auto* list = std::get_if<OptionList>(&tab.body);
      if (!list || list->listId != listId) continue;
      tidewell::Store(list->options[static_cast<std::size_t>(line)].editor, state);
    }
    Tell({listId, PageEventKind::kDeselected, line});
  }
  // A strip of icons: these are on now.
  void ChooseIcons(int id, std::uint32_t codes) {
    states_[id].data = codes;
    StoreRows([id](const Row& row) { return row.controlId == id; });
    Tell({id, PageEventKind::kChosen});
  }
  void Turn(int tab) { rules_->OnShown(*this, tab); }
  // The page closes.
  void Close() {
    StoreRows([](const Row& row) { return row.controlId && row.stored != Stored::kCodes; });
    rules_->Store(*this);
  }
  // Those of the ids from `first` to `last` that can be used.
  std::vector<int> Enabled(int first, int last) const {
    std::vector<int> ids;
    for (auto at = enabled_.lower_bound(first); at != enabled_.upper_bound(last); ++at) {
      if (at->second) ids.push_back(at->first);
    }
    return ids;
  }
  const Choices& ChoicesOf(int id) { return choices_[id]; }

  ControlState State(int id) const override {
    const auto found = states_.find(id);
    return found == states_.end() ? ControlState() : found->second;
  }
  void SetState(int id, const ControlState& state) override {
    states_[id] = state;
    const auto line = static_cast<std::size_t>(state.selection);
    if (line >= choices_[id].size()) return;
    states_[id].data = choices_[id][line].data;
    states_[id].text = choices_[id][line].text;
  }
  void SetChoices(int id, const Choices& choices) override { choices_[id] = choices; }
  bool Has(int id) const override { return enabled_.contains(id); }
  std::vector<ListLine> Lines(int listId) const override { return lines_.at(listId); }
  ListLine Line(int listId, int line) const override {
    return lines_.at(listId).at(static_cast<std::size_t>(line));
  }
  void SetLines(int listId, const std::vector<ListLine>& lines) override {
    lines_[listId] = lines;
    selected_.erase(listId);
  }
  void SetLook(int, int line, const LineLook& look) override { looks[line] = look; }
  int SelectedLine(int listId) const override {
    const auto found = selected_.find(listId);
    return found == selected_.end() ? kNoChoice : found->second;
  }
  void SelectLine(int listId, int line) override {
    selected_[listId] = line;
    Tell({listId, PageEventKind::kSelected, line});
  }
  void MoveLine(int listId, bool up) override {
    int& selected = selected_.at(listId);
    const auto line = lines_[listId].begin() + selected;
    selected += up ? -1 : 1;
    std::iter_swap(line, lines_[listId].begin() + selected);
  }
  void Tick(int listId, int line) {
    ListLine& ticked = lines_[listId][static_cast<std::size_t>(line)];
    ticked.ticked = !ticked.ticked;
    Tell({listId, PageEventKind::kTicked, line});
  }
  void Repaint() override { ++repaints; }

  int repaints = 0;
  std::map<int, LineLook> looks;  // of any list

 private:
  template <typename Which>
  void StoreRows(Which which) {
    for (const PageTab& tab : tabs_) {
      for (const Row* row : tab.Rows()) {
        if (which(*row)) tidewell::Store(*row, states_[row->controlId]);
      }
    }
  }
  void Tell(const PageEvent& event) {
    rules_->OnEvent(*this, event);
    Ask();
  }
  void Ask() {
    for (const Enabling& each : rules_->Enabled(*this)) {
      const auto control = enabled_.find(each.id);
      if (control != enabled_.end()) control->second = each.enabled;
    }
  }

  std::unique_ptr<PageRules> rules_;
  PageTabs tabs_;
  std::map<int, ControlState> states_;
  std::map<int, Choices> choices_;
  std::map<int, std::vector<ListLine>> lines_;
  std::map<int, int> selected_;
  std::map<int, bool> enabled_;
};

}  // namespace tidewell
