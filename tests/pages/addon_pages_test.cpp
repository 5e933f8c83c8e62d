// What the pages with add-ons do beyond their rows, and that no registry stops them.
#include "pages/categories_page.h"
#include "pages/contacts_page.h"
#include "pages/notes_page.h"
#include "pages/tabs_page.h"
#include "platform/text.h"
#include "tests/pages/fake_view.h"
#include "tests/support/test_device.h"
#include "tests/support/utf8.h"

namespace tidewell {
namespace {

using Ids = std::vector<int>;
const KeyPlace kItems{RegistryRoot::kLocalMachine, L"SOFTWARE\\Microsoft\\Today\\Items"};
const std::wstring kAlphabets = L"Software\\Velmont\\Tidewell\\Contacts\\Alphabets";
const std::wstring kFolders = L"Software\\Velmont\\Tidewell\\Notes\\Folders";

class AddOnPages : public testing::Test, protected TestDevice {
 protected:
  AddOnPages() { Load(); }
  void PutItem(const std::wstring& name, std::uint32_t type, std::uint32_t enabled) {
    const KeyPlace item{kItems.root, kItems.path + L"\\" + name};
    Put(item, L"Type", type);
    Put(item, L"Enabled", enabled);
    Put(item, L"DLL", name + L".dll");
  }
  static std::vector<std::uint32_t> DataOf(const Choices& choices) {
    std::vector<std::uint32_t> data;
    for (const Choice& choice : choices) data.push_back(choice.data);
    return data;
  }
};

TEST_F(AddOnPages, OfferTheSearchBarsOfTheActiveAlphabets) {
  using namespace contacts_ids;
  files.Put(store.installFolder + L"\\CustomAlphabets\\Runes.txt");
  Put(kAlphabets, L"Runes", 1);
  ContactsSettings& s = store.contacts;
  const struct {
    std::uint32_t active, stored;
    const wchar_t* name;
    std::vector<std::uint32_t> offered;
    int shown;
  } cases[] = {{0, 1, L"", {0, 5, 7}, 0},
               {5, 3, L"", {0, 1, 3, 5, 6, 7}, 2},
               {31, 5, L"Runes", {0, 1, 2, 3, 4, 5, 6, 7}, 5},
               {31, 5, L"runes", {0, 1, 2, 3, 4, 5, 6, 7}, 0},
               {16, 6, L"", {0, 5, 6, 7}, 2}};
  for (const auto& c : cases) {
    s.CntctsActiveLanguages.Set(c.active);
    s.CntctsActiveSearchBar.Set(c.stored);
    s.ContactsCustomSearchBarSelected.Set(c.name);
    FakeView page(MakeContactsPage(context));
    EXPECT_EQ(DataOf(page.ChoicesOf(kSearchBar)), c.offered) << c.active;
    EXPECT_EQ(page.State(kSearchBar).selection, c.shown) << c.active;
  }
  // From the Notes page for both; the first line is the choice whether or not it is confirmed.
  dialogs.turned = {1};
  for (dialogs.confirms = false;; dialogs.confirms = true) {
    store.notes.NotesActiveSearchBar.Set(1);
    FakeView page(MakeNotesPage(context));
    page.Choose(notes_ids::kSearchBar,
                static_cast<int>(page.ChoicesOf(notes_ids::kSearchBar).size()) - 1);
    EXPECT_EQ(s.CntctsActiveLanguages.Value(), dialogs.confirms ? 18u : 16u);
    page.Close();
    EXPECT_EQ(store.notes.NotesActiveSearchBar.Value(), 0u);
    if (dialogs.confirms) break;
  }
  FakeView page(MakeContactsPage(context));
  page.Choose(kSearchBar, 2);
  page.Close();
  EXPECT_EQ(s.CntctsActiveSearchBar.Value(), 5u);
  EXPECT_EQ(s.ContactsCustomSearchBarSelected.Value(), L"Runes");
}

TEST_F(AddOnPages, GreyWhatALayoutOrAGestureDoesNotHave) {
  FakeView contacts(MakeContactsPage(context));
  const Ids byLayout[] = {{1213, 1214, 1215, 1216}, {1213, 1214}, {1213, 1214, 1217}};
  for (const int layout : {0, 1, 2}) {
    contacts.Choose(contacts_ids::kLayout, layout);
    EXPECT_EQ(contacts.Enabled(1213, 1217), byLayout[layout]);
  }
  FakeView tabs(MakeTabsPage(context));
  EXPECT_EQ(tabs.Enabled(1204, 1207), (Ids{1204, 1205, 1206, 1207}));
  tabs.Choose(tabs_ids::kGestures, 0);
  EXPECT_EQ(tabs.Enabled(1204, 1207), (Ids{1204, 1205}));
}

TEST_F(AddOnPages, StoreFileTypesWithTheirDoubledBits) {
  const struct {
    bool installed;
    std::uint32_t before;
    Ids taps;
    std::uint32_t after;
  } cases[] = {{false, 831, {}, 831},
               {false, 0, {1213, 1211}, 32 + 264},
               {false, 8 + 2, {1209, 1212}, 264 + 528 + 32},
               {true, 831, {1208, 1213}, 798},
               {true, 256, {1213}, 32}};
  for (const auto& c : cases) {
    Delete(L"SOFTWARE\\Velmont Listwise");
    if (c.installed) Put(L"SOFTWARE\\Velmont Listwise", L"UtilityLibrary", L"\\list.dll");
    store.notes.NotesScannedFileTypes.Set(c.before);
    FakeView page(MakeNotesPage(context));
    EXPECT_EQ(page.Enabled(1213, 1213).empty(), !c.installed);
    for (const int box : c.taps) {
      if (c.installed || box != notes_ids::kListwise) page.Tap(box);
    }
    page.Close();
    EXPECT_EQ(store.notes.NotesScannedFileTypes.Value(), c.after) << c.before;
  }
}

TEST_F(AddOnPages, AddAndRemoveNoteFolders) {
  using namespace notes_ids;
  files.Put(L"\\Inbox\\");
  {
    FakeView page(MakeNotesPage(context));
    page.Tap(kRemove);
    dialogs.answer = L"\\Inbox\\";
    page.Tap(kAdd);
    page.Tap(kAdd);
    EXPECT_EQ(dialogs.shown.size(), 4u) << "select first, two choices, added already";
    page.Close();
  }
  EXPECT_EQ(Dump(kFolders), "[" + Utf8(kFolders) + "]\n0 = \"\\Inbox\"\n");
  FakeView page(MakeNotesPage(context));
  page.SelectLine(kFolderList, 0);
  page.Tap(kRemove);
  page.Close();
  EXPECT_EQ(Dump(kFolders), "[" + Utf8(kFolders) + "]\n");
}

TEST_F(AddOnPages, OrderTickHostAndLetGoOfTabs) {
  using namespace tabs_ids;
  for (const wchar_t* name : {L"Clock", L"Off", L"Tidewell"}) PutItem(name, 4, name[0] != L'O');
  PutItem(L"System", 1, 1);
  const auto isOn = [&](const wchar_t* name) {
    return Stored({kItems.root, kItems.path + L"\\" + name}, L"Enabled");
  };
  FakeView page(MakeTabsPage(context));
  EXPECT_EQ(page.Lines(kTabList).size(), 5u) << "all but the calendar";
  const struct {
    std::optional<std::size_t> line;
    bool agrees;
    std::size_t tabs;
    std::uint32_t clock;
    int refreshes;
    std::size_t messages;
  } adds[] = {{std::nullopt, true, 5, 1, 0, 1},
              {0, false, 5, 1, 0, 1},
              {0, true, 6, 0, 1, 1},
              {0, true, 6, 0, 1, 1},
              {1, true, 7, 0, 1, 0}};
  for (const auto& add : adds) {
    dialogs.shown.clear();
    dialogs.chosenLine = add.line;
    dialogs.agrees = add.agrees;
    page.Tap(kAdd);
    EXPECT_EQ(page.Lines(kTabList).size(), add.tabs);
    EXPECT_EQ(isOn(L"Clock"), add.clock);
    EXPECT_EQ(memory.system.refreshes, add.refreshes);
    EXPECT_EQ(dialogs.shown.size(), add.messages);
  }
  EXPECT_EQ(dialogs.lines, (std::vector<std::wstring>{L"Clock", L"Off"}));
  EXPECT_EQ(page.Enabled(kRemove, kRemove), Ids{kRemove}) << "the new one is selected";
  page.Tap(kRemove);
  page.SelectLine(kTabList, 0);
  EXPECT_EQ(page.Enabled(kRemove, kRemove), Ids{});
  page.Tap(kDown);
  page.Tick(kTabList, 0);
  page.Close();
  const TabList expected = {{TabType::kCalendar, 1, 1, L"", L"", L"", L""},
                            {TabType::kNotes, 2, 0, L"", L"", L"", L""},
                            {TabType::kTasks, 3, 1, L"", L"", L"", L""},
                            {TabType::kContacts, 4, 1, L"", L"", L"", L""},
                            {TabType::kMail, 5, 1, L"", L"", L"", L""},
                            {TabType::kSpecialEvents, 6, 1, L"", L"", L"", L""},
                            {TabType::kHosted, 7, 1, L"Clock", L"Clock.dll", L"", L""}};
  EXPECT_EQ(store.tabs, expected);
}

TEST_F(AddOnPages, EditCategoriesAndFiltersInMemory) {
  using namespace categories_ids;
  LoadWith({L"Home", L"Work"});
  FakeView page(MakeCategoriesPage(context));
  page.SelectLine(kCategoryList, 1);
  dialogs.chosenColor = 0x332211;
  page.Tap(kColor);
  EXPECT_EQ(catalog.FindCategory(L"Work")->color, 0x332211u);
  EXPECT_EQ(page.looks[1].swatch, 0x332211u);
  EXPECT_EQ(page.Enabled(kSensitivity, kTitle), Ids{kFilterList});
  const std::pair<std::wstring, bool> titles[] = {{std::wstring(127, L'\xFF'), true},
                                                  {L"", false},
                                                  {std::wstring(128, L't'), false},
                                                  {L"a\"b", false},
                                                  {L"a\nb", false},
                                                  {L"\x416", false},
                                                  {L"\x10A", false},
                                                  {L"Work \\ home", true}};
  for (const auto& [title, isTaken] : titles) {
    page.SelectLine(kFilterList, 1);
    dialogs.answer = title;
    page.Tap(kTitle);
    EXPECT_EQ(catalog.FindFilter(2)->title == title, isTaken) << title.size();
  }
  catalog.FindFilter(32)->sensitivity = -7;
  page.SelectLine(kFilterList, 31);
  page.Tap(kUncategorized);
  EXPECT_EQ(catalog.FindFilter(32)->sensitivity, -7) << "what no line stands for stays";
  page.Choose(kSensitivity, 2);
  page.Tick(kFilterList, 31);
  const FilterRecord edited{L"Filter 32", 2, false, true, 32};
  EXPECT_EQ(*catalog.FindFilter(32), edited);
  page.Turn(2);
  page.Choose(kFilter, 31);
  page.Tick(kMemberList, 0);
  EXPECT_EQ(catalog.FindCategory(L"Home")->filterFlags, 1u << 31);
  for (dialogs.agrees = false; !dialogs.agrees; dialogs.agrees = true) {
    page.Tap(kReset);
    EXPECT_EQ(*catalog.FindFilter(32), edited) << "not agreed";
  }
  page.Tap(kReset);
  EXPECT_EQ(*catalog.FindFilter(32), DefaultFilter(32));
  EXPECT_EQ(page.SelectedLine(kFilterList), 31);
  EXPECT_EQ(page.State(kSensitivity).selection, 0);
  EXPECT_EQ(recorded.CountWrites(), 0);
}

// Wrong types, endless names and ten thousand entries.
TEST_F(AddOnPages, ComeToAnEndOnAnyRegistry) {
  for (int i = 0; i < 10'000; ++i) {
    const std::wstring name = FormatDecimal(i);
    Put({kItems.root, kItems.path + L"\\" + name}, L"Type", i % 2 ? 4 : 1);
    Put(kFolders, name, L"\\Notes " + name);
    Put(kAlphabets, name, name);
  }
  for (const KeyPlace& key :
       {KeyPlace(kFolders), KeyPlace(kAlphabets),
        KeyPlace(kItems.root, kItems.path + L"\\" + std::wstring(255, L'n'))}) {
    PutBytes(key, L"Type", {4});
    PutBytes(key, L"DLL", std::vector<unsigned char>(100'001, 'x'));
    Put(key, std::wstring(16'000, L'e'), 1);
    Put(key, L"", std::wstring(70'000, L'p'));
  }
  files.Put(L"\\Notes 7\\");
  FakeView notes(MakeNotesPage(context));
  EXPECT_EQ(notes.Lines(notes_ids::kFolderList), std::vector<ListLine>{{L"\\Notes 7"}});
  notes.Choose(notes_ids::kSearchBar, 3);
  notes.Close();
  EXPECT_EQ(Dump(kFolders), "[" + Utf8(kFolders) + "]\n0 = \"\\Notes 7\"\n");
  FakeView tabs(MakeTabsPage(context));
  tabs.Tap(tabs_ids::kAdd);
  EXPECT_EQ(dialogs.lines.size(), 5'000u);
}

}  // namespace
}  // namespace tidewell
