// A page as a real window with real controls, over a host of its own, on a machine in memory with
// the real language library; worked by messages as a finger would.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "pages/create_page.h"
#include "pages/page_dialogs.h"
#include "pages/page_list.h"
#include "platform/memory/memory_machine.h"
#include "platform/memory/metered_registry.h"
#include "platform/windows/windows_libraries.h"
#include "settings/settings_store.h"

namespace tidewell {

// Answers in the user's place and keeps what was shown.
class FakeDialogs final : public PageDialogs {
 public:
  void ShowMessage(HWND, const std::wstring& text, const std::wstring& caption) override {
    messages.push_back(caption + L": " + text);
  }
  std::optional<std::wstring> ChooseFolder(HWND, const PageContext&, const std::wstring& title,
                                           const std::wstring& present) override {
    asked.push_back(title + L": " + present);
    return answer;
  }

  std::vector<std::wstring> messages;
  std::vector<std::wstring> asked;
  std::optional<std::wstring> answer;
};

class PageHost : public testing::Test {
 protected:
  PageHost();
  ~PageHost() override;

  void Load();
  // A screen of other pixels and dots per inch, and the language of a library.
  void UseScreen(int width, int height, int dpi);
  void UseLanguage(const std::wstring& library);

  void Open(PageIndex page);
  // Until its first tab is painted.
  void BeginToOpen(PageIndex page);
  void HandleMessages();
  // As the host does on OK. The settings have what the page's controls held.
  void Close();
  // Closes, saves as Done does, and returns what reached the registry, each as "name".
  std::vector<std::wstring> CloseAndSave();

  HWND Control(int id) const { return GetDlgItem(page_->Window(), id); }
  HWND Tabs() const;
  bool IsShown(int id) const;
  bool IsUsable(int id) const { return Control(id) && IsWindowEnabled(Control(id)); }
  int Selection(int id) const;
  int Count(int id) const;
  std::wstring Line(int id, int line) const;
  std::wstring TextOfControl(int id) const;
  bool IsChecked(int id) const;

  void Tap(int id);
  // As the list does when a line is tapped.
  void Choose(int id, int line);
  void Type(int id, const wchar_t* text);
  void Turn(int tab);
  // To the control that has the focus.
  void Press(WPARAM key);
  int FocusedId() const;

  MemoryMachine machine_;
  MeteredRegistry registry_{machine_.registry};
  WindowsLibraries libraries_;
  ResourceLibraries* installed_ = &libraries_;  // what a scan for language packs meets
  std::optional<Machine> door_;
  FakeDialogs dialogs_;
  SettingsStore store_;
  std::optional<CategoryCatalog> categories_;
  std::unique_ptr<ResourceLibrary> language_;
  std::optional<PageContext> context_;
  std::unique_ptr<HostedPage> page_;
  HWND host_ = nullptr;
  bool askedToClose_ = false;
};

}  // namespace tidewell
