#include "pages/windows/item_list_body.h"

#include <commctrl.h>

#include <utility>

#include "pages/windows/list_lines.h"

namespace tidewell {

ItemListBody::ItemListBody(SettingsPage& page, Raise raise, const PaintedRoom& room,
                           const ItemList& list)
    : TabBody(page, std::move(raise), room), list_(list) {}

void ItemListBody::Build() {
  const HWND list = Page().AddListView(list_.listId, {});
  SetWindowLongPtrW(list, GWL_STYLE, GetWindowLongPtrW(list, GWL_STYLE) | LVS_SHOWSELALWAYS);
  if (list_.look == ListLook::kTicked) {
    ListView_SetExtendedListViewStyleEx(list, LVS_EX_CHECKBOXES, LVS_EX_CHECKBOXES);
  }
  if (list_.look == ListLook::kIcons) {
    icons_.emplace();
    ListView_SetImageList(list, icons_->Images(), LVSIL_SMALL);
  }
  for (const ItemButton& button : list_.buttons) Page().AddButton(button.id, button.textId, {});
  LayOut();
}

void ItemListBody::Show(int showCommand) {
  ShowWindow(Page().Control(list_.listId), showCommand);
  for (const ItemButton& button : list_.buttons) {
    ShowWindow(Page().Control(button.id), showCommand);
  }
}

void ItemListBody::LayOut() {
  const PageMetrics metrics = Page().Metrics();
  Page().Place(list_.listId, PlaceOf(metrics, list_.place));
  for (const ItemButton& button : list_.buttons) {
    Page().Place(button.id, PlaceOf(metrics, button.place));
  }
  FitColumn(Page().Control(list_.listId));
}

bool ItemListBody::SetLines(int listId, const std::vector<ListLine>& lines) {
  if (listId != list_.listId) return false;
  if (icons_) icons_->Clear();
  ShowLines(Page().Control(listId), lines, [this](const ListLine& line) {
    return icons_ ? icons_->Load(line.text, true) : FileIcons::kNone;
  });
  FitColumn(Page().Control(listId));
  return true;
}

}  // namespace tidewell
