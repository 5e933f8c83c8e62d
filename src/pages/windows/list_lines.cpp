#include "pages/windows/list_lines.h"

#include <commctrl.h>

#include <algorithm>
#include <array>

#include "preview/windows/gdi_canvas.h"
#include "ui/windows/color_swatch.h"
#include "win32/tahoma.h"

namespace tidewell {

namespace {

constexpr int kTextCapacity = 256;
// At 96 dots per inch.
constexpr int kSwatchWidth = 30;
constexpr int kSwatchMargin = 2;
constexpr int kSwatchText = 9;

}  // namespace

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

std::vector<ListLine> LinesOf(HWND list) {
  std::vector<ListLine> lines;
  const int count = ListView_GetItemCount(list);
  for (int i = 0; i < count; ++i) lines.push_back(LineOf(list, i));
  return lines;
}

void ShowLines(HWND list, const std::vector<ListLine>& lines, bool havePictures) {
  const int top = ListView_GetTopIndex(list);
  SendMessageW(list, WM_SETREDRAW, FALSE, 0);
  ListView_DeleteAllItems(list);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    std::wstring text = lines[i].text;
    LVITEMW item{};
    item.mask = LVIF_TEXT | LVIF_PARAM | (havePictures ? LVIF_IMAGE : 0);
    item.iItem = static_cast<int>(i);
    item.pszText = text.data();
    item.lParam = lines[i].data;
    item.iImage = I_IMAGECALLBACK;
    ListView_InsertItem(list, &item);
    if (lines[i].ticked) ListView_SetCheckState(list, item.iItem, TRUE);
  }
  SendMessageW(list, WM_SETREDRAW, TRUE, 0);
  if (top == 0) return;
  const int end = std::min(top + ListView_GetCountPerPage(list), static_cast<int>(lines.size()));
  ListView_EnsureVisible(list, end - 1, FALSE);
}

void FitColumn(HWND list, const wchar_t* title, int besides) {
  const int width = ClientArea(list).right - besides;
  if (Header_GetItemCount(ListView_GetHeader(list)) > 0) {
    ListView_SetColumnWidth(list, 0, width);
    return;
  }
  std::wstring text = title;
  LVCOLUMNW column{};
  column.mask = LVCF_TEXT | LVCF_WIDTH;
  column.pszText = text.data();
  column.cx = width;
  ListView_InsertColumn(list, 0, &column);
  if (besides == 0) return;
  column.cx = besides;
  ListView_InsertColumn(list, 1, &column);
}

int LineLooks::SwatchRoom() const {
  return scale_.ScaleX(kSwatchWidth + 2 * kSwatchMargin);
}

void LineLooks::Set(HWND list, int line, const LineLook& look) {
  const auto [place, isNew] = lines_.try_emplace(line);
  Line& kept = place->second;
  if (!isNew && kept.look == look) return;
  const bool isOtherFont = kept.look.font != look.font;
  kept.look = look;
  if (isOtherFont) {
    const LOGFONTW font = SystemDescription(look.font);
    kept.font = look.font.faceName.empty() ? Font() : Font(CreateFontIndirectW(&font));
  }
  if (IsWindowVisible(list)) ListView_RedrawItems(list, line, line);
}

LRESULT LineLooks::Draw(NMLVCUSTOMDRAW& draw) const {
  if (draw.nmcd.dwDrawStage == CDDS_PREPAINT) {
    return lines_.empty() ? CDRF_DODEFAULT : CDRF_NOTIFYITEMDRAW;
  }
  const auto line = lines_.find(static_cast<int>(draw.nmcd.dwItemSpec));
  if (line == lines_.end()) return CDRF_DODEFAULT;
  if (draw.nmcd.dwDrawStage == CDDS_ITEMPREPAINT) return Dress(line->second, draw);
  if (draw.nmcd.dwDrawStage == CDDS_ITEMPOSTPAINT) DrawSwatchOf(line->second, draw);
  return CDRF_DODEFAULT;
}

LRESULT LineLooks::Dress(const Line& line, NMLVCUSTOMDRAW& draw) const {
  if (line.look.ink != kNoColor) draw.clrText = line.look.ink;
  if (!IsWindowEnabled(draw.nmcd.hdr.hwndFrom)) draw.clrText = GetSysColor(COLOR_GRAYTEXT);
  if (line.look.paper != kNoColor) draw.clrTextBk = line.look.paper;
  if (line.font) SelectObject(draw.nmcd.hdc, line.font.Get());
  return (line.font ? CDRF_NEWFONT : CDRF_DODEFAULT) |
         (line.look.swatch ? CDRF_NOTIFYPOSTPAINT : CDRF_DODEFAULT);
}

void LineLooks::DrawSwatchOf(const Line& line, const NMLVCUSTOMDRAW& draw) const {
  RECT row{};
  const HWND list = draw.nmcd.hdr.hwndFrom;
  ListView_GetItemRect(list, static_cast<int>(draw.nmcd.dwItemSpec), &row, LVIR_BOUNDS);
  const int width = scale_.ScaleX(kSwatchWidth);
  const int margin = scale_.ScaleY(1);
  const Rect area{static_cast<int>(ClientArea(list).right) - width - scale_.ScaleX(kSwatchMargin),
                  static_cast<int>(row.top) + margin, width,
                  static_cast<int>(row.bottom - row.top) - 2 * margin};
  const HDC dc = draw.nmcd.hdc;
  const Color color = *line.look.swatch;
  // Only the swatch of no color has a text.
  const Font text = color == kNoColor ? TahomaFont(scale_.ScaleX(kSwatchText), FW_NORMAL) : Font();
  const int state = SaveDC(dc);
  if (text) SelectObject(dc, text.Get());
  DrawColorSwatch(dc, area, scale_.ScaleX(1), color, nameOfNone_);
  RestoreDC(dc, state);
}

}  // namespace tidewell
