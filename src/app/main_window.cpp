#include "app/main_window.h"

#include <windowsx.h>

#include <utility>
#include <vector>

#include "app/about_box.h"
#include "app/resource.h"
#include "app/settings_changed.h"
#include "app/single_instance.h"
#include "platform/desktop/device_shell.h"
#include "platform/text.h"
#include "preview/windows/decode_image.h"
#include "preview/windows/resource_icons.h"
#include "resources/art/bitmap_ids.h"
#include "resources/text/text_ids.h"
#include "ui/windows/look.h"
#include "win32/tahoma.h"
#include "win32/window_owner.h"

namespace tidewell {

namespace {

// Where the language library itself may be what broke the start.
constexpr const wchar_t* kStartFailedText =
    L"The start failed and nothing was changed: restart the device.";

// The page that posts it is still at work.
constexpr UINT kEndForScheme = WM_APP;

POINT PointOf(LPARAM lParam) {
  return {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
}

// What a window is told that was never completed.
bool BelongsToItsLife(UINT message) {
  return message == WM_CREATE || message == WM_DESTROY || message == WM_NCDESTROY;
}

HMODULE ModuleOf(const ResourceLibrary* library) {
  return library ? static_cast<HMODULE>(library->Handle()) : nullptr;
}

}  // namespace

MainWindow::MainWindow(HINSTANCE instance, const Machine& machine, MainWindowParts parts)
    : instance_(instance),
      machine_(machine),
      parts_(std::move(parts)),
      categories_(machine, settings_) {}

MainWindow::~MainWindow() {
  if (window_) DestroyWindow(window_);
}

bool MainWindow::Create() {
  WNDCLASSW windowClass{};
  windowClass.lpfnWndProc = WindowProc;
  windowClass.hInstance = instance_;
  windowClass.hIcon = LoadIconW(instance_, MAKEINTRESOURCEW(IDI_TIDEWELL));
  windowClass.lpszClassName = kMainWindowClass;
  RegisterClassW(&windowClass);
  return CreateWindowExW(static_cast<DWORD>(WS_EX_CAPTIONOKBTN), kMainWindowClass,
                         kMainWindowCaption, 0x14000800, CW_USEDEFAULT, CW_USEDEFAULT,
                         CW_USEDEFAULT, CW_USEDEFAULT, nullptr, nullptr, instance_,
                         this) != nullptr;
}

void MainWindow::GiveUp() {
  // A library that the settings were loaded with has given texts already.
  const std::wstring text =
      settings_.IsLoaded() ? language_.Text(IDS_START_FAILED, kStartFailedText) : kStartFailedText;
  DestroyWindow(window_);
  Dialogs().ShowMessage(text, kMainWindowCaption);
}

LRESULT CALLBACK MainWindow::WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  MainWindow* mainWindow = OwnerOf(&MainWindow::window_, window, message, lParam);
  return mainWindow ? mainWindow->Handle(message, wParam, lParam)
                    : DefWindowProcW(window, message, wParam, lParam);
}

LRESULT MainWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  if (!isComplete_ && !BelongsToItsLife(message)) {
    return DefWindowProcW(window_, message, wParam, lParam);
  }
  switch (message) {
    case WM_CREATE:
      return OnCreate();
    case WM_CLOSE:
      return OnClose();
    case WM_DESTROY:
      return OnDestroy();
    case WM_SIZE:
      return OnSize(LOWORD(lParam), HIWORD(lParam));
    case WM_ACTIVATE:
      return OnActivate(wParam, lParam);
    case WM_SETTINGCHANGE:
      SHHandleWMSettingChange(window_, wParam, lParam, &activation_);
      return 0;
    case WM_PAINT:
      return OnPaint();
    case WM_ERASEBKGND:
      list_.Paint(reinterpret_cast<HDC>(wParam));
      return 1;
    case WM_KEYDOWN:
      return OnKeyDown(wParam);
    case WM_TIMER:
      list_.Pointer().Timer(wParam);
      return 0;
    case WM_MOUSEMOVE:
      list_.Pointer().PointerMove(PointOf(lParam));
      return 0;
    case WM_LBUTTONDOWN:
      return OnPointerDown(PointOf(lParam));
    case WM_LBUTTONUP:
      return OnPointerUp(PointOf(lParam));
    case WM_CAPTURECHANGED:
      list_.Pointer().PointerLost();
      return 0;
    case WM_COMMAND:
      return OnCommand(LOWORD(wParam));
    case kClosePageMessage:
      ClosePage();
      return 0;
    case kEndForScheme:
      EndForScheme();
      return 0;
    case WM_NCDESTROY:
      return LetGo(window_, wParam, lParam);
    default:
      return DefWindowProcW(window_, message, wParam, lParam);
  }
}

LRESULT MainWindow::OnCreate() {
  imaging_.emplace();
  activation_ = {};
  activation_.cbSize = sizeof activation_;
  FixScale();
  settings_.Load(machine_, scale_, language_);
  NameMessageBoxKeys();
  LoadPictures();
  MakeIconCache();
  CreateFonts();
  LoadCategories();
  ShowMainEntries();
  isComplete_ = true;
  return 0;
}

// A question or a dialog is open: whoever asked comes back to the window and to its page.
bool MainWindow::IsAsking() const {
  return !IsWindowEnabled(window_) || (page_ && !IsWindowEnabled(page_->Window()));
}

// By the system, say. Nothing is saved.
LRESULT MainWindow::OnClose() {
  if (!IsAsking()) DestroyWindow(window_);
  return 0;
}

LRESULT MainWindow::OnDestroy() {
  page_.reset();
  regular_.Reset();
  bold_.Reset();
  previewIcons_.reset();
  language_.Unload();
  pictures_.reset();
  imaging_.reset();
  // Before the message loop nothing is there to be ended but a message to the user.
  if (isComplete_) PostQuitMessage(0);
  return 0;
}

void MainWindow::FixScale() {
  settings_.root.MyVgaMode.LoadAlone(machine_.registry, {});
  const ScreenFacts screen = machine_.system.Screen();
  scale_ = ScreenScale(screen.dpiX, screen.dpiY, settings_.root.MyVgaMode.Value() != 0);
}

void MainWindow::LoadPictures() {
  const wchar_t* file = scale_.ScaleX(1) < 2 ? L"\\LowDpiRes.dll" : L"\\HighDpiRes.dll";
  pictures_ = machine_.libraries.Load(settings_.installFolder + file);
}

LoadImageFile MainWindow::ImageLoader() {
  return [this](const std::wstring& path) {
    return DecodeImage(machine_.files, imaging_->Factory(), path);
  };
}

void MainWindow::MakeIconCache() {
  previewIcons_.emplace(settings_.iconSet, scale_, ImageLoader(),
                        ResourceIcons(ModuleOf(pictures_.get())));
}

// A device's message boxes have words of their own.
void MainWindow::NameMessageBoxKeys() {
  SetMessageBoxWords({language_.Text(IDS_OK), language_.Text(IDS_CANCEL), language_.Text(IDS_YES),
                      language_.Text(IDS_NO)});
}

void MainWindow::CreateFonts() {
  regular_ = TahomaFont(scale_.ScaleX(12), FW_DONTCARE);
  bold_ = TahomaFont(scale_.ScaleX(12), FW_BOLD);
  list_.Create(window_, scale_, regular_.Get(), bold_.Get(),
               [this](int command) { RunListCommand(command); });
}

void MainWindow::LoadCategories() {
  const auto source = parts_.openCategories(settings_.root.TWIconsFolder.Value());
  categories_.Rebuild(*source, language_.Text(IDS_ALL_CATEGORIES));
}

void MainWindow::ShowEntries(std::span<const MainEntry> entries) {
  std::vector<CommandEntry> rows;
  for (const MainEntry& entry : entries) {
    rows.push_back({entry.text + language_.Text(entry.textId),
                    entry.picture ? LoadPicture(entry.picture) : Picture(), entry.command});
  }
  const RECT client = ClientArea(window_);
  list_.Show(std::move(rows), client.right, ListHeight(client.bottom));
  InvalidateRect(window_, nullptr, FALSE);
  UpdateWindow(window_);
}

void MainWindow::ShowMainEntries() {
  commandBar_.SetButton(CommandBar::kLeftSlot, LoadPicture(IDB_DONE), kDoneCommand);
  commandBar_.SetButton(CommandBar::kRightSlot, LoadPicture(IDB_TOOLS), kShowToolsCommand);
  ShowEntries(MainEntries());
}

void MainWindow::ShowTools() {
  commandBar_.RemoveButton(CommandBar::kLeftSlot);
  commandBar_.SetButton(CommandBar::kRightSlot, LoadPicture(IDB_EXIT), kShowMainCommand);
  ShowEntries(ToolEntries());
}

void MainWindow::RunListCommand(int command) {
  if (command < kGroupCount) {
    OpenPage(command);
    return;
  }
  switch (command) {
    case kAboutCommand:
      ShowAbout();
      return;
    case kExportCommand:
      Backup().ExportSettingsBackup();
      return;
    case kImportCommand:
      Import();
      return;
    case kExitCommand:
      AskToExit();
      return;
  }
}

BackupCommands MainWindow::Backup() {
  return {machine_, settings_, categories_, language_, scale_, Dialogs()};
}

void MainWindow::Import() {
  if (!Backup().ImportSettingsBackup()) return;
  BroadcastSettingsChanged();
  DestroyWindow(window_);
}

void MainWindow::RunBarCommand(std::optional<int> command) {
  if (!command) return;
  switch (*command) {
    case kDoneCommand:
      Done();
      return;
    case kShowToolsCommand:
      ShowTools();
      return;
    case kShowMainCommand:
      ShowMainEntries();
      return;
  }
}

void MainWindow::ShowAbout() {
  ShowAboutBox(window_, AboutTidewell(instance_, ModuleOf(pictures_.get())), scale_);
}

void MainWindow::OpenPage(int page) {
  SetWindowTextW(window_, L"");
  pageContext_.emplace(PageContext{machine_, settings_, categories_, language_, scale_, &Dialogs(),
                                   &*previewIcons_, ImageLoader(),
                                   [this] { PostMessageW(window_, kEndForScheme, 0, 0); }});
  page_ = parts_.createPage(page, window_, *pageContext_);
  if (page_) {
    BringWindowToTop(page_->Window());
  } else {
    SetWindowTextW(window_, kMainWindowCaption);
  }
}

void MainWindow::ClosePage() {
  if (!page_) return;
  // Otherwise the page's going might hand the activation to another program.
  SetActiveWindow(window_);
  DestroyWindow(page_->Window());
  page_.reset();
  SetWindowTextW(window_, kMainWindowCaption);
}

void MainWindow::Done() {
  if (page_) {
    ClosePage();
    return;
  }
  settings_.Save(machine_.registry, scale_);
  categories_.SaveCategoryValues();
  categories_.SaveFiltersFile();
  BroadcastSettingsChanged();
  DestroyWindow(window_);
}

void MainWindow::AskToExit() {
  const bool exits =
      Dialogs().Ask(language_.Text(IDS_EXIT_QUESTION), language_.Text(IDS_EXIT_CAPTION), true);
  if (exits) DestroyWindow(window_);
}

// Nothing is saved, not even what a page holds that is still open.
void MainWindow::EndForScheme() {
  settings_.Load(machine_, scale_, language_);
  language_.Unload();
  machine_.system.RefreshTodayScreen();
  DestroyWindow(window_);
}

DialogContext MainWindow::DialogOverAll() const {
  return {page_ ? page_->Window() : window_, machine_, language_, scale_};
}

LRESULT MainWindow::OnSize(int width, int height) {
  list_.Resize(width, ListHeight(height));
  InvalidateRect(window_, nullptr, FALSE);
  return 1;
}

LRESULT MainWindow::OnActivate(WPARAM wParam, LPARAM lParam) {
  SHFullScreen(window_, SHFS_HIDESIPBUTTON);
  SHHandleWMActivate(window_, wParam, lParam, &activation_, 0);
  return 0;
}

LRESULT MainWindow::OnPaint() {
  // The list has a bitmap of its own; a second one of the whole window would only cost memory.
  const PaintDc screen(window_);
  list_.Paint(screen.Dc());
  const BufferedArea bar(screen.Dc(), BarArea());
  commandBar_.Paint(bar.Dc(), bar.Area(), scale_);
  return 0;
}

LRESULT MainWindow::OnKeyDown(WPARAM key) {
  switch (key) {
    case VK_RETURN:
      list_.RunSelected();
      break;
    case VK_UP:
      list_.MoveSelection(-1);
      break;
    case VK_DOWN:
      list_.MoveSelection(1);
      break;
  }
  return 0;
}

LRESULT MainWindow::OnPointerDown(POINT point) {
  if (commandBar_.CommandAt(BarArea(), point)) {
    PressBar(point);
  } else {
    list_.Pointer().PointerDown(point);
  }
  return 0;
}

LRESULT MainWindow::OnPointerUp(POINT point) {
  PressBar(std::nullopt);
  // A drag of the list may end over a button of the bar; that is no tap on the button.
  if (!list_.Pointer().PointerUp(point)) {
    RunBarCommand(commandBar_.CommandAt(BarArea(), point));
  }
  return 0;
}

// The shell may have posted it before a dialog opened.
LRESULT MainWindow::OnCommand(int id) {
  if (IsAsking()) return 0;
  switch (id) {
    case IDOK:
      Done();
      break;
    case ID_LEFT_BUTTON:
      RunBarCommand(commandBar_.Command(CommandBar::kLeftSlot));
      break;
    case ID_RIGHT_BUTTON:
      RunBarCommand(commandBar_.Command(CommandBar::kRightSlot));
      break;
  }
  return 0;
}

void MainWindow::PressBar(std::optional<POINT> point) {
  const RECT area = BarArea();
  if (commandBar_.ShowPressed(area, point)) InvalidateRect(window_, &area, FALSE);
}

Picture MainWindow::LoadPicture(int id) const {
  return Picture(ModuleOf(pictures_.get()), static_cast<WORD>(id));
}

int MainWindow::ListHeight(int clientHeight) const {
  return clientHeight - CommandBar::Height(scale_);
}

RECT MainWindow::BarArea() const {
  RECT area = ClientArea(window_);
  area.top = ListHeight(area.bottom);
  return area;
}

}  // namespace tidewell
