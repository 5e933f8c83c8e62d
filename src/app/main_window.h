// The program's one window: the list of settings groups or of tools, the command bar, and the page
// that covers them while a group is open.
#pragma once

#include <windows.h>

#include <aygshell.h>

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>

#include "app/backup_commands.h"
#include "app/main_entries.h"
#include "categories/category_catalog.h"
#include "pages/windows/page_window.h"
#include "platform/libraries.h"
#include "platform/machine.h"
#include "platform/scale.h"
#include "platform/windows/imaging.h"
#include "preview/icons.h"
#include "settings/settings_store.h"
#include "ui/windows/command_bar.h"
#include "ui/windows/command_list.h"
#include "ui/windows/device_dialogs.h"
#include "win32/gdi.h"

namespace tidewell {

// Opens the device's categories, whose icons lie in a folder. Closed when destroyed.
using CategorySourceFactory =
    std::function<std::unique_ptr<CategorySource>(const std::wstring& iconsFolder)>;

// What the main window works with beside the machine.
struct MainWindowParts {
  PageFactory createPage;
  CategorySourceFactory openCategories;
  UserDialogs* dialogs = nullptr;  // null: the device's own
};

class MainWindow {
 public:
  MainWindow(HINSTANCE instance, const Machine& machine, MainWindowParts parts);
  MainWindow(const MainWindow&) = delete;
  MainWindow& operator=(const MainWindow&) = delete;
  ~MainWindow();

  // Loads everything and shows the main entries. False when the window could not be made.
  bool Create();
  // False when the window was made but its loading broke off: the system swallows an access
  // violation there and hands out the window all the same. It answers nothing and saves nothing.
  bool IsComplete() const { return isComplete_; }
  // Lets go of a window that is not complete, and tells the user what to do.
  void GiveUp();
  void ShowAbout();

  HWND Window() const { return window_; }
  const CommandList& List() const { return list_; }
  const CommandBar& Bar() const { return commandBar_; }
  SettingsStore& Settings() { return settings_; }
  CategoryCatalog& Categories() { return categories_; }

 private:
  static LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);

  LRESULT OnCreate();
  bool IsAsking() const;
  LRESULT OnClose();
  LRESULT OnDestroy();
  LRESULT OnSize(int width, int height);
  LRESULT OnActivate(WPARAM wParam, LPARAM lParam);
  LRESULT OnPaint();
  LRESULT OnKeyDown(WPARAM key);
  LRESULT OnPointerDown(POINT point);
  LRESULT OnPointerUp(POINT point);
  LRESULT OnCommand(int id);

  void FixScale();
  void NameMessageBoxKeys();
  void LoadPictures();
  LoadImageFile ImageLoader();
  void MakeIconCache();
  void CreateFonts();
  void LoadCategories();
  void ShowEntries(std::span<const MainEntry> entries);
  void ShowMainEntries();
  void ShowTools();
  void RunListCommand(int command);
  UserDialogs& Dialogs() { return parts_.dialogs ? *parts_.dialogs : deviceDialogs_; }
  BackupCommands Backup();
  void Import();
  void RunBarCommand(std::optional<int> command);
  void OpenPage(int page);
  void ClosePage();
  void Done();
  void AskToExit();
  void EndForScheme();
  DialogContext DialogOverAll() const;
  void PressBar(std::optional<POINT> point);
  Picture LoadPicture(int id) const;
  int ListHeight(int clientHeight) const;
  RECT BarArea() const;

  HINSTANCE instance_;
  Machine machine_;
  MainWindowParts parts_;
  HWND window_ = nullptr;
  bool isComplete_ = false;
  SHACTIVATEINFO activation_{};
  ScreenScale scale_;
  SettingsStore settings_;
  CategoryCatalog categories_;
  std::optional<Imaging> imaging_;
  Language language_;
  std::unique_ptr<ResourceLibrary> pictures_;
  std::optional<IconCache> previewIcons_;
  Font regular_;
  Font bold_;
  CommandList list_;
  CommandBar commandBar_;
  DeviceDialogs deviceDialogs_{[this] { return DialogOverAll(); }};
  std::optional<PageContext> pageContext_;
  std::unique_ptr<PageWindow> page_;  // null while the list is shown
};

}  // namespace tidewell
