// A device's message boxes: in the shell's look, on the device's screen and with words in the
// program's language. The system's own are wider than that, and speak the system's language.
#include <windows.h>

#include <algorithm>
#include <span>
#include <string>
#include <string_view>

#include "platform/desktop/device_shell.h"
#include "platform/desktop/shell_look.h"
#include "platform/desktop/shell_windows.h"
#include "win32/gdi.h"
#include "win32/window_owner.h"

namespace tidewell {

namespace {

// Design lengths.
constexpr int kSideRoom = 8;     // to the screen's edges
constexpr int kMargin = 10;      // around all that is in the box, and between
constexpr int kMostWidth = 304;  // what a screen of 320 leaves
constexpr int kIconSize = 32;
constexpr int kKeyHeight = 24;
constexpr int kLeastKeyWidth = 56;
constexpr int kKeyPadding = 8;  // beside a key's word
constexpr int kKeyGap = 6;
constexpr int kTextHeight = 12;

constexpr int kTextId = 0xFFFF;

MessageBoxWords& Words() {
  static MessageBoxWords words{L"OK", L"Cancel", L"Yes", L"No"};
  return words;
}

struct Key {
  int command;
  std::wstring MessageBoxWords::*word;
};

std::span<const Key> KeysOf(UINT type) {
  static constexpr Key kAnswers[] = {{IDYES, &MessageBoxWords::yes},
                                     {IDNO, &MessageBoxWords::no},
                                     {IDCANCEL, &MessageBoxWords::cancel}};
  static constexpr Key kConsent[] = {{IDOK, &MessageBoxWords::ok},
                                     {IDCANCEL, &MessageBoxWords::cancel}};
  switch (type & MB_TYPEMASK) {
    case MB_YESNO:
      return std::span(kAnswers).first(2);
    case MB_YESNOCANCEL:
      return kAnswers;
    case MB_OKCANCEL:
      return kConsent;
    default:
      return std::span(kConsent).first(1);
  }
}

HICON IconOf(UINT type) {
  const UINT number = (type & MB_ICONMASK) >> 4;  // the system's icons follow each other
  return number ? LoadIconW(nullptr, MAKEINTRESOURCEW(32512 + number)) : nullptr;
}

// An edit control breaks its lines at two characters.
std::wstring WithEditLineBreaks(std::wstring_view text) {
  std::wstring lines;
  for (const wchar_t character : text) {
    if (character == L'\n' && !lines.ends_with(L'\r')) lines += L'\r';
    lines += character;
  }
  return lines;
}

int Scaled(int length) {
  return ShellScale().ScaleY(length);
}

SIZE SizeOfText(HFONT font, const std::wstring& text) {
  const WindowDc screen(nullptr);
  const Selected selected(screen.Dc(), font);
  RECT area{};
  DrawTextW(screen.Dc(), text.c_str(), -1, &area, DT_CALCRECT | DT_NOPREFIX | DT_EXPANDTABS);
  return {area.right, area.bottom};
}

class Box {
 public:
  Box(const wchar_t* text, const wchar_t* caption, UINT type)
      : text_(WithEditLineBreaks(text ? text : L"")),
        caption_(caption ? caption : L""),
        type_(type),
        keys_(KeysOf(type)),
        icon_(IconOf(type)) {}

  // Returns the command of the key that ended the box, 0 when there is none.
  int Show(HWND owner);

 private:
  static INT_PTR CALLBACK DialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  INT_PTR Handle(UINT message, WPARAM wParam, LPARAM lParam);
  void OnInit();
  void OnCommand(int command, int notification);
  void OnErase(HDC dc) const;
  void MakeKeys();
  void DrawKey(const DRAWITEMSTRUCT& item) const;
  void MakeText(int width, bool scrolls);
  HWND MakePart(const wchar_t* windowClass, const std::wstring& text, DWORD style, int id);
  bool HasKey(int command) const;
  int KeyWidth(const Key& key) const;
  int KeyRowWidth() const;
  int TextLeft() const { return Scaled(kMargin) + (icon_ ? Scaled(kIconSize + kMargin) : 0); }
  int WantedWidth() const;
  void Place();
  int PlaceText(int right, int mostHeight);
  void PlaceKeys(int boxWidth, int top);

  std::wstring text_;
  std::wstring caption_;
  UINT type_;
  std::span<const Key> keys_;
  HICON icon_;
  Font font_ = ShellFont(kTextHeight, FW_NORMAL);
  HWND window_ = nullptr;
  HWND textControl_ = nullptr;
};

int Box::Show(HWND owner) {
  static constexpr struct {
    DLGTEMPLATE header{WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN, 0, 0, 0, 0, 0, 0};
    WORD menuClassTitle[3]{};
  } kTemplate;
  MessageBeep(type_ & MB_ICONMASK);
  const INT_PTR answer = DialogBoxIndirectParamW(GetModuleHandleW(nullptr), &kTemplate.header,
                                                 owner, DialogProc, reinterpret_cast<LPARAM>(this));
  return std::max(0, static_cast<int>(answer));
}

INT_PTR CALLBACK Box::DialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  Box* box = DialogOwnerOf(&Box::window_, window, message, lParam);
  return box ? box->Handle(message, wParam, lParam) : FALSE;
}

INT_PTR Box::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITDIALOG:
      OnInit();
      return FALSE;  // the focus is where it belongs
    case WM_COMMAND:
      OnCommand(LOWORD(wParam), HIWORD(wParam));
      return TRUE;
    case WM_DRAWITEM:
      DrawKey(*reinterpret_cast<DRAWITEMSTRUCT*>(lParam));
      return TRUE;
    case WM_SETTINGCHANGE:
      Place();
      return TRUE;
    case WM_MOUSEWHEEL:
      SendMessageW(textControl_, message, wParam, lParam);
      return TRUE;
    case WM_ERASEBKGND:
      OnErase(reinterpret_cast<HDC>(wParam));
      return TRUE;
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORBTN:
      SetBkColor(reinterpret_cast<HDC>(wParam), kPaper);
      SetTextColor(reinterpret_cast<HDC>(wParam), kInk);
      return reinterpret_cast<INT_PTR>(GetStockObject(WHITE_BRUSH));
    default:
      return FALSE;
  }
}

void Box::OnInit() {
  SetWindowTextW(window_, caption_.c_str());
  MakeKeys();
  Place();
  ShellWindows& shell = ShellWindows::Instance();
  shell.SetTitleButton(shell.Adopt(window_),
                       HasKey(IDCANCEL) ? TitleButton::kCancel : TitleButton::kNone);
  const std::size_t preset = std::min<std::size_t>((type_ & MB_DEFMASK) >> 8, keys_.size() - 1);
  SetFocus(GetDlgItem(window_, keys_[preset].command));
}

// The Esc key is heard as Cancel; it also ends what has but an OK.
void Box::OnCommand(int command, int notification) {
  if (notification == BN_SETFOCUS) {
    SendMessageW(window_, DM_SETDEFID, static_cast<WPARAM>(command), 0);  // for the Enter key
  } else if (notification != BN_CLICKED) {
    return;
  } else if (HasKey(command)) {
    EndDialog(window_, command);
  } else if (command == IDCANCEL && keys_.size() == 1) {
    EndDialog(window_, keys_[0].command);
  }
}

void Box::OnErase(HDC dc) const {
  const RECT client = ClientArea(window_);
  FillPlain(dc, client, kStripEdge);
  const int border = Scaled(1);
  FillPlain(dc, {border, 0, client.right - border, client.bottom - border}, kPaper);
  if (!icon_) return;
  DrawIconEx(dc, Scaled(kMargin), Scaled(kMargin), icon_, Scaled(kIconSize), Scaled(kIconSize), 0,
             nullptr, DI_NORMAL);
}

HWND Box::MakePart(const wchar_t* windowClass, const std::wstring& text, DWORD style, int id) {
  const HWND part =
      CreateWindowExW(0, windowClass, text.c_str(), WS_CHILD | WS_VISIBLE | style, 0, 0, 0, 0,
                      window_, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
  SendMessageW(part, WM_SETFONT, reinterpret_cast<WPARAM>(font_.Get()), FALSE);
  return part;
}

// A key answers to the first letter of its word. It is painted here: the system's would underline
// that letter and mark the focus twice.
void Box::MakeKeys() {
  for (const Key& key : keys_) {
    MakePart(L"Button", L"&" + Words().*key.word,
             BS_OWNERDRAW | BS_NOTIFY | WS_TABSTOP | (&key == keys_.data() ? WS_GROUP : 0),
             key.command);
  }
}

void Box::DrawKey(const DRAWITEMSTRUCT& item) const {
  const bool hasFocus = (item.itemState & ODS_FOCUS) != 0;
  RECT area = item.rcItem;
  FillPlain(item.hDC, area, hasFocus ? kFocusEdge : kEdge);
  const int edge = Scaled(hasFocus ? 2 : 1);
  InflateRect(&area, -edge, -edge);
  FillPlain(item.hDC, area, item.itemState & ODS_SELECTED ? kFlatPaper : kPaper);
  wchar_t word[64] = {};  // behind the mark of its letter
  GetWindowTextW(item.hwndItem, word, ARRAYSIZE(word));
  SetBkMode(item.hDC, TRANSPARENT);
  SetTextColor(item.hDC, kInk);
  DrawTextW(item.hDC, word + 1, -1, &area, DT_SINGLELINE | DT_VCENTER | DT_CENTER | DT_NOPREFIX);
}

// An edit control, because it breaks paths that are longer than a line and can be scrolled.
void Box::MakeText(int width, bool scrolls) {
  if (textControl_) DestroyWindow(textControl_);
  textControl_ =
      MakePart(L"Edit", text_, ES_MULTILINE | ES_READONLY | (scrolls ? WS_VSCROLL | WS_TABSTOP : 0),
               kTextId);
  MoveWindow(textControl_, 0, 0, width, Scaled(kIconSize), FALSE);
  // Once it has a width: breaking a long text for none takes a second.
  SendMessageW(textControl_, EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, 0);
}

bool Box::HasKey(int command) const {
  return std::any_of(keys_.begin(), keys_.end(),
                     [&](const Key& key) { return key.command == command; });
}

int Box::KeyWidth(const Key& key) const {
  const int word = SizeOfText(font_.Get(), Words().*key.word).cx;
  return std::max(Scaled(kLeastKeyWidth), word + 2 * Scaled(kKeyPadding));
}

int Box::KeyRowWidth() const {
  int width = -Scaled(kKeyGap);
  for (const Key& key : keys_) width += KeyWidth(key) + Scaled(kKeyGap);
  return width;
}

int Box::WantedWidth() const {
  const Font bold = ShellFont(kTextHeight, FW_BOLD);
  const int margin = Scaled(kMargin);
  const int text = TextLeft() + SizeOfText(font_.Get(), text_).cx + Scaled(2) + margin;
  return std::max({text, KeyRowWidth() + 2 * margin,
                   static_cast<int>(SizeOfText(bold.Get(), caption_).cx) + 3 * margin});
}

void Box::Place() {
  const RECT client = ShellWindows::Instance().Client();
  const int margin = Scaled(kMargin);
  const int width =
      std::min({WantedWidth(), static_cast<int>(client.right - client.left) - 2 * Scaled(kSideRoom),
                Scaled(kMostWidth)});
  const int mostHeight = client.bottom - client.top - 2 * Scaled(kSideRoom);
  const int textHeight = PlaceText(width - margin, mostHeight - 3 * margin - Scaled(kKeyHeight));
  const int keysTop = 2 * margin + std::max(textHeight, icon_ ? Scaled(kIconSize) : 0);
  PlaceKeys(width, keysTop);
  const int height = keysTop + Scaled(kKeyHeight) + margin;
  // The title strip lies above the box; both together are in the middle of the screen.
  SetWindowPos(window_, nullptr, (client.left + client.right - width) / 2,
               (client.top + client.bottom - height) / 2, width, height,
               SWP_NOZORDER | SWP_NOACTIVATE);
}

// Beside the middle of the icon. Returns the height, which is at most `mostHeight`; what does not
// fit is scrolled.
int Box::PlaceText(int right, int mostHeight) {
  const int left = TextLeft();
  const int lineHeight = SizeOfText(font_.Get(), L"X").cy;
  MakeText(right - left, false);
  int height = lineHeight * static_cast<int>(SendMessageW(textControl_, EM_GETLINECOUNT, 0, 0));
  if (height > mostHeight) {
    height = mostHeight - mostHeight % lineHeight;
    MakeText(right - left, true);
  }
  const int iconOver = icon_ ? std::max(0, Scaled(kIconSize) - height) : 0;
  SetWindowPos(textControl_, HWND_TOP, left, Scaled(kMargin) + iconOver / 2, right - left, height,
               SWP_NOACTIVATE);
  return height;
}

void Box::PlaceKeys(int boxWidth, int top) {
  int left = (boxWidth - KeyRowWidth()) / 2;
  for (const Key& key : keys_) {
    const int width = KeyWidth(key);
    MoveWindow(GetDlgItem(window_, key.command), left, top, width, Scaled(kKeyHeight), TRUE);
    left += width + Scaled(kKeyGap);
  }
}

int WINAPI ShowMessageBox(HWND owner, const wchar_t* text, const wchar_t* caption, UINT type) {
  return Box(text, caption, type).Show(owner);
}

}  // namespace

void SetMessageBoxWords(const MessageBoxWords& words) {
  for (const auto word : {&MessageBoxWords::ok, &MessageBoxWords::cancel, &MessageBoxWords::yes,
                          &MessageBoxWords::no}) {
    if (!(words.*word).empty()) Words().*word = words.*word;
  }
}

}  // namespace tidewell

// The slot through which the program calls MessageBoxW. The linker meets it here first and leaves
// the system's own alone.
extern "C" decltype(&MessageBoxW) __imp_MessageBoxW;
decltype(&MessageBoxW) __imp_MessageBoxW = tidewell::ShowMessageBox;
