#include "pages/windows/item_list_body.h"

#include <commctrl.h>

#include <array>
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
  for (const ItemButton& label : list_.labels) Page().AddLabel(label.id, label.textId, {}, SS_LEFT);
  LayOut();
}

void ItemListBody::Show(int showCommand) {
  ShowWindow(Page().Control(list_.listId), showCommand);
  for (const auto* controls : {&list_.buttons, &list_.labels}) {
    for (const ItemButton& each : *controls) ShowWindow(Page().Control(each.id), showCommand);
  }
}

void ItemListBody::LayOut() {
  const PageMetrics metrics = Page().Metrics();
  Page().Place(list_.listId, PlaceOf(metrics, list_.place));
  for (const ControlPlace& button : PlaceButtons(metrics, list_.buttons)) {
    Page().Place(button.id, button.rect);
  }
  for (const ItemButton& label : list_.labels) {
    Page().Place(label.id, PlaceOf(metrics, label.place));
  }
  FitColumn(Page().Control(list_.listId));
}

bool ItemListBody::SetLines(int listId, const std::vector<ListLine>& lines) {
  if (listId != list_.listId) return false;
  if (icons_) icons_->Clear();
  ShowLines(Page().Control(listId), lines,
            [this](const ListLine&) { return icons_ ? I_IMAGECALLBACK : FileIcons::kNone; });
  FitColumn(Page().Control(listId));
  return true;
}

// An icon takes some milliseconds to get, so it is fetched for the lines that are seen.
void ItemListBody::OnShowLine(LVITEMW& line) {
  if (!icons_ || !(line.mask & LVIF_IMAGE)) return;
  std::array<wchar_t, MAX_PATH> path{};
  ListView_GetItemText(Page().Control(list_.listId), line.iItem, 0, path.data(), MAX_PATH);
  line.iImage = icons_->Load(path.data(), true);
  line.mask |= LVIF_DI_SETITEM;
}

}  // namespace tidewell
