#include "pages/windows/option_list_body.h"

#include <commctrl.h>

#include <utility>

#include "pages/windows/list_lines.h"
#include "platform/text.h"
#include "resources/text/text_ids.h"

namespace tidewell {

namespace {

constexpr DWORD kTipStyle = 0x2000;  // the shell's own

}  // namespace

OptionListBody::OptionListBody(SettingsPage& page, Raise raise, const PaintedRoom& room,
                               const OptionList& list)
    : TabBody(page, std::move(raise), room), list_(list) {}

void OptionListBody::Build() {
  std::vector<int> lines;
  for (const Option& option : list_.options) lines.push_back(option.lineTextId);
  Page().AddList(list_.listId, lines, OptionListOffset(Page().Metrics()));
  for (const ControlPlace& part : PlaceOptionEditor(Page().Metrics(), list_.editor)) {
    if (!Page().Control(part.id)) BuildPart(part);
  }
  for (const Option& option : list_.options) {
    if (option.editor.kind == RowKind::kOrder) ShowOrder(option);
  }
  FitColumns();
}

void OptionListBody::FitColumns() const {
  FitColumn(Page().Control(list_.listId));
  if (const HWND order = Page().Control(list_.editor.orderId)) FitColumn(order);
}

// The lines stay in their list whether or not they are shown.
void OptionListBody::ShowOrder(const Option& option) const {
  std::vector<ListLine> lines;
  for (const std::uint32_t number : StateOf(option.editor).order) {
    const Choice& line = option.editor.choices[number];
    lines.push_back({line.TextIn(Page().Context().language), static_cast<std::intptr_t>(number)});
  }
  ShowLines(Page().Control(list_.editor.orderId), lines);
}

void OptionListBody::BuildPart(const ControlPlace& part) const {
  const OptionEditor& e = list_.editor;
  const int id = part.id;
  if (id == e.tipId || id == e.labelId) {
    Page().AddLabel(id, 0, part.rect, id == e.tipId ? kTipStyle : SS_RIGHT);
  } else if (id == e.listId) {
    Page().AddCombo(id, false, part.rect);
  } else if (id == e.checkId) {
    Page().AddCheck(id, {}, IsNarrow(Page().Metrics()), part.rect);
  } else if (id == e.pathId || id == e.textId) {
    Page().AddEdit(id, {}, part.rect, id == e.pathId ? ES_READONLY : 0);
  } else if (id == e.orderId) {
    Page().AddListView(id, part.rect);
  } else if (id == e.upId || id == e.downId) {
    Page().AddButton(id, id == e.upId ? IDS_MOVE_UP : IDS_MOVE_DOWN, part.rect);
  } else {
    Page().AddButton(id, id == e.browseId ? IDS_BROWSE : IDS_CLEAR, part.rect);
  }
}

void OptionListBody::Show(int showCommand) {
  if (showCommand == SW_HIDE) Deselect();
  ShowControls({list_.listId}, showCommand);
}

// The selected option is stored when it hears that it is none any more.
void OptionListBody::Deselect() const {
  const HWND list = Page().Control(list_.listId);
  const int line = ListView_GetNextItem(list, -1, LVNI_SELECTED);
  if (line >= 0) ListView_SetItemState(list, line, 0, LVIS_SELECTED | LVIS_FOCUSED);
}

void OptionListBody::Store() {
  Deselect();
  for (const Option& option : list_.options) {
    if (option.editor.kind == RowKind::kOrder) StoreOption(option);
  }
}

void OptionListBody::StoreOption(const Option& option) const {
  const HWND control = Page().Control(StateControlOf(option, list_.editor));
  if (!control) return;
  ControlState state = Page().State(StateControlOf(option, list_.editor));
  if (option.editor.kind == RowKind::kOrder) {
    for (const ListLine& line : LinesOf(control)) {
      state.order.push_back(static_cast<std::uint32_t>(line.data));
    }
  }
  tidewell::Store(option.editor, state);
}

void OptionListBody::LayOut() {
  const PageMetrics metrics = Page().Metrics();
  for (const ControlPlace& part : PlaceOptionEditor(metrics, list_.editor)) {
    Page().Place(part.id, part.rect);
  }
  Page().Place(list_.listId, PlaceOptionList(metrics));
  FitColumns();
}

bool OptionListBody::OnCommand(int id, int notification) {
  if (!selected_ || notification != BN_CLICKED) return false;
  const OptionEditor& e = list_.editor;
  if (id == e.upId || id == e.downId) {
    Page().MoveListItem(Page().Window(), e.orderId, id == e.upId);
    return true;
  }
  return RunPathCommand(id, e.pathId, e.clearPathId, e.browseId, selected_->editor.browse) ||
         RunPathCommand(id, e.textId, e.clearTextId, 0, {});
}

void OptionListBody::OnSelection(int listId, int line, bool selected) {
  if (listId != list_.listId) return;
  const Option& option = list_.options[static_cast<std::size_t>(line)];
  if (selected) {
    ShowEditor(option);
  } else {
    ShowControls(ControlsOf(option, list_.editor), SW_HIDE);
    StoreOption(option);
  }
  selected_ = selected ? &option : nullptr;
}

void OptionListBody::ShowEditor(const Option& option) const {
  const OptionEditor& e = list_.editor;
  const Row& row = option.editor;
  const int id = StateControlOf(option, list_.editor);
  Page().SetTextOfControl(e.tipId, WithNumber(Page().Text(option.tipTextId), option.tipNumber));
  if (row.kind == RowKind::kCheck) Page().SetTextOfControl(id, Page().Text(row.textId));
  if (row.kind == RowKind::kList) ShowChoices(row);
  if (row.kind != RowKind::kOrder) Page().SetState(id, StateOf(row));
  ShowControls(ControlsOf(option, e), SW_SHOW);
}

void OptionListBody::ShowChoices(const Row& row) const {
  const OptionEditor& e = list_.editor;
  const std::wstring label = Page().Text(row.textId);
  std::vector<std::wstring> texts;
  for (const Choice& choice : row.choices) {
    texts.push_back(choice.TextIn(Page().Context().language));
  }
  for (const ControlPlace& part : PlaceChoices(Page().Metrics(), e, label, texts)) {
    Page().Place(part.id, part.rect);
  }
  Page().SetTextOfControl(e.labelId, label);
  Page().SetChoices(e.listId, row.choices);
}

}  // namespace tidewell
