#include "pages/windows/list_lines.h"

#include <commctrl.h>

#include <array>

#include "win32/gdi.h"

namespace tidewell {

namespace {

constexpr int kTextCapacity = 256;

ListLine LineOf(HWND list, int index) {
  std::array<wchar_t, kTextCapacity> text{};
  LVITEMW item{};
  item.mask = LVIF_TEXT | LVIF_PARAM;
  item.iItem = index;
  item.pszText = text.data();
  item.cchTextMax = kTextCapacity;
  ListView_GetItem(list, &item);
  return {text.data(), item.lParam, ListView_GetCheckState(list, index) == 1};
}

}  // namespace

std::vector<ListLine> LinesOf(HWND list) {
  std::vector<ListLine> lines;
  const int count = ListView_GetItemCount(list);
  for (int i = 0; i < count; ++i) lines.push_back(LineOf(list, i));
  return lines;
}

void ShowLines(HWND list, const std::vector<ListLine>& lines,
               const std::function<int(const ListLine&)>& imageOf) {
  SendMessageW(list, WM_SETREDRAW, FALSE, 0);
  ListView_DeleteAllItems(list);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    std::wstring text = lines[i].text;
    LVITEMW item{};
    item.mask = LVIF_TEXT | LVIF_PARAM | LVIF_IMAGE;
    item.iItem = static_cast<int>(i);
    item.pszText = text.data();
    item.lParam = lines[i].data;
    item.iImage = imageOf ? imageOf(lines[i]) : -1;
    ListView_InsertItem(list, &item);
    if (lines[i].ticked) ListView_SetCheckState(list, item.iItem, TRUE);
  }
  SendMessageW(list, WM_SETREDRAW, TRUE, 0);
}

void FitColumn(HWND list) {
  const int width = ClientArea(list).right;
  if (Header_GetItemCount(ListView_GetHeader(list)) > 0) {
    ListView_SetColumnWidth(list, 0, width);
    return;
  }
  std::wstring title = L"List Column";
  LVCOLUMNW column{};
  column.mask = LVCF_TEXT | LVCF_WIDTH;
  column.pszText = title.data();
  column.cx = width;
  ListView_InsertColumn(list, 0, &column);
}

}  // namespace tidewell
