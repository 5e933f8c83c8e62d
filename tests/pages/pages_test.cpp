// The pages as windows: what each shows, what a finger does to it, what it stores.
#include <algorithm>

#include "pages/option_layout.h"
#include "pages/windows/list_lines.h"
#include "platform/text.h"
#include "tests/pages/page_host.h"
#include "tests/support/setting_lines.h"

namespace tidewell {
namespace {

// On a device that has every row.
class EachPage : public PageHost, public testing::WithParamInterface<int> {
 protected:
  EachPage() {
    UseScreen(480, 640, 192);
    InstallCompanion();
    InstallOtherPrograms();
    ReadTabs();
  }
  void OpenPage() { Open(static_cast<PageIndex>(GetParam())); }
  // As the settings make them now.
  void ReadTabs() {
    tabs_ = kPages[static_cast<std::size_t>(GetParam())].make(context)->Tabs();
    storing_.clear();
    for (const PageTab& tab : tabs_) {
      for (const Row* row : tab.Rows()) {
        if (row->stored < Stored::kByRules && row->controlId) storing_.push_back(row);
      }
    }
  }
  ControlState StateOfControl(const Row& row) const {
    ControlState state;
    if (row.kind == RowKind::kCheck) {
      state.checked = IsChecked(row.controlId);
    } else if (row.kind == RowKind::kList) {
      state.selection = Selection(row.controlId);
      if (state.selection == kNoChoice) return state;
      const Choice& chosen = row.choices[static_cast<std::size_t>(state.selection)];
      state.data = chosen.data;
      if (row.stored == Stored::kName) state.text = chosen.text;
    } else if (row.kind == RowKind::kOrder) {
      for (const ListLine& line : LinesOf(Control(row.controlId))) {
        state.order.push_back(static_cast<std::uint32_t>(line.data));
      }
    } else {
      state.text = TextOfControl(row.controlId);
    }
    return state;
  }
  void Change(const Row& row) {
    const int last = static_cast<int>(row.choices.size()) - 1;
    if (row.kind == RowKind::kOrder) {
      SelectLine(row.controlId, 0);
      TapControl(row.browseId);
    } else if (row.kind == RowKind::kPath) {
      dialogs.answer = L"\\chosen";
      TapControl(row.browseId);
    } else if (row.kind == RowKind::kCheck) {
      TapControl(row.controlId);
    } else if (row.kind == RowKind::kList) {
      Choose(row.controlId, Selection(row.controlId) == last ? 0 : last);
    } else {
      Type(row.controlId, L"0x50");
    }
  }
  void SelectLine(int list, int line) const {
    ListView_SetItemState(Control(list), line, LVIS_SELECTED, LVIS_SELECTED);
  }
  // Of all settings but those of a row.
  std::vector<std::wstring> OtherValues(const Row& row) {
    std::vector<std::wstring> values;
    for (DwordSetting* each : SettingLines(store).dwords) {
      const bool own = each == row.number || std::ranges::count(row.order, each) > 0;
      if (!own) values.push_back(FormatDecimal(each->Signed()));
    }
    for (StringSetting* each : SettingLines(store).strings) {
      if (each != row.text) values.push_back(each->Value());
    }
    return values;
  }
  // The setting has what its row makes of a control's state.
  static void ExpectStored(const Row& row, const ControlState& state) {
    const std::uint32_t number = row.number ? row.number->Value() : 0;
    const std::wstring text = row.text ? row.text->Value() : L"";
    Store(row, state);
    EXPECT_EQ(number, row.number ? row.number->Value() : 0) << row.controlId;
    EXPECT_EQ(text, row.text ? row.text->Value() : L"") << row.controlId;
  }

  PageTabs tabs_;
  std::vector<const Row*> storing_;  // something by themselves
};

INSTANTIATE_TEST_SUITE_P(Pages, EachPage, testing::Range(0, kPageCount));

TEST_P(EachPage, ShowsEveryStoredValueAndStoresWhatItShows) {
  for (const std::uint32_t value : {0u, 1u, 3u, 16u, 480u, ~0u}) {
    std::vector<ControlState> expected;
    for (const Row* row : storing_) {
      if (row->number) row->number->Set(value);
      if (row->text) row->text->Set(value ? L"FAMILY" : L"");
    }
    ReadTabs();
    for (const Row* row : storing_) expected.push_back(StateOf(*row));
    OpenPage();
    for (std::size_t i = 0; i < storing_.size(); ++i) {
      if (storing_[i]->stored == Stored::kName && expected[i].selection >= 0) {
        const auto line = static_cast<std::size_t>(expected[i].selection);
        expected[i].text = storing_[i]->choices[line].text;
      }
      EXPECT_EQ(StateOfControl(*storing_[i]), expected[i]) << storing_[i]->controlId;
    }
    // What has lost its control stores nothing.
    if (!storing_.empty()) {
      DestroyWindow(Control(storing_[0]->controlId));
      if (storing_[0]->number) storing_[0]->number->Set(77);
      if (storing_[0]->text) storing_[0]->text->Set(L"kept");
    }
    Close();
    for (std::size_t i = 1; i < storing_.size(); ++i) ExpectStored(*storing_[i], expected[i]);
    if (storing_.empty()) continue;
    EXPECT_EQ(storing_[0]->number ? storing_[0]->number->Value() : 77, 77u);
    EXPECT_EQ(storing_[0]->text ? storing_[0]->text->Value() : L"kept", L"kept");
  }
}

// From below: a control that greys others stands above them.
TEST_P(EachPage, ShowsATabAtATimeAndStoresWhatAFingerChanges) {
  store.root.AutoHeight.Set(0);
  OpenPage();
  std::vector<std::pair<const Row*, ControlState>> changed;
  for (std::size_t tab = 0; tab < tabs_.size(); ++tab) {
    Turn(static_cast<int>(tab));
    for (auto row = storing_.rbegin(); row != storing_.rend(); ++row) {
      const int id = (*row)->controlId;
      const std::vector<int> ids = tabs_[tab].ControlIds();
      EXPECT_EQ(IsShown(id), std::binary_search(ids.begin(), ids.end(), id)) << id;
      if (!IsShown(id) || !IsWindowEnabled(Control(id)) || (*row)->kind == RowKind::kPath) continue;
      const ControlState before = StateOfControl(**row);
      Change(**row);
      EXPECT_NE(StateOfControl(**row), before) << id;
      changed.emplace_back(*row, StateOfControl(**row));
    }
  }
  Close();
  const auto isTried = [](const Row* row) { return row->kind != RowKind::kPath; };
  EXPECT_GE(std::ssize(changed),
            std::min(std::ranges::count_if(storing_, isTried), std::ptrdiff_t{4}));
  for (const auto& [row, state] : changed) ExpectStored(*row, state);
}

// In turn by selecting another, by turning to another tab and by closing the page.
TEST_P(EachPage, ShowsEveryOptionAndStoresItAloneHoweverItIsLeft) {
  store.root.dHeightLimit.Set(1000);
  OpenPage();
  int options = 0;
  for (std::size_t tab = 0; tab < tabs_.size(); ++tab) {
    const auto* list = std::get_if<OptionList>(&tabs_[tab].body);
    for (std::size_t line = 0; list && line < list->options.size(); ++line) {
      Row row = list->options[line].editor;
      row.controlId = StateControlOf(list->options[line], list->editor);
      row.browseId = row.kind == RowKind::kOrder ? list->editor.downId : list->editor.browseId;
      Turn(static_cast<int>(tab));
      SelectLine(list->listId, static_cast<int>(line));
      const OptionEditor& editor = list->editor;
      for (int id : {editor.checkId, editor.listId, editor.pathId, editor.textId, editor.orderId}) {
        EXPECT_EQ(IsShown(id), id == row.controlId) << id << " for " << line;
      }
      if (const int tip = list->options[line].tipTextId) {
        const int number = list->options[line].tipNumber;
        EXPECT_EQ(TextOfControl(editor.tipId), WithNumber(language.Text(tip), number));
      }
      ControlState expected = StateOf(row);
      EXPECT_EQ(StateOfControl(row), expected) << list->listId << " " << line;
      Change(row);
      const ControlState changed = StateOfControl(row);
      EXPECT_NE(changed, expected) << list->listId << " " << line;
      const std::vector<std::wstring> before = OtherValues(row);
      const int way = options++ % 3;
      if (way == 0) SelectLine(list->listId, line ? 0 : 1);
      if (way == 1) Turn(0);
      if (way == 2) {
        Close();
        OpenPage();
      }
      ExpectStored(row, changed);
      EXPECT_EQ(OtherValues(row), before) << list->listId << " " << line;
    }
  }
}

}  // namespace
}  // namespace tidewell
