#include "platform/desktop/tab_row.h"

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>
#include <memory>
#include <numeric>

#include "platform/desktop/shell_look.h"
#include "win32/gdi.h"

namespace tidewell {

namespace {

constexpr COLORREF kFocusInk = RGB(30, 90, 160);

// Design lengths.
constexpr int kStart = 2;         // before the first tab
constexpr int kPadding = 7;       // beside a title
constexpr int kLeastPadding = 4;  // where that lets the row do without arrows
constexpr int kArrowWidth = 28;
constexpr int kArrowSize = 4;
constexpr int kFocusBarHeight = 2;

bool IsName(const wchar_t* windowClass, const wchar_t* name) {
  return !IS_INTRESOURCE(windowClass) && lstrcmpiW(windowClass, name) == 0;
}

bool IsTabRow(HWND window) {
  wchar_t name[32] = {};
  GetClassNameW(window, name, ARRAYSIZE(name));
  return IsName(name, WC_TABCONTROLW) && (GetWindowLongPtrW(window, GWL_STYLE) & TCS_BOTTOM);
}

int Scaled(int length) {
  return ShellScale().ScaleX(length);
}

HFONT FontOf(HWND window) {
  return reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0));
}

}  // namespace

bool TabRow::Attend(HWND window, const CREATESTRUCTW& created) {
  if (IsName(created.lpszClass, UPDOWN_CLASSW) && IsTabRow(created.hwndParent)) return false;
  if (IsName(created.lpszClass, WC_TABCONTROLW) && (created.style & TCS_BOTTOM)) {
    Attach(window, std::make_unique<TabRow>());
  }
  return true;
}

LRESULT TabRow::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_PAINT:
      OnPaint();
      return 0;
    case WM_ERASEBKGND:
      return 1;
    case WM_NCHITTEST:
      return HTCLIENT;
    case WM_MOUSEMOVE:
      return 0;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
      OnPointerDown({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
      return 0;
    case TCM_GETITEMRECT:
      if (wParam >= widths_.size()) return FALSE;
      *reinterpret_cast<RECT*>(lParam) = TabArea(static_cast<int>(wParam));
      return TRUE;
    default:
      return AfterSystem(message, wParam, lParam);
  }
}

// What the system's control does itself, and what changes with it here.
LRESULT TabRow::AfterSystem(UINT message, WPARAM wParam, LPARAM lParam) {
  const LRESULT result = PassOn(message, wParam, lParam);
  switch (message) {
    case WM_SIZE:
    case WM_SETFONT:
    case TCM_INSERTITEMW:
    case TCM_SETITEMW:
    case TCM_DELETEITEM:
    case TCM_DELETEALLITEMS:
      Measure();
      break;
    case WM_KEYDOWN:
    case TCM_SETCURSEL:
      ShowSelected();
      break;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
      InvalidateRect(Window(), nullptr, FALSE);
      break;
  }
  return result;
}

void TabRow::OnPointerDown(POINT point) {
  for (const bool right : {false, true}) {
    const RECT arrow = ArrowArea(right);
    if (PtInRect(&arrow, point)) {
      Scroll(first_ + (right ? 1 : -1));
      return;
    }
  }
  for (int i = first_; i < Count(); ++i) {
    const RECT tab = TabArea(i);
    if (PtInRect(&tab, point)) {
      Select(i);
      return;
    }
  }
}

void TabRow::Select(int index) {
  if (index == SelectedTab()) {
    SetFocus(Window());
    return;
  }
  const auto tell = [&](UINT code) {
    NMHDR header{Window(), static_cast<UINT_PTR>(GetDlgCtrlID(Window())), code};
    return SendMessageW(GetParent(Window()), WM_NOTIFY, header.idFrom,
                        reinterpret_cast<LPARAM>(&header));
  };
  if (tell(TCN_SELCHANGING)) return;
  SendMessageW(Window(), TCM_SETCURSEL, static_cast<WPARAM>(index), 0);
  tell(TCN_SELCHANGE);
}

void TabRow::Scroll(int first) {
  first_ = std::clamp(first, 0, LastFirst());
  InvalidateRect(Window(), nullptr, FALSE);
}

void TabRow::ShowSelected() {
  const int selected = std::max(0, SelectedTab());
  if (selected >= Count()) return;
  int first = std::min(first_, selected);
  const int room = TabsArea().right - TabsArea().left;
  while (first < selected && Length(first, selected + 1) > room) ++first;
  Scroll(first);
}

void TabRow::Measure() {
  widths_.clear();
  const WindowDc dc(Window());
  const Selected font(dc.Dc(), FontOf(Window()));
  const auto count = static_cast<int>(SendMessageW(Window(), TCM_GETITEMCOUNT, 0, 0));
  for (int i = 0; i < count; ++i) {
    const std::wstring title = TitleOf(i);
    SIZE size{};
    GetTextExtentPoint32W(dc.Dc(), title.c_str(), static_cast<int>(title.size()), &size);
    widths_.push_back(size.cx);
  }
  if (count == 0) return;
  const LONG spare = ClientArea(Window()).right - Scaled(kStart) - Length(0, count);
  const LONG padding =
      std::clamp<LONG>(spare / (2 * count), Scaled(kLeastPadding), Scaled(kPadding));
  for (int& width : widths_) width += 2 * padding;
  ShowSelected();
}

int TabRow::SelectedTab() const {
  return static_cast<int>(SendMessageW(Window(), TCM_GETCURSEL, 0, 0));
}

std::wstring TabRow::TitleOf(int index) const {
  wchar_t text[64] = {};
  TCITEMW item{};
  item.mask = TCIF_TEXT;
  item.pszText = text;
  item.cchTextMax = ARRAYSIZE(text);
  SendMessageW(Window(), TCM_GETITEMW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&item));
  return item.pszText;
}

int TabRow::Length(int from, int to) const {
  return std::accumulate(widths_.begin() + from, widths_.begin() + to, 0);
}

bool TabRow::Scrolls() const {
  return Scaled(kStart) + Length(0, Count()) > ClientArea(Window()).right;
}

RECT TabRow::TabsArea() const {
  RECT area = ClientArea(Window());
  area.left += Scaled(kStart);
  if (Scrolls()) area.right = ArrowArea(false).left;
  return area;
}

RECT TabRow::ArrowArea(bool right) const {
  RECT area = ClientArea(Window());
  const int width = Scrolls() ? Scaled(kArrowWidth) : 0;
  area.left = area.right - (right ? width : 2 * width);
  area.right = area.left + width;
  return area;
}

RECT TabRow::TabArea(int index) const {
  RECT area = TabsArea();
  area.left += Length(0, index) - Length(0, first_);
  area.right = area.left + widths_[static_cast<std::size_t>(index)];
  return area;
}

int TabRow::LastFirst() const {
  const int room = TabsArea().right - TabsArea().left;
  int first = std::max(0, Count() - 1);
  while (first > 0 && Length(first - 1, Count()) <= room) --first;
  return first;
}

void TabRow::OnPaint() {
  const BufferedPaint paint(Window());
  const HDC dc = paint.Dc();
  const RECT& client = paint.Client();
  FillPlain(dc, client, kFlatPaper);
  FillPlain(dc, {0, 0, client.right, Scaled(1)}, kEdge);
  const Selected font(dc, FontOf(Window()));
  SetBkMode(dc, TRANSPARENT);
  SaveDC(dc);
  const RECT tabs = TabsArea();
  IntersectClipRect(dc, 0, 0, tabs.right, tabs.bottom);
  for (int i = first_; i < Count(); ++i) DrawTab(dc, i);
  RestoreDC(dc, -1);
  if (!Scrolls()) return;
  for (const bool right : {false, true}) DrawArrow(dc, right);
}

void TabRow::DrawTab(HDC dc, int index) const {
  RECT area = TabArea(index);
  const int line = Scaled(1);
  const bool isSelected = index == SelectedTab();
  const bool hasFocus = isSelected && GetFocus() == Window();
  if (isSelected) FillPlain(dc, area, kPaper);
  if (hasFocus) {
    FillPlain(dc, {area.left, area.bottom - Scaled(kFocusBarHeight), area.right, area.bottom},
              kFocusEdge);
  }
  FillPlain(dc, {area.left - line, area.top, area.left, area.bottom}, kEdge);
  FillPlain(dc, {area.right - line, area.top, area.right, area.bottom}, kEdge);
  SetTextColor(dc, hasFocus ? kFocusInk : kInk);
  area.right -= line;
  DrawTextW(dc, TitleOf(index).c_str(), -1, &area,
            DT_SINGLELINE | DT_VCENTER | DT_CENTER | DT_NOPREFIX);
}

void TabRow::DrawArrow(HDC dc, bool right) const {
  const RECT area = ArrowArea(right);
  const int line = Scaled(1);
  FillPlain(dc, {area.left, area.top, area.left + line, area.bottom}, kEdge);
  const int size = Scaled(kArrowSize);
  const LONG middle = (area.top + area.bottom) / 2;
  const LONG back = (area.left + line + area.right) / 2 + (right ? -size / 2 : size / 2);
  const POINT corners[] = {
      {back, middle - size}, {back, middle + size}, {back + (right ? size : -size), middle}};
  const bool leads = right ? first_ < LastFirst() : first_ > 0;
  const COLORREF ink = leads ? kInk : kEdge;
  const Brush brush(CreateSolidBrush(ink));
  const Pen pen(CreatePen(PS_SOLID, 1, ink));
  const Selected withBrush(dc, brush.Get());
  const Selected withPen(dc, pen.Get());
  Polygon(dc, corners, ARRAYSIZE(corners));
}

}  // namespace tidewell
