#include "pages/windows/option_list_body.h"

#include <commctrl.h>

#include <utility>

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
  Page().AddList(list_.listId, lines, kOptionListOffset);
  for (const ControlPlace& part : PlaceOptionEditor(Page().Metrics(), list_.editor)) {
    if (!Page().Control(part.id)) BuildPart(part);
  }
}

void OptionListBody::BuildPart(const ControlPlace& part) const {
  const OptionEditor& e = list_.editor;
  const int id = part.id;
  if (id == e.tipId || id == e.labelId) {
    Page().AddLabel(id, 0, part.rect, id == e.tipId ? kTipStyle : SS_RIGHT);
  } else if (id == e.listId) {
    Page().AddCombo(id, false, part.rect);
  } else if (id == e.checkId) {
    Page().AddCheck(id, {}, false, part.rect);
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
  ShowWindow(Page().Control(list_.listId), showCommand);
}

// The selected option is stored when it hears that it is none any more.
void OptionListBody::Deselect() const {
  const HWND list = Page().Control(list_.listId);
  const int line = ListView_GetNextItem(list, -1, LVNI_SELECTED);
  if (line >= 0) ListView_SetItemState(list, line, 0, LVIS_SELECTED | LVIS_FOCUSED);
}

void OptionListBody::Store() {
  Deselect();
}

void OptionListBody::LayOut() {
  const PageMetrics metrics = Page().Metrics();
  for (const ControlPlace& part : PlaceOptionEditor(metrics, list_.editor)) {
    Page().Place(part.id, part.rect);
  }
  Page().Place(list_.listId, PlaceOptionList(metrics));
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
  HideEditor();
  if (selected) {
    ShowEditor(option);
  } else if (const int id = ControlOf(option); Page().Control(id)) {
    tidewell::Store(option.editor, Page().State(id));
  }
  selected_ = selected ? &option : nullptr;
}

void OptionListBody::ShowEditor(const Option& option) const {
  const OptionEditor& e = list_.editor;
  const Row& row = option.editor;
  const int id = ControlOf(option);
  Page().SetTextOfControl(e.tipId, Page().Text(option.tipTextId));
  if (row.kind == RowKind::kCheck) Page().SetTextOfControl(id, Page().Text(row.textId));
  if (row.kind == RowKind::kList) {
    Page().SetTextOfControl(e.labelId, Page().Text(row.textId));
    Page().SetChoices(id, row.choices);
  }
  if (row.kind != RowKind::kOrder) Page().SetState(id, StateOf(row));
  for (const int part : ControlsOf(option, e)) ShowWindow(Page().Control(part), SW_SHOW);
}

void OptionListBody::HideEditor() const {
  for (const ControlPlace& part : PlaceOptionEditor(Page().Metrics(), list_.editor)) {
    ShowWindow(Page().Control(part.id), SW_HIDE);
  }
}

int OptionListBody::ControlOf(const Option& option) const {
  const OptionEditor& e = list_.editor;
  switch (option.editor.kind) {
    case RowKind::kCheck:
      return e.checkId;
    case RowKind::kList:
    case RowKind::kNumber:
      return e.listId;
    case RowKind::kPath:
      return e.pathId;
    case RowKind::kText:
      return e.textId;
    case RowKind::kOrder:
      return e.orderId;
    case RowKind::kIcon:
    case RowKind::kIcons:
      break;  // no option
  }
  return 0;
}

}  // namespace tidewell
