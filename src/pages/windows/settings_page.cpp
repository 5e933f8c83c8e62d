#include "pages/windows/settings_page.h"

#include <algorithm>

#include "ui/windows/focus_frame.h"
#include "ui/windows/look.h"
#include "win32/common_controls.h"
#include "win32/tahoma.h"
#include "win32/window_owner.h"

namespace tidewell {

namespace {

constexpr DWORD kPageStyle = 0x90000800;  // a visible pop-up; the lowest bit is the shell's
constexpr int kTextHeight = 12;           // design height of the letters

constexpr int kTabPadding = 4;  // design width beside a tab's title
constexpr int kEndlessWidth = 0x4000;

// The tab row is told so once, as soon as it is made.
constexpr UINT kTabRowMessage = 0x2007;
constexpr WPARAM kTabRowVersion = 526;

Rect ToRect(const RECT& rect) {
  return {rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top};
}

void Move(HWND window, const Rect& place) {
  MoveWindow(window, place.left, place.top, place.width, place.height, TRUE);
}

}  // namespace

SettingsPage::SettingsPage(PageContext& context)
    : context_(context), font_(TahomaFont(context.scale.ScaleX(kTextHeight), FW_NORMAL)) {
  activation_.cbSize = sizeof activation_;
}

SettingsPage::~SettingsPage() {
  if (window_) {
    // Nothing of the page is left to hear of it.
    SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
    DestroyWindow(window_);
  }
  UnregisterClassW(className_.c_str(), instance_);
}

bool SettingsPage::Create(HWND host, const wchar_t* className, const std::wstring& caption) {
  className_ = className;
  instance_ = GetModuleHandleW(nullptr);
  WNDCLASSW windowClass{};
  windowClass.lpfnWndProc = WindowProc;
  windowClass.hInstance = instance_;
  windowClass.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  windowClass.lpszClassName = className;
  RegisterClassW(&windowClass);

  RECT place;
  GetWindowRect(host, &place);
  CreateWindowExW(static_cast<DWORD>(WS_EX_CAPTIONOKBTN), className, caption.c_str(), kPageStyle,
                  place.left, place.top, place.right - place.left, place.bottom - place.top, host,
                  nullptr, instance_, this);
  if (!window_) return false;
  ShowWindow(window_, SW_SHOW);
  navigation_.FocusFirst();  // before the first painting, which shows it
  UpdateWindow(window_);
  OnPainted(window_);
  return true;
}

LRESULT CALLBACK SettingsPage::WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  SettingsPage* page = OwnerOf(&SettingsPage::window_, window, message, lParam, WM_CREATE);
  return page ? page->Handle(message, wParam, lParam)
              : DefWindowProcW(window, message, wParam, lParam);
}

LRESULT SettingsPage::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_CREATE:
      return Build();
    case WM_DESTROY:
      return TakeDown();
    case WM_MOVE:
    case WM_SIZE:
      if (tabs_) Move(tabs_, TabRowPlace());
      OnLayout(window_);
      return 0;
    case WM_ACTIVATE:
      SHHandleWMActivate(window_, wParam, lParam, &activation_, 0);
      return 0;
    case WM_SETTINGCHANGE:
      SHHandleWMSettingChange(window_, wParam, lParam, &activation_);
      return 0;
    case WM_CLOSE:
      return AskToClose();
    case WM_SETFOCUS:
      navigation_.FocusFirst(lastFocused_);
      return 0;
    case WM_ERASEBKGND:
      OnEraseBackground(window_, reinterpret_cast<HDC>(wParam));
      return 1;
    case WM_PAINT:
      OnPaint(window_);
      return 0;
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORBTN:
      SetBkColor(reinterpret_cast<HDC>(wParam), kPaper);
      return reinterpret_cast<LRESULT>(GetStockObject(WHITE_BRUSH));
    case WM_LBUTTONDOWN:
      return OnLButtonDown(window_, wParam, lParam);
    case WM_DRAWITEM:
      return OnDrawItem(window_, wParam, lParam);
    case WM_MEASUREITEM:
      return OnMeasureItem(window_, wParam, lParam);
    case WM_NOTIFY:
      return Turn(reinterpret_cast<NMHDR*>(lParam));
    case WM_COMMAND:
      if (LOWORD(wParam) == IDOK) return AskToClose();
      return OnCommand(window_, wParam, lParam);
    case kMarkerTappedMessage:
      return OnPreviewMessage1(window_, wParam, lParam);
    case kMarkerChosenMessage:
      return OnPreviewMessage2(window_, wParam, lParam);
    case WM_NCDESTROY:
      return LetGo(window_, wParam, lParam);
    default:
      return OnOther(window_, message, wParam, lParam);
  }
}

LRESULT SettingsPage::Build() {
  // A device spares its child windows from its own painting without being asked.
  SetWindowLongPtrW(window_, GWL_STYLE, GetWindowLongPtrW(window_, GWL_STYLE) | WS_CLIPCHILDREN);
  MakeMenuBar();
  MakeTabRow();
  OnCreate(window_);
  if (tabs_) navigation_.Add(tabs_, ControlKind::kTabs);
  ShowTab(window_, SW_SHOW);
  return 0;
}

// Not below a dialog of its own, whose rules come back to it. The host deletes the page before this
// returns.
LRESULT SettingsPage::AskToClose() const {
  if (!IsWindowEnabled(window_)) return 0;
  return SendMessageW(GetParent(window_), kClosePageMessage, 0, 0);
}

LRESULT SettingsPage::TakeDown() {
  OnDestroy(window_);
  if (tabs_) DestroyWindow(std::exchange(tabs_, nullptr));
  if (menuBar_) DestroyWindow(std::exchange(menuBar_, nullptr));
  return 0;
}

void SettingsPage::MakeMenuBar() {
  SHMENUBARINFO bar{};
  bar.cbSize = sizeof bar;
  bar.hwndParent = window_;
  bar.dwFlags = SHCMBF_EMPTYBAR;
  if (!SHCreateMenuBar(&bar)) return;
  menuBar_ = bar.hwndMB;
  RECT barPlace;
  RECT place;
  GetWindowRect(menuBar_, &barPlace);
  GetWindowRect(window_, &place);
  place.bottom -= barPlace.bottom - barPlace.top;
  Move(window_, ToRect(place));
}

void SettingsPage::MakeTabRow() {
  LoadCommonControls();
  const int count = GetTabCount();
  if (count < 1) return;
  // Beyond every title until all are there: the system puts arrows into a row that is too short,
  // for each title anew.
  const Rect place = TabRowPlace();
  tabs_ = MakeControl(WC_TABCONTROLW, WS_VISIBLE | TCS_BOTTOM, 0, {},
                      {place.left, place.top, kEndlessWidth, place.height});
  SendMessageW(tabs_, kTabRowMessage, kTabRowVersion, 0);
  SendMessageW(tabs_, TCM_SETPADDING, 0,
               MAKELPARAM(Scale().ScaleX(kTabPadding), Scale().ScaleY(kTabPadding)));
  for (int i = 0; i < count; ++i) {
    std::wstring title = Text(GetTabTitleId(i));
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = title.data();
    SendMessageW(tabs_, TCM_INSERTITEMW, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&item));
  }
  Move(tabs_, place);
}

Rect SettingsPage::TabRowPlace() const {
  const RECT client = ClientArea(window_);
  return PlaceTabRow(Scale(), client.right, client.bottom);
}

LRESULT SettingsPage::Turn(NMHDR* header) {
  if (header->hwndFrom != tabs_) return OnNotify(window_, header);
  switch (header->code) {
    case TCN_SELCHANGING:
      // A hidden control must not keep the focus.
      if (focused_ && focused_ != tabs_) SetFocus(tabs_);
      ShowTab(window_, SW_HIDE);
      return 0;
    case TCN_SELCHANGE:
      ShowTab(window_, SW_SHOW);
      return 0;
    default:
      return OnNotify(window_, header);
  }
}

void SettingsPage::OnFocusMoved(HWND control) {
  InvalidateFocus(focused_);
  focused_ = control;
  if (control) lastFocused_ = control;
  InvalidateFocus(focused_);
}

// The frame lies in the room between a control and its neighbours.
void SettingsPage::InvalidateFocus(HWND control) const {
  if (!control || navigation_.MarksItself(control)) return;
  const RECT frame = FocusFrame(control, Scale());
  InvalidateRect(window_, &frame, TRUE);
}

void SettingsPage::OnEraseBackground(HWND window, HDC dc) {
  const RECT client = ClientArea(window);
  FillRect(dc, &client, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
  if (!focused_ || navigation_.MarksItself(focused_)) return;
  DrawFocusFrame(dc, focused_, Scale(), kFocusEdge);
}

void SettingsPage::OnPainted(HWND) {}

void SettingsPage::OnPaint(HWND window) {
  PAINTSTRUCT paint;
  BeginPaint(window, &paint);
  EndPaint(window, &paint);
}

LRESULT SettingsPage::OnLButtonDown(HWND, WPARAM, LPARAM) {
  return 0;
}
LRESULT SettingsPage::OnDrawItem(HWND, WPARAM, LPARAM) {
  return 0;
}
LRESULT SettingsPage::OnMeasureItem(HWND, WPARAM, LPARAM) {
  return 0;
}
LRESULT SettingsPage::OnPreviewMessage2(HWND, WPARAM, LPARAM) {
  return 0;
}
LRESULT SettingsPage::OnPreviewMessage1(HWND, WPARAM, LPARAM) {
  return 0;
}
LRESULT SettingsPage::OnCommand(HWND, WPARAM, LPARAM) {
  return 0;
}
void SettingsPage::OnLayout(HWND) {}
LRESULT SettingsPage::OnNotify(HWND, NMHDR*) {
  return 0;
}
LRESULT SettingsPage::OnOther(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  return DefWindowProcW(window, message, wParam, lParam);
}

int SettingsPage::SelectedTab() const {
  return std::max(0, static_cast<int>(SendMessageW(tabs_, TCM_GETCURSEL, 0, 0)));
}

int SettingsPage::ViewHeight() const {
  return tabs_ ? TabRowPlace().top : static_cast<int>(ClientArea(window_).bottom);
}

PageMetrics SettingsPage::Metrics() {
  const RECT client = ClientArea(window_);
  return {Scale(), client.right, client.bottom, measure_};
}

}  // namespace tidewell
