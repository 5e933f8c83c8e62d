// Walks through everything there is to see. Each view says "picture NAME" on standard output and
// waits for a line on standard input; the one who started the tour takes the picture in between.
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <iterator>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "pages/categories_page.h"
#include "pages/colors_page.h"
#include "pages/page_list.h"
#include "pages/pim_page.h"
#include "pages/tabs_page.h"
#include "platform/text.h"
#include "tests/device/driven_program.h"
#include "tests/support/test_device.h"

namespace tidewell::device {

namespace {

using Step = std::function<void(DrivenProgram&)>;

Step Press(WPARAM key, int times = 1) {
  return [=](DrivenProgram& program) { program.Press(key, times); };
}

// A finger in the middle of the list that draws it upwards, and stays.
void DragList(DrivenProgram& program) {
  RECT client;
  GetClientRect(program.Main(), &client);
  const LONG x = client.right / 2;
  program.Drag({x, client.bottom / 2}, {x, client.bottom / 8});
}

void TapRightButton(DrivenProgram& program) {
  program.TapRightButton();
}

void Popup(DrivenProgram& program) {
  program.WaitForPopup();
}

void ClosePage(DrivenProgram& program) {
  program.PressOk();
  program.WaitForPopupToGo();
}

void PressConfirm(DrivenProgram& program) {
  program.TapOk();
}

Step Type(const wchar_t* text) {
  return [=](DrivenProgram& program) {
    const HWND field = FindWindowExW(program.WaitForPopup(), nullptr, L"Edit", nullptr);
    SendMessageW(field, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text));
  };
}

// Waits for what a step opens over the window in front, or for what was below it.
Step Opens(Step step) {
  return [step = std::move(step)](DrivenProgram& program) {
    const HWND below = program.WaitForPopup();
    step(program);
    WaitUntil([&] { return GetLastActivePopup(program.Main()) != below; });
    program.WaitForPopup();
  };
}

Step Opens(WPARAM key) {
  return Opens(Press(key));
}

// Confirms that text in the dialog's field, and waits for the message that follows.
Step Confirm(const wchar_t* text) {
  return Opens([=](DrivenProgram& program) {
    Type(text)(program);
    PressConfirm(program);
  });
}

// The control of the window in front tells that window, as a finger's tap would make it.
Step Notify(int id, WORD notification) {
  return [=](DrivenProgram& program) {
    const HWND front = program.WaitForPopup();
    PostMessageW(front, WM_COMMAND, MAKEWPARAM(static_cast<WORD>(id), notification),
                 reinterpret_cast<LPARAM>(GetDlgItem(front, id)));
  };
}

Step Click(int id) {
  return Opens(Notify(id, BN_CLICKED));
}

Step Tick(int id) {
  return [=](DrivenProgram& program) {
    SendMessageW(GetDlgItem(program.WaitForPopup(), id), BM_SETCHECK, BST_CHECKED, 0);
  };
}

// The line of a drop-down list that begins with that text.
Step ChooseLine(int id, const wchar_t* text) {
  return [=](DrivenProgram& program) {
    SendMessageW(GetDlgItem(program.WaitForPopup(), id), CB_SELECTSTRING, static_cast<WPARAM>(-1),
                 reinterpret_cast<LPARAM>(text));
    Notify(id, CBN_SELENDOK)(program);
  };
}

void ChooseNothing(DrivenProgram& program) {
  const HWND list = FindWindowExW(program.WaitForPopup(), nullptr, L"ComboBox", nullptr);
  SendMessageW(list, CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
}

Step Choose(int row) {
  return [=](DrivenProgram& program) {
    program.Press(VK_DOWN, row);
    program.Press(VK_RETURN);
    program.WaitForPopup();
  };
}

constexpr int kFontsRow = static_cast<int>(PageIndex::kFonts);
constexpr int kColorsRow = static_cast<int>(PageIndex::kColors);
constexpr wchar_t kSchemes[] = L"C:\\Program Files\\Velmont\\Tidewell\\Schemes\\";
constexpr wchar_t kBrokenScheme[] = L"A broken one.scm";    // the first of them
constexpr wchar_t kFirstScheme[] = L"Before applying.scm";  // without that one
constexpr wchar_t kSavedScheme[] = L"My colors";

const std::wstring kLongestName(255, L'x');  // too long for a file, with an extension

std::wstring SchemePath(const std::wstring& file) {
  return kSchemes + file;
}

// From the Colors page's first control: the field of the other tab, with that name in it.
Step NameScheme(const wchar_t* name) {
  return [=](DrivenProgram& program) {
    for (const WPARAM key : {VK_UP, VK_RIGHT, VK_TAB}) program.Press(key);
    const HWND field = GetDlgItem(GetLastActivePopup(program.Main()), colors_ids::kName);
    SendMessageW(field, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(name));
  };
}

// A button below the list with its first line selected; what follows is a question.
Step AskOfFirstScheme(int button) {
  return [=](DrivenProgram& program) {
    for (const WPARAM key : {VK_UP, VK_RIGHT, VK_TAB, VK_TAB, VK_TAB, VK_HOME, VK_SPACE}) {
      program.Press(key);
    }
    program.Press(VK_TAB, button);
    program.Press(VK_RETURN);
    program.WaitForPopup();
  };
}

// To the message that follows on a question.
const Step kAnswerYes = Click(IDYES);

// For the rest of the tour.
void LockFirstScheme(DrivenProgram&) {
  CreateFileW(SchemePath(kFirstScheme).c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0,
              nullptr);
}

void RemoveBrokenScheme(DrivenProgram&) {
  DeleteFileW(SchemePath(kBrokenScheme).c_str());
}

// To the list of fonts, which begin to be of use.
void UseOwnFonts(DrivenProgram& program) {
  for (const WPARAM key : {VK_UP, VK_UP, VK_RETURN, VK_DOWN, VK_RIGHT, VK_TAB}) program.Press(key);
}

struct View {
  std::string name;
  std::vector<Step> steps;   // from the main list as it opens
  void (*before)() = [] {};  // on the device, before the program starts
};

constexpr int kAboutRow = 12;
constexpr int kImportRow = 1;
constexpr int kExitRow = 2;
constexpr wchar_t kEmptyBackup[] = L"before the update";
constexpr wchar_t kOtherKeys[] = L"from a friend";
constexpr wchar_t kOwnBackup[] = L"My settings";
constexpr wchar_t kTaken[] = L"taken by a folder";

const View kViews[] = {
    {"main", {}},
    {"main-scrolled", {DragList}},
    {"main-selected", {Press(VK_DOWN, 3)}},
    {"main-last", {Press(VK_DOWN, kAboutRow)}},
    {"tools", {TapRightButton}},
    {"exit-question", {TapRightButton, Press(VK_DOWN, kExitRow), Press(VK_RETURN), Popup}},
    {"export", {TapRightButton, Press(VK_RETURN), Popup}},
    {"export-illegal-name", {TapRightButton, Press(VK_RETURN), Popup, Confirm(L"May/June")}},
    {"export-refused", {TapRightButton, Press(VK_RETURN), Popup, Confirm(kTaken)}},
    {"export-done", {TapRightButton, Press(VK_RETURN), Popup, Confirm(kOwnBackup)}},
    {"import", {TapRightButton, Press(VK_DOWN, kImportRow), Press(VK_RETURN), Popup}},
    {"import-no-name",
     {TapRightButton, Press(VK_DOWN, kImportRow), Press(VK_RETURN), Popup, Press(VK_UP),
      Press(VK_RETURN), Popup}},
    {"import-refused",
     {TapRightButton, Press(VK_DOWN, kImportRow), Press(VK_RETURN), Popup, Confirm(kEmptyBackup)}},
    {"import-question",
     {TapRightButton, Press(VK_DOWN, kImportRow), Press(VK_RETURN), Popup, Confirm(kOtherKeys)}},
    {"import-done",
     {TapRightButton, Press(VK_DOWN, kImportRow), Press(VK_RETURN), Popup, Confirm(kOwnBackup)}},
    {"about", {Press(VK_DOWN, kAboutRow), Press(VK_RETURN), Popup}},
    // The other icon set, chosen on one page and shown at once by the next.
    {"calendar-5-other-set",
     {Press(VK_RETURN), Popup, Press(VK_UP), Press(VK_RIGHT), Press(VK_DOWN, 5), Press(VK_RIGHT),
      ClosePage, Press(VK_DOWN), Press(VK_RETURN), Popup, Press(VK_UP), Press(VK_RIGHT, 4)}},
    {"fonts-2-selected", {Choose(kFontsRow), UseOwnFonts, Press(VK_DOWN, 2)}},
    {"fonts-2-last", {Choose(kFontsRow), UseOwnFonts, Press(VK_END)}},
    {"color-selected", {Choose(kColorsRow), Press(VK_DOWN)}},
    {"color-last", {Choose(kColorsRow), Press(VK_END)}},
    {"scheme-no-name", {Choose(kColorsRow), NameScheme(L""), Press(VK_RETURN, 2), Popup}},
    {"scheme-illegal-name",
     {Choose(kColorsRow), NameScheme(L"May/June"), Press(VK_RETURN, 2), Popup}},
    {"scheme-not-saved",
     {Choose(kColorsRow), NameScheme(kLongestName.c_str()), Press(VK_RETURN, 2), Popup}},
    {"scheme-saved", {Choose(kColorsRow), NameScheme(kSavedScheme), Press(VK_RETURN, 2), Popup}},
    {"scheme-taken", {Choose(kColorsRow), NameScheme(kSavedScheme), Press(VK_RETURN, 2), Popup}},
    {"scheme-none",
     {Choose(kColorsRow), NameScheme(L""), Press(VK_UP, 2), Press(VK_RETURN), Popup}},
    {"scheme-delete", {Choose(kColorsRow), AskOfFirstScheme(2)}},
    {"scheme-apply", {Choose(kColorsRow), AskOfFirstScheme(1)}},
    {"scheme-refused", {Choose(kColorsRow), AskOfFirstScheme(1), kAnswerYes}},
    {"scheme-not-opened",
     {Choose(kColorsRow), AskOfFirstScheme(1), RemoveBrokenScheme, kAnswerYes}},
    {"scheme-not-deleted", {Choose(kColorsRow), AskOfFirstScheme(2), LockFirstScheme, kAnswerYes}},
};

// "PIMSettingsWin" is shown as "pim".
std::string NameOf(const PageEntry& page) {
  std::wstring name = page.className;
  name.resize(name.find(L"SettingsWin"));
  std::transform(name.begin(), name.end(), name.begin(), FoldCase);
  return {name.begin(), name.end()};
}

PageTabs TabsOf(const PageEntry& page) {
  TestDevice device;
  return page.make(device.context)->Tabs();
}

// The first option of each kind on a tab that has options: Down leads to it from the row of tabs.
std::vector<View> OptionViews(const View& ofTab, const PageTab& tab) {
  std::vector<View> views;
  const auto* list = std::get_if<OptionList>(&tab.body);
  if (!list) return views;
  std::set<RowKind> kinds;
  for (std::size_t line = 0; line < list->options.size(); ++line) {
    if (!kinds.insert(list->options[line].editor.kind).second) continue;
    View& view = views.emplace_back(ofTab);
    view.name += "-option-" + std::to_string(line + 1);
    view.steps.push_back(Press(VK_DOWN, static_cast<int>(line) + 1));
  }
  return views;
}

// Every tab: from the page's first control, Up leads to the row of tabs, and Right turns it.
std::vector<View> ViewsOf(const PageEntry& page, int row) {
  std::vector<View> views;
  const PageTabs tabs = TabsOf(page);
  for (int tab = 0; tab < std::ssize(tabs); ++tab) {
    View view{NameOf(page) + "-" + std::to_string(tab + 1), {}};
    if (row > 0) view.steps.push_back(Press(VK_DOWN, row));
    view.steps.insert(view.steps.end(), {Press(VK_RETURN), Popup});
    if (tab > 0) view.steps.insert(view.steps.end(), {Press(VK_UP), Press(VK_RIGHT, tab)});
    views.push_back(view);
    for (View& option : OptionViews(view, tabs[static_cast<std::size_t>(tab)])) {
      views.push_back(std::move(option));
    }
  }
  return views;
}

// The dialogs and messages of single pages, from a page as it opens.
struct ViewOfPage {
  PageIndex page;
  View view;
};

constexpr wchar_t kCategories[] = L"C:\\pim.vol";
constexpr wchar_t kHiddenCategories[] = L"C:\\pim.hidden";

void HideCategories() {
  MoveFileW(kCategories, kHiddenCategories);
}

void ShowCategories() {
  MoveFileW(kHiddenCategories, kCategories);
}

const Step kToOrderTab = [](DrivenProgram& program) {
  for (const WPARAM key : {VK_UP, VK_RIGHT, VK_DOWN}) program.Press(key);
};
const Step kToAddTab = Press(VK_TAB, 3);
Step ToTab(int tab) {
  return [=](DrivenProgram& program) {
    program.Press(VK_UP);
    program.Press(VK_RIGHT, tab);
  };
}
// Of the calendar's options.
constexpr int kOptionTick = 1226;
constexpr int kBrowseOption = 1229;
constexpr int kFolderBrowse = 1203;
const Step kToFolders = [](DrivenProgram& program) {
  program.Press(VK_UP);
  program.Press(VK_RIGHT, 3);
  program.Press(VK_DOWN);
};

const ViewOfPage kPageViews[] = {
    {PageIndex::kCalendar,
     {"calendar-mail-program", {ToTab(6), Press(VK_DOWN, 5), Click(kBrowseOption)}}},
    {PageIndex::kCalendar,
     {"calendar-pinned-too-low", {ToTab(5), Press(VK_DOWN, 10), Tick(kOptionTick), Opens(VK_UP)}}},
    {PageIndex::kPim, {"pim-not-installed", {Opens(ChooseLine(pim_ids::kProgram, L"Velmont"))}}},
    {PageIndex::kContacts, {"contacts-search-bars", {Press(VK_RETURN)}}},
    {PageIndex::kContacts,
     {"contacts-alphabets", {Press(VK_RETURN), Press(VK_END), Opens(VK_RETURN)}}},
    {PageIndex::kNotes, {"notes-folder", {kToFolders, Press(VK_TAB), Opens(VK_RETURN)}}},
    {PageIndex::kNotes,
     {"notes-folder-listed",
      {kToFolders, Press(VK_TAB), Opens(VK_RETURN), Press(VK_DOWN), Opens(VK_F1)}}},
    {PageIndex::kNotes,
     {"notes-nothing-selected",
      {kToFolders, Press(VK_TAB, 2), Press(VK_RETURN), Opens(VK_RETURN)}}},
    {PageIndex::kTabs, {"tabs-nothing-selected", {ToTab(1), Click(tabs_ids::kUp)}}},
    {PageIndex::kTabs, {"tabs-selected", {kToOrderTab, Press(VK_DOWN)}}},
    {PageIndex::kTabs, {"tabs-plugin", {kToOrderTab, kToAddTab, Opens(VK_RETURN)}}},
    {PageIndex::kTabs,
     {"tabs-plugin-none",
      {kToOrderTab, kToAddTab, Opens(VK_RETURN), ChooseNothing, Opens(PressConfirm)}}},
    {PageIndex::kTabs,
     {"tabs-plugin-question",
      {kToOrderTab, kToAddTab, Opens(VK_RETURN), Press(VK_DOWN), Opens(VK_RETURN)}}},
    {PageIndex::kTabs,
     {"tabs-plugin-added", {kToOrderTab, kToAddTab, Opens(VK_RETURN), Opens(VK_RETURN)}}},
    {PageIndex::kTabs,
     {"tabs-plugin-listed",
      {kToOrderTab, kToAddTab, Opens(VK_RETURN), Opens(VK_RETURN), Opens(VK_RETURN),
       Opens(VK_RETURN)}}},
    {PageIndex::kCategories, {"category-folder", {Click(kFolderBrowse)}}},
    {PageIndex::kCategories, {"category-selected", {Press(VK_TAB, 3), Press(VK_DOWN)}}},
    {PageIndex::kCategories,
     {"category-color", {Press(VK_TAB, 3), Press(VK_DOWN), Opens(VK_RETURN)}}},
    {PageIndex::kCategories, {"category-filter", {ToTab(1), Press(VK_DOWN, 2)}}},
    {PageIndex::kCategories, {"category-title", {ToTab(1), Press(VK_DOWN), Opens(VK_RETURN)}}},
    {PageIndex::kCategories,
     {"category-title-refused",
      {ToTab(1), Press(VK_DOWN), Opens(VK_RETURN), Confirm(L"My \"own\"")}}},
    {PageIndex::kCategories, {"category-reset", {ToTab(1), Click(categories_ids::kReset)}}},
    {PageIndex::kCategories, {"category-members", {ToTab(2), Press(VK_DOWN, 2)}}},
    {PageIndex::kCategories, {"category-1-none", {}, HideCategories}},
    {PageIndex::kCategories, {"category-3-none", {ToTab(2)}, HideCategories}},
};

std::vector<View> DialogViews() {
  std::vector<View> views;
  for (const ViewOfPage& each : kPageViews) {
    View& view = views.emplace_back(each.view);
    std::vector<Step> way = {Press(VK_RETURN), Popup};
    if (const int row = static_cast<int>(each.page)) way.insert(way.begin(), Press(VK_DOWN, row));
    view.steps.insert(view.steps.begin(), way.begin(), way.end());
  }
  return views;
}

std::vector<View> AllViews() {
  std::vector<View> views(std::begin(kViews), std::end(kViews));
  for (int row = 0; row < kPageCount; ++row) {
    const PageEntry& page = kPages[static_cast<std::size_t>(row)];
    for (View& view : ViewsOf(page, row)) views.push_back(std::move(view));
  }
  for (View& view : DialogViews()) views.push_back(std::move(view));
  return views;
}

void Say(const char* word, const std::string& name) {
  std::printf("%s %s\n", word, name.c_str());
  std::fflush(stdout);
}

bool Show(const View& view) {
  view.before();
  DrivenProgram program;
  if (!program.WaitForMainWindow()) return false;
  for (const Step& step : view.steps) step(program);
  Say("picture", view.name);
  char answer[16];
  return std::fgets(answer, sizeof answer, stdin) != nullptr;
}

std::wstring BackupPath(const std::wstring& name) {
  return L"C:\\My Documents\\" + name + L".twsb";
}

void MakeText(const std::wstring& path, const std::wstring& text) {
  const HANDLE file =
      CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
  DWORD count = 0;
  WriteFile(file, text.data(), static_cast<DWORD>(text.size() * sizeof(wchar_t)), &count, nullptr);
  CloseHandle(file);
}

void MakeBackup(const std::wstring& name, const std::wstring& text) {
  MakeText(BackupPath(name), text);
}

// Those of a tour before.
void RemoveBackups() {
  WIN32_FIND_DATAW found;
  const HANDLE search = FindFirstFileW(BackupPath(L"*").c_str(), &found);
  do {
    DeleteFileW((std::wstring(L"C:\\My Documents\\") + found.cFileName).c_str());
  } while (FindNextFileW(search, &found));
  FindClose(search);
}

// For the file name dialog, which lists them, and for the messages of an export and an import.
void MakeBackups() {
  CreateDirectoryW(L"C:\\My Documents", nullptr);
  RemoveBackups();
  CreateDirectoryW(BackupPath(kTaken).c_str(), nullptr);
  MakeBackup(L"TW_Backup_2026_10_31", L"");
  MakeBackup(kEmptyBackup, L"");
  MakeBackup(kOtherKeys, L"\n[Software\\Microsoft\\Today\\Items]\n\"x\"=dword:1\n");
}

struct OwnValue {
  const wchar_t* key;  // below the product's
  const wchar_t* name;
  DWORD type;
  std::wstring text;
  DWORD number = 0;
};

// What a user has chosen on the Notes and the Categories page.
const OwnValue kOwnValues[] = {
    {L"Notes\\Folders", L"0", REG_SZ, L"\\My Documents"},
    {L"Notes\\Folders", L"1", REG_SZ, L"\\Storage Card\\Notes"},
    {L"Categories", L"CatColor.Business", REG_DWORD, {}, Rgb(51, 102, 204)},
    {L"Categories", L"CatColor.Family", REG_DWORD, {}, Rgb(255, 153, 0)},
    {L"Categories", L"CatColor.Health", REG_DWORD, {}, Rgb(204, 0, 0)},
    {L"Categories", L"CatFilter.Family", REG_DWORD, {}, 1},
};

void MakeOwnValues() {
  CreateDirectoryW(L"C:\\Storage Card", nullptr);
  CreateDirectoryW(L"C:\\Storage Card\\Notes", nullptr);
  for (const OwnValue& each : kOwnValues) {
    const std::wstring key = std::wstring(L"Software\\Velmont\\Tidewell\\") + each.key;
    const bool isText = each.type == REG_SZ;
    const auto size = static_cast<DWORD>((each.text.size() + 1) * sizeof(wchar_t));
    RegSetKeyValueW(HKEY_CURRENT_USER, key.c_str(), each.name, each.type,
                    isText ? static_cast<const void*>(each.text.c_str()) : &each.number,
                    isText ? size : sizeof each.number);
  }
}

void MakeSchemes() {
  MakeText(SchemePath(kBrokenScheme), L"");
  DeleteFileW(SchemePath(std::wstring(kSavedScheme) + L".scm").c_str());
}

int TakeTour() {
  MakeBackups();
  MakeOwnValues();
  ShowCategories();
  MakeSchemes();
  for (const View& view : AllViews()) {
    if (!Show(view)) {
      Say("trouble", view.name);
      return 1;
    }
  }
  Say("end", "of the tour");
  return 0;
}

}  // namespace

}  // namespace tidewell::device

int main() {
  return tidewell::device::TakeTour();
}
