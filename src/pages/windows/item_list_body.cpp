#include "pages/windows/item_list_body.h"

#include <commctrl.h>

#include <algorithm>
#include <string>

#include "resources/text/text_ids.h"

namespace tidewell {

namespace {

constexpr int kLeastHeight = 40;  // at 96 dots per inch

Rect PlaceIn(const std::vector<ControlPlace>& places, int id) {
  return std::ranges::find(places, id, &ControlPlace::id)->rect;
}

// A list that goes takes its images along, unless they are told to be another's; those of its boxes
// are its own.
DWORD StyleOf(ListLook look) {
  const bool hasPictures = look == ListLook::kIcons || look == ListLook::kCategories;
  return LVS_SHOWSELALWAYS | (hasPictures ? LVS_SHAREIMAGELISTS : 0);
}

}  // namespace

ItemListBody::ItemListBody(SettingsPage& page, Raise raise, const PaintedRoom& room,
                           const ItemList& list)
    : TabBody(page, raise, room),
      list_(list),
      rows_(page, raise, {}, list.rows),
      looks_(page.Scale(), page.Text(IDS_COLOR_AUTOMATIC)) {}

// Keys walk in this order. Everything is made where it stands: to move it afterwards costs as much
// as to make it.
void ItemListBody::Build() {
  if (!list_.rows.rows.empty()) rows_.Build();
  const std::vector<ControlPlace> places = Places();
  for (const ItemField& field : list_.fields) {
    const HWND edit = Page().AddEdit(field.id, {}, PlaceIn(places, field.id));
    SendMessageW(edit, EM_LIMITTEXT, static_cast<WPARAM>(field.longest), 0);
    AddButton(field.button, places);
  }
  BuildList(PlaceIn(places, list_.listId));
  for (const ItemButton& button : list_.buttons) AddButton(button, places);
  for (const ItemButton& label : list_.labels) {
    Page().AddLabel(label.id, label.textId, PlaceIn(places, label.id), SS_LEFT);
  }
}

void ItemListBody::AddButton(const ItemButton& button,
                             const std::vector<ControlPlace>& places) const {
  Page().AddButton(button.id, button.textId, PlaceIn(places, button.id));
}

// Those of the fields as well.
std::vector<ItemButton> ItemListBody::Buttons() const {
  std::vector<ItemButton> buttons = list_.buttons;
  for (const ItemField& field : list_.fields) buttons.push_back(field.button);
  return buttons;
}

// It gets its column with its lines.
void ItemListBody::BuildList(const Rect& place) {
  const HWND list = Page().AddListView(list_.listId, place, StyleOf(list_.look));
  if (list_.look == ListLook::kTicked) {
    ListView_SetExtendedListViewStyleEx(list, LVS_EX_CHECKBOXES, LVS_EX_CHECKBOXES);
  } else if (list_.look == ListLook::kIcons) {
    icons_.emplace();
    ListView_SetImageList(list, icons_->Images(), LVSIL_SMALL);
  } else if (list_.look == ListLook::kCategories) {
    categories_.emplace(Scale());
    ListView_SetImageList(list, categories_->Images(), LVSIL_SMALL);
  }
}

void ItemListBody::Show(int showCommand) {
  rows_.Show(showCommand);
  std::vector<int> ids{list_.listId};
  for (const ItemField& field : list_.fields) ids.push_back(field.id);
  for (const ItemButton& button : Buttons()) ids.push_back(button.id);
  for (const ItemButton& label : list_.labels) ids.push_back(label.id);
  ShowControls(ids, showCommand);
}

void ItemListBody::LayOut() {
  rows_.LayOut();
  for (const ControlPlace& each : Places()) Page().Place(each.id, each.rect);
  Fit();
}

void ItemListBody::Fit() const {
  FitColumn(Page().Control(list_.listId), list_.columnTitle, categories_ ? looks_.SwatchRoom() : 0);
}

// Of all but the rows.
std::vector<ControlPlace> ItemListBody::Places() const {
  const PageMetrics metrics = Page().Metrics();
  std::vector<ControlPlace> places = PlaceButtons(metrics, Buttons());
  const Rect list = PlaceOfList(metrics);
  // On a page that is too low for its list, what stands below it is moved on.
  for (ControlPlace& button : places) {
    if (!list_.rows.rows.empty()) button.rect.top = std::max(button.rect.top, list.Bottom());
  }
  places.push_back({list_.listId, list});
  for (const ItemField& field : list_.fields) {
    places.push_back({field.id, PlaceOf(metrics, field.place)});
  }
  for (const ItemButton& label : list_.labels) {
    places.push_back({label.id, PlaceOf(metrics, label.place)});
  }
  return places;
}

// Below the rows; on a page that is too low for it, it keeps the height of two lines.
Rect ItemListBody::PlaceOfList(const PageMetrics& metrics) const {
  Rect place = PlaceOf(metrics, list_.place);
  if (list_.rows.rows.empty()) return place;
  const int bottom = place.Bottom();
  place.top += rows_.RowsBottom();
  place.height = std::max(bottom - place.top, Scale().ScaleY(kLeastHeight));
  return place;
}

bool ItemListBody::SetLines(int listId, const std::vector<ListLine>& lines) {
  if (listId != list_.listId) return false;
  if (icons_) icons_->Clear();
  looks_.Clear();
  if (categories_) categories_->Clear();
  const bool hasPictures = icons_ || categories_;
  lines_ = hasPictures ? lines : std::vector<ListLine>();
  ShowLines(Page().Control(listId), lines, hasPictures);
  Fit();
  return true;
}

// A picture takes some milliseconds to get, so it is fetched for the lines that are seen.
void ItemListBody::OnShowLine(LVITEMW& line) {
  const auto place = static_cast<std::size_t>(line.iItem);
  if (!(line.mask & LVIF_IMAGE) || place >= lines_.size()) return;
  const ListLine& shown = lines_[place];
  const int image = icons_ ? icons_->Load(shown.text, true) : categories_->Add(shown.icon);
  // Its -1 would have the list ask again with each painting.
  line.iImage = image == FileIcons::kNone ? I_IMAGENONE : image;
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
