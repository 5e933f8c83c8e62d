// The controls of a settings page: how each kind is made, and what is done with them by id.
#include <algorithm>
#include <array>

#include "pages/icon_layout.h"
#include "pages/windows/list_lines.h"
#include "pages/windows/settings_page.h"
#include "platform/text.h"
#include "resources/text/text_ids.h"
#include "ui/user_dialogs.h"
#include "ui/windows/color_swatch.h"
#include "ui/windows/look.h"
#include "win32/gdi.h"

// Known to a device's list views only.
#ifndef LVS_EX_NOHSCROLL
#define LVS_EX_NOHSCROLL 0x10000000
#endif

namespace tidewell {

namespace {

constexpr DWORD kCheckStyle = BS_AUTOCHECKBOX | BS_LEFTTEXT | BS_RIGHT;
constexpr DWORD kEditStyle = WS_BORDER | ES_AUTOHSCROLL;
constexpr DWORD kComboStyle = WS_VSCROLL | WS_TABSTOP;
constexpr DWORD kListStyle = WS_BORDER | WS_TABSTOP | LVS_REPORT | LVS_SINGLESEL | LVS_AUTOARRANGE |
                             LVS_NOCOLUMNHEADER | LVS_NOSORTHEADER;
constexpr int kRowTextCapacity = 256;
constexpr std::size_t kFewChoices = 8;

// What moves with a row of a list.
struct ListRow {
  std::array<wchar_t, kRowTextCapacity> text{};
  LVITEMW item{};
};

void ReadRow(HWND list, int index, ListRow& row) {
  row.item.mask = LVIF_TEXT | LVIF_PARAM | LVIF_STATE;
  row.item.iItem = index;
  row.item.stateMask = LVIS_STATEIMAGEMASK;
  row.item.pszText = row.text.data();
  row.item.cchTextMax = kRowTextCapacity;
  ListView_GetItem(list, &row.item);
}

void WriteRow(HWND list, int index, ListRow& row) {
  row.item.iItem = index;
  ListView_SetItem(list, &row.item);
}

bool IsOfClass(HWND control, const wchar_t* wanted) {
  wchar_t name[32] = L"";
  GetClassNameW(control, name, 32);
  return EqualIgnoringCase(name, wanted);
}

bool IsEditable(HWND combo) {
  return (GetWindowLongW(combo, GWL_STYLE) & CBS_DROPDOWNLIST) != CBS_DROPDOWNLIST;
}

std::wstring TextOf(HWND control) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(control)), L'\0');
  GetWindowTextW(control, text.data(), static_cast<int>(text.size()) + 1);
  return text;
}

// To hold back the painting costs as much as to paint some lines.
void AddChoices(HWND combo, std::span<const Choice> choices, const Language& language) {
  const bool areMany = choices.size() > kFewChoices;
  if (areMany) SendMessageW(combo, WM_SETREDRAW, FALSE, 0);
  for (const Choice& choice : choices) {
    const std::wstring text = choice.TextIn(language);
    const LRESULT line =
        SendMessageW(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
    if (choice.data) {
      SendMessageW(combo, CB_SETITEMDATA, static_cast<WPARAM>(line), choice.data);
    }
  }
  if (areMany) SendMessageW(combo, WM_SETREDRAW, TRUE, 0);
}

// A path that is longer than its field is told by its end.
void ShowEnd(HWND path) {
  const int end = GetWindowTextLengthW(path);
  SendMessageW(path, EM_SETSEL, static_cast<WPARAM>(end), end);
  SendMessageW(path, EM_SCROLLCARET, 0, 0);
}

}  // namespace

int FontMeasure::Width(const std::wstring& text) {
  SIZE size{};
  GetTextExtentExPointW(surface_.Dc(), text.c_str(), static_cast<int>(text.size()), 0, nullptr,
                        nullptr, &size);
  return size.cx;
}

int FontMeasure::Height(const std::wstring& text, int width) {
  RECT area{0, 0, width, 0};
  return DrawTextW(surface_.Dc(), text.c_str(), static_cast<int>(text.size()), &area,
                   DT_CALCRECT | DT_WORDBREAK);
}

// A device's sibling windows keep out of each other without being asked: the tab row stays above
// what is scrolled below it.
HWND SettingsPage::MakeControl(const wchar_t* windowClass, DWORD style, int id,
                               const std::wstring& text, const Rect& place) {
  const HWND control =
      CreateWindowExW(0, windowClass, text.c_str(), WS_CHILD | WS_CLIPSIBLINGS | style, place.left,
                      place.top, place.width, place.height, window_,
                      reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), instance_, nullptr);
  controls_[id] = control;
  SendMessageW(control, WM_SETFONT, reinterpret_cast<WPARAM>(font_.Get()), FALSE);
  return control;
}

void SettingsPage::AddLabel(int id, int textId, const Rect& place, DWORD style) {
  MakeControl(WC_STATICW, style, id, Text(textId), place);
}

HWND SettingsPage::AddEdit(int id, const std::wstring& text, const Rect& place, DWORD style) {
  const HWND edit = MakeControl(WC_EDITW, kEditStyle | style, id, text, place);
  navigation_.Add(edit, ControlKind::kEdit);
  return edit;
}

void SettingsPage::AddButton(int id, int textId, const Rect& place) {
  navigation_.Add(MakeControl(WC_BUTTONW, BS_PUSHBUTTON, id, Text(textId), place),
                  ControlKind::kButton);
}

// The field, the button that clears it and the one that browses.
void SettingsPage::AddPathControls(const std::wstring& path, std::span<const ControlPlace> places) {
  ShowEnd(AddEdit(places[0].id, path, places[0].rect, ES_READONLY));
  AddButton(places[1].id, IDS_CLEAR, places[1].rect);
  AddButton(places[2].id, IDS_BROWSE, places[2].rect);
}

HWND SettingsPage::AddCheck(int id, const std::wstring& text, bool wraps, const Rect& place) {
  const DWORD style = kCheckStyle | (wraps ? BS_MULTILINE : 0);
  const HWND check = MakeControl(WC_BUTTONW, style, id, text, place);
  navigation_.Add(check, ControlKind::kCheck);
  return check;
}

HWND SettingsPage::AddCombo(int id, bool editable, const Rect& place) {
  const DWORD style = kComboStyle | (editable ? CBS_DROPDOWN : CBS_DROPDOWNLIST);
  const HWND combo = MakeControl(WC_COMBOBOXW, style, id, {}, place);
  navigation_.Add(combo, editable ? ControlKind::kNumber : ControlKind::kList);
  return combo;
}

HWND SettingsPage::AddListView(int id, const Rect& place, DWORD style) {
  const HWND list = MakeControl(WC_LISTVIEWW, kListStyle | style, id, {}, place);
  ListView_SetExtendedListViewStyle(list, LVS_EX_FULLROWSELECT | LVS_EX_NOHSCROLL);
  navigation_.Add(list, ControlKind::kRows);
  return list;
}

RowPlace SettingsPage::AddCheckBox(int id, int textId, bool checked, int y) {
  RowPlace row = PlaceCheckRow(Metrics(), id, Text(textId), y);
  const HWND check = AddCheck(id, row.caption, row.wraps, row.controls[0].rect);
  SendMessageW(check, BM_SETCHECK, checked, 0);
  return row;
}

RowPlace SettingsPage::AddComboRow(int labelId, int comboId, int textId,
                                   std::span<const Choice> items, int selection, int y,
                                   bool editable) {
  RowPlace row = PlaceComboRow(Metrics(), labelId, comboId, Text(textId), y);
  MakeControl(WC_STATICW, SS_RIGHT, labelId, row.caption, row.controls[0].rect);
  const HWND combo = AddCombo(comboId, editable, row.controls[1].rect);
  AddChoices(combo, items, context_.language);
  if (std::ssize(items) > selection) {
    SendMessageW(combo, CB_SETCURSEL, static_cast<WPARAM>(selection), 0);
  }
  return row;
}

RowPlace SettingsPage::AddPathRow(int labelId, int editId, int clearId, int browseId, int textId,
                                  const std::wstring& path, int y) {
  RowPlace row = PlacePathRow(Metrics(), labelId, editId, clearId, browseId, Text(textId), y);
  MakeControl(WC_STATICW, SS_RIGHT, labelId, row.caption, row.controls[0].rect);
  AddPathControls(path, std::span(row.controls).subspan(1));
  return row;
}

RowPlace SettingsPage::AddTextRow(int labelId, int editId, int textId, const std::wstring& text,
                                  int y) {
  RowPlace row = PlaceTextRow(Metrics(), labelId, editId, Text(textId), y);
  MakeControl(WC_STATICW, SS_RIGHT, labelId, row.caption, row.controls[0].rect);
  AddEdit(editId, text, row.controls[1].rect);
  return row;
}

RowPlace SettingsPage::AddNotice(int labelId, int textId, int y) {
  RowPlace row = PlaceNotice(Metrics(), labelId, Text(textId), y);
  MakeControl(WC_STATICW, SS_LEFT, labelId, row.caption, row.controls[0].rect);
  return row;
}

RowPlace SettingsPage::AddPathEdit(int editId, int clearId, int browseId, const std::wstring& path,
                                   int y) {
  RowPlace row = PlacePathEdit(Metrics(), editId, clearId, browseId, y);
  AddPathControls(path, row.controls);
  return row;
}

RowPlace SettingsPage::AddTwoRowPicker(const TwoRowPicker& picker, int y) {
  RowPlace placed = PlaceTwoRowPicker(Metrics(), picker, y);
  auto place = placed.controls.begin();
  for (const std::vector<Row>* line : {&picker.upper, &picker.lower}) {
    for (const Row& row : *line) {
      const Rect& label = place++->rect;
      MakeControl(WC_STATICW, SS_RIGHT, row.labelId,
                  FitWords(measure_, Text(row.textId), label.width), label);
      AddStrip(row, place++->rect);
    }
  }
  return placed;
}

void SettingsPage::AddStrip(const Row& row, const Rect& place) {
  const auto mode = row.kind == RowKind::kIcon ? MarkerMode::kOne : MarkerMode::kMany;
  strips_.push_back(std::make_unique<IconMarker>(
      window_, POINT{place.left, place.top}, row.controlId, row.controlId,
      IconMarkerModel(mode, row.icons, StateOf(row).data, context_.language), context_.icons,
      Scale()));
  controls_[row.controlId] = strips_.back()->Window();
  navigation_.Add(strips_.back()->Window(), ControlKind::kStrip);
}

// Null for a control that is no strip.
IconMarker* SettingsPage::FindStrip(HWND control) const {
  const auto found = std::find_if(strips_.begin(), strips_.end(),
                                  [&](const auto& strip) { return strip->Window() == control; });
  return found == strips_.end() ? nullptr : found->get();
}

void SettingsPage::AddList(int id, std::span<const int> itemIds, int yOffset) {
  const RECT client = ClientArea(window_);
  const HWND list = AddListView(id, PlaceList(Scale(), client.right, client.bottom, yOffset));
  std::vector<ListLine> lines;
  for (const int textId : itemIds) lines.push_back({Text(textId)});
  ShowLines(list, lines);
}

void SettingsPage::DrawColorSwatch(HDC dc, COLORREF color, int x, int y) const {
  const Selected font(dc, TextFont());
  tidewell::DrawColorSwatch(dc, {x, y, Scale().ScaleX(44), Scale().ScaleX(20)}, Scale().ScaleX(1),
                            color, Text(IDS_COLOR_AUTOMATIC));
}

HWND SettingsPage::Control(int id) const {
  const auto found = controls_.find(id);
  return found != controls_.end() && IsWindow(found->second) ? found->second : nullptr;
}

void SettingsPage::ShowControlRange(HWND window, int firstId, int lastId, int showCommand) const {
  for (int id = firstId; id <= lastId; ++id) {
    if (const HWND control = GetDlgItem(window, id)) ShowWindow(control, showCommand);
  }
}

void SettingsPage::MoveListItem(HWND window, int listId, bool up) {
  const HWND list = GetDlgItem(window, listId);
  const int row = ListView_GetNextItem(list, -1, LVNI_SELECTED);
  if (row < 0) {
    if (!context_.dialogs) return;
    context_.dialogs->ShowMessage(Text(IDS_SELECT_ENTRY), Text(IDS_SELECT_ENTRY_CAPTION));
    return;
  }
  const int target = up ? row - 1 : row + 1;
  if (target < 0 || target >= ListView_GetItemCount(list)) return;
  ListRow moved;
  ListRow displaced;
  ReadRow(list, row, moved);
  ReadRow(list, target, displaced);
  WriteRow(list, row, displaced);
  WriteRow(list, target, moved);
  ListView_SetItemState(list, target, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
  ListView_EnsureVisible(list, target, FALSE);
  SetFocus(list);
}

void SettingsPage::Enable(std::span<const Enabling> rule) {
  const HWND focused = focused_;
  for (const Enabling& each : rule) {
    if (const HWND control = Control(each.id)) EnableWindow(control, each.enabled);
  }
  // The system gives the focus to nothing then, and keys would be lost.
  if (focused && !IsWindowEnabled(focused)) navigation_.FocusFirst();
}

void SettingsPage::SetTextOfControl(int id, const std::wstring& text) const {
  SetWindowTextW(Control(id), text.c_str());
}

ControlState SettingsPage::State(int id) const {
  ControlState state;
  const HWND control = Control(id);
  if (!control) return state;
  state.text = TextOf(control);
  if (IsOfClass(control, WC_BUTTONW)) {
    state.checked = (SendMessageW(control, BM_GETCHECK, 0, 0) & 1) != 0;
  } else if (IsOfClass(control, WC_COMBOBOXW)) {
    state.selection = static_cast<int>(SendMessageW(control, CB_GETCURSEL, 0, 0));
    if (state.selection != CB_ERR) {
      state.data = static_cast<std::uint32_t>(
          SendMessageW(control, CB_GETITEMDATA, static_cast<WPARAM>(state.selection), 0));
    }
  } else if (const IconMarker* strip = FindStrip(control)) {
    state.data = strip->Model().Value();
  }
  return state;
}

void SettingsPage::SetState(int id, const ControlState& state) const {
  const HWND control = Control(id);
  if (IsOfClass(control, WC_BUTTONW)) {
    SendMessageW(control, BM_SETCHECK, state.checked, 0);
  } else if (IsOfClass(control, WC_COMBOBOXW) && !IsEditable(control)) {
    SendMessageW(control, CB_SETCURSEL, static_cast<WPARAM>(state.selection), 0);
  } else if (IconMarker* strip = FindStrip(control)) {
    strip->SetValue(state.data);
  } else {
    SetWindowTextW(control, state.text.c_str());
    ShowEndOfPath(id);
  }
}

void SettingsPage::ShowEndOfPath(int id) const {
  const HWND path = Control(id);
  if (GetWindowLongW(path, GWL_STYLE) & ES_READONLY) ShowEnd(path);
}

void SettingsPage::SetChoices(int id, const Choices& choices) const {
  const HWND combo = Control(id);
  SendMessageW(combo, CB_RESETCONTENT, 0, 0);
  AddChoices(combo, choices, context_.language);
}

void SettingsPage::Place(int id, const Rect& place) const {
  MoveWindow(Control(id), place.left, place.top, place.width, place.height, TRUE);
}

std::wstring SettingsPage::Text(int textId) const {
  return context_.language.Text(textId);
}

}  // namespace tidewell
