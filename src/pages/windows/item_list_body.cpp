#include "pages/windows/item_list_body.h"

#include <commctrl.h>

#include <array>
#include <string>
#include <utility>

#include "resources/text/text_ids.h"

namespace tidewell {

namespace {

void NameColumn(HWND list, std::wstring title) {
  LVCOLUMNW column{};
  column.mask = LVCF_TEXT;
  column.pszText = title.data();
  ListView_SetColumn(list, 0, &column);
}

}  // namespace

ItemListBody::ItemListBody(SettingsPage& page, Raise raise, const PaintedRoom& room,
                           const ItemList& list)
    : TabBody(page, std::move(raise), room),
      list_(list),
      looks_(page.Scale(), page.Text(IDS_COLOR_AUTOMATIC)) {}

// Keys walk in this order.
void ItemListBody::Build() {
  for (const ItemField& field : list_.fields) {
    const HWND edit = Page().AddEdit(field.id, {}, {});
    SendMessageW(edit, EM_LIMITTEXT, static_cast<WPARAM>(field.longest), 0);
    Page().AddButton(field.button.id, field.button.textId, {});
  }
  BuildList();
  for (const ItemButton& button : list_.buttons) Page().AddButton(button.id, button.textId, {});
  for (const ItemButton& label : list_.labels) Page().AddLabel(label.id, label.textId, {}, SS_LEFT);
  LayOut();
}

void ItemListBody::BuildList() {
  const HWND list = Page().AddListView(list_.listId, {});
  SetWindowLongPtrW(list, GWL_STYLE, GetWindowLongPtrW(list, GWL_STYLE) | LVS_SHOWSELALWAYS);
  if (list_.look == ListLook::kTicked) {
    ListView_SetExtendedListViewStyleEx(list, LVS_EX_CHECKBOXES, LVS_EX_CHECKBOXES);
  }
  if (list_.look == ListLook::kIcons) {
    icons_.emplace();
    ListView_SetImageList(list, icons_->Images(), LVSIL_SMALL);
  }
  if (list_.columnTitle) NameColumn(list, list_.columnTitle);
}

// Those of the fields as well.
std::vector<ItemButton> ItemListBody::Buttons() const {
  std::vector<ItemButton> buttons = list_.buttons;
  for (const ItemField& field : list_.fields) buttons.push_back(field.button);
  return buttons;
}

void ItemListBody::Show(int showCommand) {
  ShowWindow(Page().Control(list_.listId), showCommand);
  for (const ItemField& field : list_.fields) ShowWindow(Page().Control(field.id), showCommand);
  for (const ItemButton& button : Buttons()) ShowWindow(Page().Control(button.id), showCommand);
  for (const ItemButton& label : list_.labels) ShowWindow(Page().Control(label.id), showCommand);
}

void ItemListBody::LayOut() {
  const PageMetrics metrics = Page().Metrics();
  Page().Place(list_.listId, PlaceOf(metrics, list_.place));
  for (const ItemField& field : list_.fields) {
    Page().Place(field.id, PlaceOf(metrics, field.place));
  }
  for (const ControlPlace& button : PlaceButtons(metrics, Buttons())) {
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
  looks_.Clear();
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

bool ItemListBody::SetLook(int listId, int line, const LineLook& look) {
  if (listId != list_.listId) return false;
  looks_.Set(Page().Control(listId), line, look);
  return true;
}

LRESULT ItemListBody::OnDrawLine(NMLVCUSTOMDRAW& draw) {
  const bool isOurs = static_cast<int>(draw.nmcd.hdr.idFrom) == list_.listId;
  return isOurs ? looks_.Draw(draw) : CDRF_DODEFAULT;
}

}  // namespace tidewell
