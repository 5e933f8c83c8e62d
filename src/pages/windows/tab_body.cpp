#include "pages/windows/tab_body.h"

#include "pages/windows/icon_picker_body.h"
#include "pages/windows/item_list_body.h"
#include "pages/windows/option_list_body.h"
#include "pages/windows/row_column_body.h"
#include "ui/user_dialogs.h"

namespace tidewell {

Rect TabBody::PlaceOfRoom() const {
  return {0, 0, static_cast<int>(ClientArea(page_.Window()).right), Scale().ScaleY(room_.height)};
}

void TabBody::ShowControls(const std::vector<int>& ids, int showCommand) const {
  const bool areHidden = showCommand == SW_HIDE;
  const UINT change = areHidden ? SWP_HIDEWINDOW | SWP_NOREDRAW : SWP_SHOWWINDOW;
  RECT uncovered{};
  for (const int id : ids) {
    const HWND control = page_.Control(id);
    if (!control) continue;
    RECT place;
    GetWindowRect(control, &place);
    UnionRect(&uncovered, &uncovered, &place);
    SetWindowPos(control, nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | change);
  }
  if (!areHidden) return;
  MapWindowPoints(nullptr, page_.Window(), reinterpret_cast<POINT*>(&uncovered), 2);
  InvalidateRect(page_.Window(), &uncovered, TRUE);
}

bool TabBody::RunPathCommand(int id, int pathId, int clearId, int browseId,
                             const Browse& browse) const {
  if (id == clearId) {
    page_.SetState(pathId, {});
  } else if (id == browseId) {
    UserDialogs* dialogs = page_.Context().dialogs;
    if (!dialogs) return true;
    const std::wstring present = page_.State(pathId).text;
    const auto chosen = browse.pattern ? dialogs->ChooseFile(browse.title, present, browse.pattern)
                                       : dialogs->ChooseFolder(browse.title, present);
    if (!chosen) return true;
    page_.SetState(pathId, ControlState::OfText(*chosen));
  } else {
    return false;
  }
  Tell(pathId, PageEventKind::kEdited);
  return true;
}

namespace {

struct BodyMaker {
  std::unique_ptr<TabBody> operator()(const RowColumn& column) {
    return std::make_unique<RowColumnBody>(page, std::move(raise), room, column);
  }
  std::unique_ptr<TabBody> operator()(const OptionList& list) {
    return std::make_unique<OptionListBody>(page, std::move(raise), room, list);
  }
  std::unique_ptr<TabBody> operator()(const ItemList& list) {
    return std::make_unique<ItemListBody>(page, std::move(raise), room, list);
  }
  std::unique_ptr<TabBody> operator()(const IconPickers& pickers) {
    return std::make_unique<IconPickerBody>(page, std::move(raise), room, pickers);
  }

  SettingsPage& page;
  TabBody::Raise raise;
  const PaintedRoom& room;
};

}  // namespace

std::unique_ptr<TabBody> MakeBody(const PageTab& tab, SettingsPage& page, TabBody::Raise raise) {
  return std::visit(BodyMaker{page, std::move(raise), tab.room}, tab.body);
}

}  // namespace tidewell
