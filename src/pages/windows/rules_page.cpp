#include "pages/windows/rules_page.h"

#include <windowsx.h>

#include <optional>
#include <utility>

#include "pages/windows/list_lines.h"
#include "preview/windows/gdi_canvas.h"
#include "ui/windows/look.h"
#include "win32/common_controls.h"

namespace tidewell {

namespace {

SIZE ClientSize(HWND window) {
  const RECT client = ClientArea(window);
  return {client.right, client.bottom};
}

RECT ToSystem(const Rect& rect) {
  return {rect.left, rect.top, rect.Right(), rect.Bottom()};
}

// What a control's notification means; nothing for those that mean nothing to a page.
std::optional<PageEventKind> KindOf(WORD notification) {
  switch (notification) {
    case BN_CLICKED:
      return PageEventKind::kClicked;
    case CBN_SELCHANGE:
      return PageEventKind::kChanged;
    case CBN_EDITCHANGE:
    case EN_CHANGE:
      return PageEventKind::kEdited;
    default:
      return std::nullopt;
  }
}

bool IsOnBox(const NMITEMACTIVATE& tap) {
  const HWND list = tap.hdr.hwndFrom;
  if (!(ListView_GetExtendedListViewStyle(list) & LVS_EX_CHECKBOXES)) return false;
  LVHITTESTINFO hit{};
  hit.pt = tap.ptAction;
  ListView_HitTest(list, &hit);
  return hit.flags == LVHT_ONITEMSTATEICON;
}

}  // namespace

RulesPage::RulesPage(PageContext& context, std::unique_ptr<PageRules> rules)
    : SettingsPage(context), rules_(std::move(rules)), tabs_(rules_->Tabs()) {
  for (const PageTab& tab : tabs_) {
    bodies_.push_back({MakeBody(tab, *this, [this](const PageEvent& event) { Tell(event); })});
  }
}

int RulesPage::GetTabTitleId(int index) const {
  return tabs_[static_cast<std::size_t>(index)].titleId;
}

void RulesPage::OnCreate(HWND window) {
  laidOut_ = ClientSize(window);
  BuildTab(0);
  Enable(rules_->Enabled(*this));
}

// The user sees the first tab while the others are built: lists are slow to make.
void RulesPage::OnPainted(HWND) {
  for (int tab = 0; tab < GetTabCount(); ++tab) BuildTab(tab);
  Enable(rules_->Enabled(*this));
}

void RulesPage::BuildTab(int tab) {
  BuiltTab& place = bodies_[static_cast<std::size_t>(tab)];
  if (std::exchange(place.built, true)) return;
  Silently([&] {
    place.body->Build();
    rules_->OnBuilt(*this, tab);
  });
}

void RulesPage::ShowTab(HWND, int showCommand) {
  BuildTab(SelectedTab());
  SelectedBody().Show(showCommand);
  Repaint();
  if (showCommand != SW_HIDE) Silently([this] { rules_->OnShown(*this, SelectedTab()); });
}

void RulesPage::OnDestroy(HWND) {
  for (const BuiltTab& tab : bodies_) {
    if (tab.built) tab.body->Store();
  }
  rules_->Store(*this);
  silent_ = true;
}

void RulesPage::OnLayout(HWND window) {
  const SIZE size = ClientSize(window);
  if (size.cx == laidOut_.cx && size.cy == laidOut_.cy) return;
  laidOut_ = size;
  for (const BuiltTab& tab : bodies_) {
    if (tab.built) tab.body->LayOut();
  }
  InvalidateRect(window, nullptr, TRUE);
}

void RulesPage::Tell(const PageEvent& event) {
  if (silent_) return;
  Silently([&] { rules_->OnEvent(*this, event); });
  Enable(rules_->Enabled(*this));
}

LRESULT RulesPage::OnCommand(HWND, WPARAM wParam, LPARAM) {
  const int id = LOWORD(wParam);
  const WORD notification = HIWORD(wParam);
  if (silent_ || !Control(id) || SelectedBody().OnCommand(id, notification)) return 0;
  if (IsDecision(id, notification)) {
    Tell({id, PageEventKind::kChosen});
  } else if (const auto kind = KindOf(notification)) {
    Tell({id, *kind});
  }
  return 0;
}

// A decision in a list that is open is one when the list has closed: the rules may open a dialog.
bool RulesPage::IsDecision(int id, WORD notification) {
  if (notification == CBN_CLOSEUP) return std::exchange(decided_, false);
  if (notification != CBN_SELENDOK) return false;
  decided_ = SendMessageW(Control(id), CB_GETDROPPEDSTATE, 0, 0) != 0;
  return !decided_;
}

LRESULT RulesPage::OnNotify(HWND, NMHDR* header) {
  const int id = static_cast<int>(header->idFrom);
  switch (header->code) {
    case static_cast<UINT>(LVN_GETDISPINFOW):
      SelectedBody().OnShowLine(reinterpret_cast<NMLVDISPINFOW*>(header)->item);
      break;
    case static_cast<UINT>(LVN_ITEMCHANGED):
      if (!silent_) OnItemChanged(*reinterpret_cast<NMLISTVIEW*>(header));
      break;
    case static_cast<UINT>(NM_RETURN):
      if (!TurnTick(header->hwndFrom)) Tell({id, PageEventKind::kActivated, SelectedLine(id)});
      break;
    // Two quick taps on a box are none on its line.
    case static_cast<UINT>(NM_DBLCLK):
      if (IsOnBox(*reinterpret_cast<NMITEMACTIVATE*>(header))) break;
      Tell({id, PageEventKind::kActivated, SelectedLine(id)});
      break;
    case static_cast<UINT>(NM_CUSTOMDRAW):
      return SelectedBody().OnDrawLine(*reinterpret_cast<NMLVCUSTOMDRAW*>(header));
  }
  return 0;
}

void RulesPage::OnItemChanged(const NMLISTVIEW& change) {
  const int id = static_cast<int>(change.hdr.idFrom);
  const UINT turned = change.uOldState ^ change.uNewState;
  if (turned & LVIS_SELECTED) {
    const bool selected = (change.uNewState & LVIS_SELECTED) != 0;
    SelectedBody().OnSelection(id, change.iItem, selected);
    Tell({id, selected ? PageEventKind::kSelected : PageEventKind::kDeselected, change.iItem});
  }
  // A line that is new has no box yet.
  if ((turned & LVIS_STATEIMAGEMASK) && (change.uOldState & LVIS_STATEIMAGEMASK)) {
    Tell({id, PageEventKind::kTicked, change.iItem});
  }
}

LRESULT RulesPage::OnLButtonDown(HWND, WPARAM, LPARAM lParam) {
  SelectedBody().OnPointer(WM_LBUTTONDOWN, {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
  return 0;
}

LRESULT RulesPage::OnOther(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_MOUSEMOVE:
    case WM_LBUTTONUP:
    case WM_CAPTURECHANGED:
      SelectedBody().OnPointer(message, {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
      return 0;
    case WM_MOUSEWHEEL:
      OnWheel(GET_WHEEL_DELTA_WPARAM(wParam));
      return 0;
    default:
      return SettingsPage::OnOther(window, message, wParam, lParam);
  }
}

LRESULT RulesPage::OnPreviewMessage1(HWND, WPARAM, LPARAM lParam) {
  return OnIconChosen(static_cast<int>(lParam));
}

LRESULT RulesPage::OnPreviewMessage2(HWND, WPARAM, LPARAM lParam) {
  return OnIconChosen(static_cast<int>(lParam));
}

// Stored at once, so that a preview shows it.
LRESULT RulesPage::OnIconChosen(int id) {
  for (const Row* row : tabs_[static_cast<std::size_t>(SelectedTab())].Rows()) {
    if (row->controlId == id) Store(*row, State(id));
  }
  Tell({id, PageEventKind::kChosen});
  return 0;
}

// The room gets there in one block, and nothing else is painted below it.
void RulesPage::OnEraseBackground(HWND window, HDC dc) {
  const RECT room = ToSystem(SelectedBody().PlaceOfRoom());
  const int state = SaveDC(dc);
  if (room.bottom > room.top) {
    PaintRoom(dc, room);
    ExcludeClipRect(dc, room.left, room.top, room.right, room.bottom);
  }
  SettingsPage::OnEraseBackground(window, dc);
  RestoreDC(dc, state);
  SelectedBody().PaintBackground(dc);
}

void RulesPage::PaintRoom(HDC dc, const RECT& place) {
  const BufferedArea area(dc, place);
  FillPlain(area.Dc(), area.Area(), kPaper);
  GdiCanvas canvas(area.Dc());
  rules_->PaintRoom(canvas, area.Area().right, area.Area().bottom, SelectedTab());
}

void RulesPage::OnFocusMoved(HWND control) {
  SettingsPage::OnFocusMoved(control);
  if (control && control != Tabs()) SelectedBody().OnFocus(control);
}

bool RulesPage::OnPageKey(int direction) {
  return SelectedBody().OnPageKey(direction);
}

void RulesPage::OnWheel(int distance) {
  SelectedBody().OnWheel(distance);
}

void RulesPage::SetState(int id, const ControlState& state) {
  SettingsPage::SetState(id, state);
}

void RulesPage::SetChoices(int id, const Choices& choices) {
  SettingsPage::SetChoices(id, choices);
}

std::vector<ListLine> RulesPage::Lines(int listId) const {
  return LinesOf(Control(listId));
}

ListLine RulesPage::Line(int listId, int line) const {
  return LineOf(Control(listId), line);
}

void RulesPage::SetLines(int listId, const std::vector<ListLine>& lines) {
  for (const BuiltTab& tab : bodies_) {
    if (tab.body->SetLines(listId, lines)) return;
  }
  ShowLines(Control(listId), lines);
}

void RulesPage::SetLook(int listId, int line, const LineLook& look) {
  for (const BuiltTab& tab : bodies_) {
    if (tab.body->SetLook(listId, line, look)) return;
  }
}

int RulesPage::SelectedLine(int listId) const {
  const HWND list = Control(listId);
  return list ? ListView_GetNextItem(list, -1, LVNI_SELECTED) : kNoChoice;
}

void RulesPage::SelectLine(int listId, int line) {
  const UINT marks = LVIS_SELECTED | LVIS_FOCUSED;
  const int marked = line == kNoChoice ? SelectedLine(listId) : line;
  if (marked == kNoChoice) return;
  ListView_SetItemState(Control(listId), marked, line == kNoChoice ? 0 : marks, marks);
  if (line != kNoChoice) ListView_EnsureVisible(Control(listId), line, FALSE);
}

void RulesPage::MoveLine(int listId, bool up) {
  MoveListItem(Window(), listId, up);
}

void RulesPage::Repaint() {
  const RECT room = ToSystem(SelectedBody().PlaceOfRoom());
  InvalidateRect(Window(), &room, TRUE);
}

}  // namespace tidewell
