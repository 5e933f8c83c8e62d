// Opening the pages and dialogs that list what a device has, where it has very much of it, until
// all of it is painted; beside as many bare controls with as many bare lines. Each list is then
// walked to its end by the screenful.
#include <windows.h>

#include <commctrl.h>

#include <array>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "bench/figures.h"
#include "bench/page_stage.h"
#include "categories/windows/pim_categories.h"
#include "pages/categories_page.h"
#include "pages/contacts_page.h"
#include "pages/notes_page.h"
#include "pages/tabs_page.h"
#include "platform/text.h"
#include "settings/registry_values.h"
#include "ui/windows/device_dialogs.h"

namespace tidewell::bench {

namespace {

constexpr int kCategories = 300;
constexpr int kPlugins = 500;
constexpr int kFolders = 200;
constexpr int kAlphabets = 500;

constexpr int kRounds = 12;
constexpr double kOpeningAim = 250;  // milliseconds
constexpr double kTurningAim = 100;
constexpr double kScreenfulAim = 50;
constexpr int kMostScreenfuls = 1000;
constexpr UINT kDialogIsOpen = WM_APP;
constexpr wchar_t kWatcherClass[] = L"CrowdWatcher";

const std::wstring kProduct = L"Software\\Velmont\\Tidewell\\";
const std::wstring kItems = L"Software\\Microsoft\\Today\\Items\\";
const std::wstring kFolder = L"\\Crowd";
const std::wstring kAlphabetFolder = L"\\Program Files\\Velmont\\Tidewell\\CustomAlphabets";

// What fills the device as long as it lives.
class Crowd {
 public:
  Crowd() {
    MakeFolder(kFolder);
    Each(kCategories, L"Category ", [this](const std::wstring& name, int i) {
      WriteIcon(name);
      volume_ += std::to_string(i + 1) + " 0 " + std::string(name.begin(), name.end()) + "\n";
    });
    WriteFile(VolumePath(), volume_);
    Each(kPlugins, L"Plug-in ", [this](const std::wstring& name, int) { WritePlugin(name); });
    Each(kFolders, L"\\Crowd\\Notes ", [this](const std::wstring& path, int i) {
      MakeFolder(path);
      const auto key = Create(RegistryRoot::kCurrentUser, kProduct + L"Notes\\Folders");
      WriteString(key.get(), FormatDecimal(i), path);
    });
    Each(kAlphabets, L"A ", [this](const std::wstring& name, int) {
      WriteFile(JoinPath(kAlphabetFolder, name + L".txt"), "ABC");
      const auto key = Create(RegistryRoot::kCurrentUser, kProduct + L"Contacts\\Alphabets");
      WriteDword(key.get(), name, 1);
    });
  }
  Crowd(const Crowd&) = delete;
  Crowd& operator=(const Crowd&) = delete;
  ~Crowd() {
    for (const std::wstring& file : files_) DeleteFileW(file.c_str());
    while (!folders_.empty()) {
      RemoveDirectoryW(folders_.back().c_str());
      folders_.pop_back();
    }
    for (const auto& [root, path] : keys_) door_.registry.DeleteTree(root, path);
  }

  static std::wstring VolumePath() { return kFolder + L"\\pim.vol"; }

 private:
  template <typename Make>
  static void Each(int count, const wchar_t* name, Make make) {
    for (int i = 0; i < count; ++i) make(name + FormatDecimal(1000 + i), i);
  }

  void MakeFolder(const std::wstring& path) {
    door_.files.MakeFolder(path);
    folders_.push_back(path);
  }
  void WriteFile(const std::wstring& path, const std::string& bytes) {
    const auto file = door_.files.OpenForWriting(path);
    if (file.stream) file.stream->Write(std::as_bytes(std::span(bytes)));
    files_.push_back(path);
  }
  std::unique_ptr<RegistryKey> Create(RegistryRoot root, const std::wstring& path) {
    keys_.emplace_back(root, path);
    return door_.registry.Create(root, path);
  }

  // 16 by 16 points of 24 bits.
  void WriteIcon(const std::wstring& name) {
    BITMAPFILEHEADER file{0x4D42, 54 + 768, 0, 0, 54};
    BITMAPINFOHEADER info{sizeof info, 16, 16, 1, 24, BI_RGB, 768, 0, 0, 0, 0};
    std::string bytes(reinterpret_cast<const char*>(&file), sizeof file);
    bytes.append(reinterpret_cast<const char*>(&info), sizeof info);
    WriteFile(JoinPath(kFolder, name + L".bmp"), bytes + std::string(768, '\x80'));
  }

  // One that can be hosted, and its tab.
  void WritePlugin(const std::wstring& name) {
    const auto item = Create(RegistryRoot::kLocalMachine, kItems + name);
    WriteDword(item.get(), L"Type", 4);
    WriteString(item.get(), L"DLL", L"\\Windows\\plugin.dll");
    const auto tab = Create(RegistryRoot::kCurrentUser, kProduct + L"TabSettings\\" + name);
    WriteDword(tab.get(), L"Type", 1);
    WriteDword(tab.get(), L"Enabled", 1);
    WriteString(tab.get(), L"DLL", L"\\Windows\\plugin.dll");
  }

  WindowsMachine machine_;
  Machine door_ = machine_.Door();
  std::string volume_;
  std::vector<std::wstring> files_;
  std::vector<std::wstring> folders_;
  std::vector<std::pair<RegistryRoot, std::wstring>> keys_;
};

// A list view or a drop-down list with many lines.
class LongList {
 public:
  explicit LongList(HWND list) : list_(list), lines_(BareWindow::CountLines(list)) {
    isDropDown_ = ListView_GetHeader(list) == nullptr;
  }

  // Returns the last line that was reached, from 1.
  int WalkToEnd(Samples& screenfuls) const {
    SetFocus(list_);
    if (isDropDown_) SendMessageW(list_, CB_SHOWDROPDOWN, TRUE, 0);
    HandleAll();
    int before = -1;
    for (int i = 0; i < kMostScreenfuls && before != Line(); ++i) {
      before = Line();
      const Stopwatch watch;
      SendMessageW(list_, WM_KEYDOWN, VK_NEXT, 0);
      PaintAll();
      screenfuls.Add(watch.Milliseconds());
    }
    if (isDropDown_) SendMessageW(list_, WM_KEYDOWN, VK_ESCAPE, 0);
    return before + 1;
  }
  int Lines() const { return lines_; }

 private:
  int Line() const {
    if (isDropDown_) return static_cast<int>(SendMessageW(list_, CB_GETCURSEL, 0, 0));
    const int line = ListView_GetNextItem(list_, -1, LVNI_FOCUSED);
    return ListView_IsItemVisible(list_, line) ? line : -1;
  }

  HWND list_;
  int lines_;
  bool isDropDown_;
};

// What one page or dialog took.
struct Opening {
  Comparison times;
  Samples turning;  // to the tab of the list; none when it is the first one
  Samples screenfuls;
  int reached = 0;
  int lines = 0;

  void Walk(HWND control) {
    const LongList list(control);
    lines = list.Lines();
    reached = list.WalkToEnd(screenfuls);
  }
  void Print(const std::string& name) const {
    // The floor has no registry to read.
    PrintRatio(name.c_str(), times, kNoAim, "ms");
    PrintSamples("  until it is painted", times.ours, kOpeningAim, " ms");
    if (turning.Quantile(1) > 0) PrintSamples("  turn to the list", turning, kTurningAim, " ms");
    PrintSamples("  turn on by a screenful", screenfuls, kScreenfulAim, " ms",
                 "to line " + std::to_string(reached) + " of " + std::to_string(lines));
  }
};

class CrowdedBench {
 public:
  CrowdedBench() {
    bench = this;
    WNDCLASSW watcher{};
    watcher.lpfnWndProc = WatcherProc;
    watcher.lpszClassName = kWatcherClass;
    RegisterClassW(&watcher);
    watcher_ = CreateWindowExW(0, kWatcherClass, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr,
                               nullptr);
    PimCategorySource source(stage_.Context().machine.files, kFolder, Crowd::VolumePath());
    stage_.Categories().Rebuild(source, L"All");
    stage_.Context().dialogs = &dialogs_;
  }
  ~CrowdedBench() { DestroyWindow(watcher_); }

  void Run() {
    MeasurePage(PageIndex::kCategories, "300 categories", 0, categories_ids::kCategoryList);
    MeasurePage(PageIndex::kCategories, "300 members", 2, categories_ids::kMemberList);
    MeasurePage(PageIndex::kTabs, "500 tabs", 1, tabs_ids::kTabList);
    MeasureDialog(PageIndex::kTabs, "the picker of 500 plug-ins", 1, [](HWND page) {
      SendMessageW(page, WM_COMMAND, MAKEWPARAM(tabs_ids::kAdd, BN_CLICKED), 0);
    });
    MeasurePage(PageIndex::kNotes, "200 folders", 3, notes_ids::kFolderList);
    MeasurePage(PageIndex::kContacts, "500 alphabets", 0, contacts_ids::kSearchBar);
    MeasureDialog(PageIndex::kContacts, "the choice of 500 alphabets", 0, [](HWND page) {
      const HWND bar = GetDlgItem(page, contacts_ids::kSearchBar);
      SendMessageW(bar, CB_SETCURSEL, SendMessageW(bar, CB_GETCOUNT, 0, 0) - 1, 0);
      SendMessageW(page, WM_COMMAND, MAKEWPARAM(contacts_ids::kSearchBar, CBN_SELENDOK), 0);
    });
  }

 private:
  void MeasurePage(PageIndex index, const std::string& crowd, int tab, int listId) {
    const int page = static_cast<int>(index);
    Opening opening;
    for (int round = 0; round < kRounds; ++round) {
      const auto [opened, open] = stage_.TimeOpening(page);
      if (tab > 0) Turn(opened->Window(), tab, opening.turning);
      const auto controls = BareWindow::ControlsOf(opened->Window(), false, true);
      opening.times.Add(open, stage_.TimeBareWindow(controls));
      opening.Walk(GetDlgItem(opened->Window(), listId));
      stage_.Close(*opened);
    }
    opening.Print("open " + NameOfPage(page) + ", " + crowd + ", " + stage_.Screen());
  }

  static void Turn(HWND page, int tab, Samples& turning) {
    const Stopwatch watch;
    TurnTo(page, tab);
    turning.Add(watch.Milliseconds());
  }

  void MeasureDialog(PageIndex index, const std::string& name, int tab,
                     const std::function<void(HWND)>& open) {
    Opening opening;
    for (int round = 0; round < kRounds; ++round) {
      const auto page = stage_.Open(static_cast<int>(index));
      TurnTo(page->Window(), tab);
      HandleAll();
      parent_ = page->Window();
      const Stopwatch watch;
      whenOpen_ = [&](HWND dialog) {
        PaintAll();
        const double took = watch.Milliseconds();
        const auto controls = BareWindow::ControlsOf(dialog, false, true);
        opening.times.Add(took, stage_.TimeBareWindow(controls));
        SetActiveWindow(dialog);
        opening.Walk(LongestOf(dialog));
      };
      PostMessageW(watcher_, kDialogIsOpen, 0, 0);
      open(page->Window());
      stage_.Close(*page);
    }
    opening.Print("open " + name + ", " + stage_.Screen());
  }

  static HWND LongestOf(HWND dialog) {
    HWND longest = nullptr;
    for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
      if (BareWindow::CountLines(child) > BareWindow::CountLines(longest)) longest = child;
    }
    return longest;
  }

  // The dialog's own loop hands out the message that was posted before it opened.
  static LRESULT CALLBACK WatcherProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != kDialogIsOpen) return DefWindowProcW(window, message, wParam, lParam);
    const HWND dialog = GetActiveWindow();
    bench->whenOpen_(dialog);
    PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
    return 0;
  }

  static inline CrowdedBench* bench = nullptr;

  PageStage stage_;
  HWND parent_ = nullptr;
  HWND watcher_ = nullptr;
  std::function<void(HWND)> whenOpen_;
  DeviceDialogs dialogs_{[this] {
    const PageContext& context = stage_.Context();
    return DialogContext{parent_, context.machine, context.language, context.scale};
  }};
};

}  // namespace

}  // namespace tidewell::bench

int main() {
  tidewell::InstallDeviceShell();
  const tidewell::bench::Crowd crowd;
  tidewell::bench::CrowdedBench().Run();
}
