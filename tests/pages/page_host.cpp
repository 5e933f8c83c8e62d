#include "tests/pages/page_host.h"

#include <commctrl.h>

#include "platform/desktop/device_shell.h"

namespace tidewell {

namespace {

constexpr wchar_t kHostClass[] = L"PageHost";

LRESULT CALLBACK HostProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == kClosePageMessage) {
    *reinterpret_cast<bool*>(GetWindowLongPtrW(window, GWLP_USERDATA)) = true;
    return 0;
  }
  return DefWindowProcW(window, message, wParam, lParam);
}

}  // namespace

PageHost::PageHost() {
  [[maybe_unused]] static const bool installed = (InstallDeviceShell(), true);
  WNDCLASSW hostClass{};
  hostClass.lpfnWndProc = HostProc;
  hostClass.lpszClassName = kHostClass;
  RegisterClassW(&hostClass);
  host_ = CreateWindowExW(0, kHostClass, L"", WS_POPUP | WS_VISIBLE, 0, 26, 240, 294, nullptr,
                          nullptr, nullptr, nullptr);
  SetWindowLongPtrW(host_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&askedToClose_));
  UseLanguage(L"TWEngRc.dll");
}

PageHost::~PageHost() {
  if (page_) Close();
  DestroyWindow(host_);
}

void PageHost::UseScreen(int width, int height, int dpi) {
  machine_.system.screen = {width, height, dpi, dpi};
  const int strip = 26 * dpi / 96;
  MoveWindow(host_, 0, strip, width, height - strip, FALSE);
}

void PageHost::UseLanguage(const std::wstring& library) {
  language_ = libraries_.Load(LANGUAGE_FOLDER + library);
  ASSERT_TRUE(language_) << "not built";
}

void PageHost::Load() {
  const ScreenFacts& screen = machine_.system.screen;
  const ScreenScale scale(screen.dpiX, screen.dpiY, false);
  door_.emplace(Machine{registry_, machine_.files, machine_.locale, *installed_, machine_.system});
  std::unique_ptr<ResourceLibrary> unused;
  store_.Load(*door_, scale, unused);
  categories_.emplace(*door_, store_);
  for (const wchar_t* name : {L"Business", L"Holiday", L"family"}) categories_->Add({name, 1});
  context_.emplace(PageContext{*door_, store_, *categories_, language_.get(), scale, &dialogs_});
}

void PageHost::Open(PageIndex page) {
  BeginToOpen(page);
  HandleMessages();
}

void PageHost::HandleMessages() {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
}

void PageHost::BeginToOpen(PageIndex page) {
  if (!context_) Load();
  page_ = CreatePage(static_cast<int>(page), host_, *context_);
  ASSERT_TRUE(page_);
}

void PageHost::Close() {
  SetActiveWindow(host_);
  DestroyWindow(page_->Window());
  page_.reset();
}

std::vector<std::wstring> PageHost::CloseAndSave() {
  Close();
  registry_.Meter().Reset();
  store_.Save(registry_, context_->scale);
  std::vector<std::wstring> touched = registry_.Meter().Paths(RegistryCall::kSet);
  for (std::wstring& path : registry_.Meter().Paths(RegistryCall::kDeleteValue)) {
    touched.push_back(std::move(path));
  }
  for (std::wstring& path : touched) path.erase(0, path.rfind(L'\\') + 1);
  return touched;
}

HWND PageHost::Tabs() const {
  return FindWindowExW(page_->Window(), nullptr, WC_TABCONTROLW, nullptr);
}

bool PageHost::IsShown(int id) const {
  return Control(id) && IsWindowVisible(Control(id));
}

int PageHost::Selection(int id) const {
  return static_cast<int>(SendMessageW(Control(id), CB_GETCURSEL, 0, 0));
}

int PageHost::Count(int id) const {
  return static_cast<int>(SendMessageW(Control(id), CB_GETCOUNT, 0, 0));
}

std::wstring PageHost::Line(int id, int line) const {
  wchar_t text[256] = {};
  SendMessageW(Control(id), CB_GETLBTEXT, static_cast<WPARAM>(line),
               reinterpret_cast<LPARAM>(text));
  return text;
}

std::wstring PageHost::TextOfControl(int id) const {
  wchar_t text[512] = {};
  GetWindowTextW(Control(id), text, 512);
  return text;
}

bool PageHost::IsChecked(int id) const {
  return SendMessageW(Control(id), BM_GETCHECK, 0, 0) == BST_CHECKED;
}

void PageHost::Tap(int id) {
  RECT area;
  GetClientRect(Control(id), &area);
  const LPARAM middle = MAKELPARAM(area.right / 2, area.bottom / 2);
  SendMessageW(Control(id), WM_LBUTTONDOWN, MK_LBUTTON, middle);
  SendMessageW(Control(id), WM_LBUTTONUP, 0, middle);
}

void PageHost::Choose(int id, int line) {
  SetFocus(Control(id));
  SendMessageW(Control(id), CB_SHOWDROPDOWN, TRUE, 0);
  while (Selection(id) != line) {
    const int before = Selection(id);
    SendMessageW(Control(id), WM_KEYDOWN, before < line ? VK_DOWN : VK_UP, 0);
    ASSERT_NE(Selection(id), before) << id << " has no line " << line;
  }
  SendMessageW(Control(id), WM_KEYDOWN, VK_RETURN, 0);
}

void PageHost::Type(int id, const wchar_t* text) {
  HWND edit = Control(id);
  if (const HWND inner = FindWindowExW(edit, nullptr, WC_EDITW, nullptr)) edit = inner;
  SetFocus(edit);
  SendMessageW(edit, EM_SETSEL, 0, -1);
  for (; *text; ++text) SendMessageW(edit, WM_CHAR, *text, 1);
}

void PageHost::Turn(int tab) {
  RECT area;
  SendMessageW(Tabs(), TCM_GETITEMRECT, static_cast<WPARAM>(tab), reinterpret_cast<LPARAM>(&area));
  const LPARAM middle = MAKELPARAM((area.left + area.right) / 2, (area.top + area.bottom) / 2);
  SendMessageW(Tabs(), WM_LBUTTONDOWN, MK_LBUTTON, middle);
  SendMessageW(Tabs(), WM_LBUTTONUP, 0, middle);
}

void PageHost::Press(WPARAM key) {
  const HWND focus = GetFocus();
  SendMessageW(focus, WM_KEYDOWN, key, 1);
  if (key == VK_SPACE || key == VK_RETURN || key == VK_TAB) SendMessageW(focus, WM_CHAR, key, 1);
  SendMessageW(focus, WM_KEYUP, key, 1);
}

int PageHost::FocusedId() const {
  HWND focus = GetFocus();
  if (focus == Tabs()) return 0;
  if (GetParent(focus) != page_->Window()) focus = GetParent(focus);
  return GetDlgCtrlID(focus);
}

}  // namespace tidewell
