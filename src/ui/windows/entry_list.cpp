#include "ui/windows/entry_list.h"

#include <algorithm>
#include <utility>

#include "platform/text.h"
#include "ui/windows/look.h"
#include "win32/common_controls.h"
#include "win32/gdi.h"

namespace tidewell {

namespace {

constexpr int kNotLoaded = FileIcons::kNone - 1;
constexpr int kRowHeight = 20;
constexpr int kMargin = 4;
constexpr UINT_PTR kIconTimer = 1500;
constexpr UINT kIconTimerPeriod = 10;  // milliseconds
constexpr DWORD kIconTime = 15;        // milliseconds of one turn, so that the list stays instant

EntryList::Row RowOf(LRESULT index) {
  return index < 0 ? EntryList::Row() : static_cast<std::size_t>(index);
}

bool StartsWith(const std::wstring& name, std::wstring_view start) {
  return name.size() >= start.size() &&
         EqualIgnoringCase(std::wstring_view(name).substr(0, start.size()), start);
}

}  // namespace

void EntryList::Create(HWND parent, int id, HFONT font, const ScreenScale& scale, OnKey onKey) {
  scale_ = scale;
  onKey_ = std::move(onKey);
  LoadCommonControls();
  list_ = CreateWindowExW(0, WC_LISTVIEWW, L"",
                          WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_BORDER | WS_CLIPSIBLINGS |
                              LVS_REPORT | LVS_OWNERDATA | LVS_SINGLESEL | LVS_SHOWSELALWAYS |
                              LVS_NOCOLUMNHEADER | LVS_OWNERDRAWFIXED,
                          0, 0, 0, 0, parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                          GetModuleHandleW(nullptr), nullptr);
  SendMessageW(list_, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
  ListView_SetExtendedListViewStyle(list_, LVS_EX_FULLROWSELECT);
  LVCOLUMNW column{};
  ListView_InsertColumn(list_, 0, &column);
  hook_.Attach(list_, [this](UINT message, WPARAM wParam, LPARAM lParam) {
    return OnMessage(message, wParam, lParam);
  });
}

void EntryList::Place(int x, int y, int width, int height, int columnWidth) {
  MoveWindow(list_, x, y, width, height, TRUE);
  columnWidth_ = columnWidth;
  FitColumn();
}

void EntryList::Show(const std::vector<ListedEntry>& entries, const std::wstring& folder,
                     const std::wstring& upPath) {
  entries_ = &entries;
  folder_ = folder;
  upPath_ = upPath;
  icons_.Clear();
  images_.assign(entries.size(), kNotLoaded);
  ListView_SetItemCountEx(list_, 0, 0);
  ListView_SetItemCountEx(list_, static_cast<int>(entries.size()), 0);
  ListView_SetSelectionMark(list_, -1);
  // The way up is passed over: the first press of Down reaches the first entry.
  if (!entries.empty() && entries.front().IsUp()) {
    ListView_SetItemState(list_, 0, LVIS_FOCUSED, LVIS_FOCUSED | LVIS_SELECTED);
  }
  FitColumn();
}

void EntryList::Mark(std::size_t row) {
  const int index = static_cast<int>(row);
  ListView_SetItemState(list_, index, LVIS_FOCUSED | LVIS_SELECTED, LVIS_FOCUSED | LVIS_SELECTED);
  ListView_SetSelectionMark(list_, index);
  ListView_EnsureVisible(list_, index, FALSE);
}

void EntryList::Unmark() {
  ListView_SetItemState(list_, -1, 0, LVIS_SELECTED);
  ListView_SetSelectionMark(list_, -1);
}

EntryList::Row EntryList::Marked() const {
  return RowOf(ListView_GetNextItem(list_, -1, LVNI_SELECTED));
}

EntryList::Row EntryList::Anchor() const {
  return RowOf(ListView_GetSelectionMark(list_));
}

std::optional<LRESULT> EntryList::OnNotify(const NMHDR& header) {
  switch (header.code) {
    case LVN_GETDISPINFOW:
      FillItem(reinterpret_cast<NMLVDISPINFOW&>(const_cast<NMHDR&>(header)).item);
      return 0;
    case LVN_ODFINDITEMW:
      return FindName(reinterpret_cast<const NMLVFINDITEMW&>(header));
    default:
      return std::nullopt;
  }
}

void EntryList::Measure(MEASUREITEMSTRUCT& item) const {
  item.itemHeight = static_cast<UINT>(scale_.ScaleY(kRowHeight));
}

void EntryList::Draw(const DRAWITEMSTRUCT& item) {
  const std::size_t row = item.itemID;
  if (!entries_ || row >= entries_->size()) return;
  const bool marked = (item.itemState & ODS_SELECTED) != 0;
  if (marked) {
    FillVertically(item.hDC, item.rcItem, kSelectionTop, kSelectionBottom);
    FillPlain(item.hDC,
              {item.rcItem.left, item.rcItem.bottom - 1, item.rcItem.right, item.rcItem.bottom},
              kSelectionEdge);
  } else {
    FillPlain(item.hDC, item.rcItem, kPaper);
  }
  RECT place = item.rcItem;
  place.left += scale_.ScaleX(kMargin);
  PaintIcon(item.hDC, row, place);
  place.left += GetSystemMetrics(SM_CXSMICON) + scale_.ScaleX(kMargin);
  place.right -= scale_.ScaleX(kMargin);
  SetBkMode(item.hDC, TRANSPARENT);
  SetTextColor(item.hDC, kInk);
  const std::wstring& name = (*entries_)[row].name;
  DrawTextW(item.hDC, name.c_str(), static_cast<int>(name.size()), &place,
            DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
  // A marked row needs no second mark.
  if (!marked && (item.itemState & ODS_FOCUS)) DrawFocusRect(item.hDC, &item.rcItem);
}

void EntryList::PaintIcon(HDC dc, std::size_t row, const RECT& cell) {
  if (images_[row] == kNotLoaded) {
    SetTimer(list_, kIconTimer, kIconTimerPeriod, nullptr);
  } else if (images_[row] != FileIcons::kNone) {
    const int y = (cell.top + cell.bottom - GetSystemMetrics(SM_CYSMICON)) / 2;
    ImageList_Draw(icons_.Images(), images_[row], dc, cell.left, y, ILD_TRANSPARENT);
  }
}

std::optional<LRESULT> EntryList::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_GETDLGCODE: {
      // Return activates a row here instead of pressing the dialog's first key.
      const auto* pressed = reinterpret_cast<const MSG*>(lParam);
      if (!pressed || pressed->message != WM_KEYDOWN || pressed->wParam != VK_RETURN) break;
      return DLGC_WANTALLKEYS | DLGC_WANTARROWS | DLGC_WANTCHARS;
    }
    case WM_KEYDOWN:
      if (onKey_(wParam)) return 0;
      break;
    case WM_TIMER:
      if (wParam != kIconTimer) break;
      LoadIconsInView();
      return 0;
  }
  return std::nullopt;
}

void EntryList::FillItem(LVITEMW& item) const {
  const auto row = static_cast<std::size_t>(item.iItem);
  if (!entries_ || row >= entries_->size()) return;
  const ListedEntry& entry = (*entries_)[row];
  if (item.mask & LVIF_TEXT) item.pszText = const_cast<wchar_t*>(entry.name.c_str());
}

// A typed beginning of a name, searched from a row on and around.
int EntryList::FindName(const NMLVFINDITEMW& wanted) const {
  if (!(wanted.lvfi.flags & (LVFI_STRING | LVFI_PARTIAL)) || !entries_) return -1;
  const std::size_t count = entries_->size();
  const auto start = static_cast<std::size_t>(std::max(wanted.iStart, 0));
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t row = (start + i) % count;
    if (StartsWith((*entries_)[row].name, wanted.lvfi.psz)) return static_cast<int>(row);
  }
  return -1;
}

void EntryList::FitColumn() {
  const RECT client = ClientArea(list_);
  const int width = std::min(columnWidth_, static_cast<int>(client.right));
  if (ListView_GetColumnWidth(list_, 0) != width) ListView_SetColumnWidth(list_, 0, width);
}

void EntryList::LoadIconsInView() {
  const DWORD begun = GetTickCount();
  const auto top = static_cast<std::size_t>(ListView_GetTopIndex(list_));
  const auto inView = static_cast<std::size_t>(ListView_GetCountPerPage(list_)) + 1;
  const std::size_t end = std::min(top + inView, images_.size());
  for (std::size_t row = top; row < end; ++row) {
    if (images_[row] != kNotLoaded) continue;
    if (GetTickCount() - begun >= kIconTime) return;
    const ListedEntry& entry = (*entries_)[row];
    images_[row] = entry.IsUp() ? icons_.Load(upPath_, true)
                                : icons_.Load(JoinPath(folder_, entry.name), entry.IsFolder());
    ListView_RedrawItems(list_, static_cast<int>(row), static_cast<int>(row));
  }
  KillTimer(list_, kIconTimer);
}

}  // namespace tidewell
