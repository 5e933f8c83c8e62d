// The bodies of tabs that are no rows, and the base of all pages.
#include "pages/categories_page.h"
#include "pages/notes_page.h"
#include "pages/tabs_page.h"
#include "pages/windows/settings_page.h"
#include "preview/windows/gdi_canvas.h"
#include "resources/text/text_ids.h"
#include "tests/pages/page_host.h"
#include "ui/windows/look.h"

namespace tidewell {
namespace {

TEST_F(PageHost, ItemsAreSelectedMovedAndTickedByAFinger) {
  using namespace tabs_ids;
  Open(PageIndex::kTabs);
  Turn(1);
  ListView_SetItemState(Control(kTabList), 1, LVIS_SELECTED, LVIS_SELECTED);
  TapControl(kUp);
  ListView_SetCheckState(Control(kTabList), 0, FALSE);
  Close();
  std::vector<std::pair<TabType, std::uint32_t>> tabs;
  for (const TabEntry& tab : store.tabs) tabs.emplace_back(tab.type, tab.enabled);
  tabs.resize(3);
  EXPECT_EQ(tabs,
            (decltype(tabs){{TabType::kCalendar, 1}, {TabType::kNotes, 0}, {TabType::kTasks, 1}}));
}

TEST_F(PageHost, ArrowsAndKeysBringEveryTabIntoViewAndATapSelectsIt) {
  Open(PageIndex::kCalendar);
  const int width = ClientArea(Tabs()).right;
  const auto tab = [&](int index) {
    RECT place{};
    TabCtrl_GetItemRect(Tabs(), index, &place);
    return place;
  };
  const auto isInView = [&](int index) {
    return tab(index).left >= 0 && tab(index).right <= width - 2 * 28;
  };
  ASSERT_FALSE(isInView(8));
  for (int taps = 0; taps < 9; ++taps) Tap(Tabs(), {width - 14, 10});
  EXPECT_TRUE(isInView(8));
  Tap(Tabs(), {tab(8).left + 5, 10});
  EXPECT_EQ(TabCtrl_GetCurSel(Tabs()), 8);
  for (int taps = 0; taps < 9; ++taps) Tap(Tabs(), {width - 28 - 14, 10});
  EXPECT_TRUE(isInView(0));
  EXPECT_EQ(TabCtrl_GetCurSel(Tabs()), 8) << "scrolling does not select";
  SetFocus(Tabs());
  Press(VK_LEFT);
  EXPECT_TRUE(isInView(7)) << "a key shows what it selects";
}

TEST_F(PageHost, TheActionKeyTurnsBoxesAndTheFocusLeavesAButtonThatIsGreyed) {
  using namespace tabs_ids;
  store.tabs.resize(35, {TabType::kHosted, 7, 1, L"Clock", L"", L"", L""});
  Open(PageIndex::kTabs);
  Turn(1);
  SetFocus(Control(kTabList));
  Press(VK_END);
  SetFocus(Control(kRemove));
  Press(VK_RETURN);
  EXPECT_EQ(FocusedId(), kTabList);
  const int top = ListView_GetTopIndex(Control(kTabList));
  EXPECT_GT(top, 0) << "what was in view still is";
  Press(VK_RETURN);
  Close();
  EXPECT_EQ(store.tabs.size(), 34u);
  EXPECT_EQ(std::next(store.tabs.begin(), top + 1)->enabled, 0u);
}

TEST_F(PageHost, AFilterThatEscapeLeavesInTheBoxShowsItsOwnMembers) {
  using namespace categories_ids;
  catalog.Categories()[0]->filterFlags = 1;
  Open(PageIndex::kCategories);
  Turn(2);
  SetFocus(Control(kFilter));
  Send(kFilter, CB_SHOWDROPDOWN, TRUE);
  for (const WPARAM key : {VK_DOWN, VK_ESCAPE}) Send(kFilter, WM_KEYDOWN, key);
  ASSERT_EQ(Selection(kFilter), 1);
  EXPECT_FALSE(ListView_GetCheckState(Control(kMemberList), 0));
}

// A list that goes does not take them along.
TEST_F(PageHost, PicturesOfLinesGoWithTheirPage) {
  Open(PageIndex::kNotes);
  const HIMAGELIST images = ListView_GetImageList(Control(notes_ids::kFolderList), LVSIL_SMALL);
  SetActiveWindow(host_.Get());
  DestroyWindow(page_->Window());
  int width = 0;
  int height = 0;
  EXPECT_TRUE(ImageList_GetIconSize(images, &width, &height));
  page_.reset();
}

class IconTab : public PageHost {
 protected:
  enum : int { kLeft = 1241, kRightLabel = 1244, kRight = 1245, kTaskLeft = 1247 };

  void SetUp() override {
    store.calendar.ClrApptRightIcons.Set(0x405);
    Open(PageIndex::kCalendar);
    Turn(4);
    PumpMessages();
  }
  void Press(LONG x) const { Send(kRight, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, 4)); }
  static std::wstring NameShown() {
    const HWND name = FindOwnWindow(L"ToolTipWindow");
    return name && IsWindowVisible(name) ? CaptionOf(name) : L"";
  }
};

// A strip names what the finger rests on or the keys have come to.
TEST_F(IconTab, NamesWhatIsMeantAndOffersTheIconsOfOnePlaceInAMenu) {
  Press(3);
  const HWND name = FindOwnWindow(L"ToolTipWindow");
  EXPECT_EQ(NameShown(), L"") << "not yet";
  const RECT strip = WindowRect(Control(kRight));
  EXPECT_EQ(WindowRect(name).right, strip.left + 1);
  EXPECT_EQ(WindowRect(name).bottom, strip.top + 2);
  Send(kRight, WM_TIMER, 9979);
  EXPECT_EQ(NameShown(), L"Reminder");
  Send(kRight, WM_TIMER, 9980);
  EXPECT_EQ(NameShown(), L"");
  Send(kRight, WM_LBUTTONUP);
  EXPECT_FALSE(IsWindow(name));
  Press(128);
  EXPECT_FALSE(FindOwnWindow(L"ToolTipWindow")) << "beside the cells";
  Press(3);
  Send(kRight, WM_LBUTTONUP);
  SetFocus(Control(kRight));
  PumpMessages();
  EXPECT_EQ(Screenshot(Control(kRight)).At(1, 1), RGB(255, 160, 0)) << "shows the focus";
  PageHost::Press(VK_RIGHT);
  EXPECT_EQ(NameShown(), L"Private");
  SetFocus(Control(kLeft));
  EXPECT_EQ(NameShown(), L"None") << "of the place that has the focus";
  RECT menu{};
  for (const WPARAM last : {VK_ESCAPE, VK_RETURN}) {
    const InModalLoop inMenu([&] {
      menu = WindowRect(FindOwnWindow(L"#32768"));
      for (const WPARAM key : {WPARAM{VK_DOWN}, WPARAM{VK_DOWN}, last}) {
        PostMessageW(Control(kLeft), WM_KEYDOWN, key, 1);
      }
    });
    Send(kLeft, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 4));
    PumpMessages();
    EXPECT_EQ(store.calendar.ApptLeftAlignIcon1.IsChanged(), last == VK_RETURN);
  }
  EXPECT_EQ(menu.left, WindowRect(Control(kLeft)).left);
  EXPECT_EQ(menu.top, WindowRect(Control(kLeft)).bottom + 1);
}

TEST_F(IconTab, StoresWhatIsTappedAtOnceAndPaintsTheRoomBelow) {
  CalendarSettings& s = store.calendar;
  EXPECT_EQ(Place(Control(kRight)).left, 100);
  EXPECT_EQ(Place(Control(kRight)).top, 31);
  EXPECT_EQ(TextOfControl(kRightLabel), L"Right icons");
  SetFocus(Control(kLeft));
  for (const WPARAM key : {VK_DOWN, VK_DOWN, VK_RIGHT}) PageHost::Press(key);
  EXPECT_EQ(FocusedId(), kRight);
  PumpMessages();
  Press(20);
  Send(kRight, WM_LBUTTONUP, 0, MAKELPARAM(20, 4));
  EXPECT_EQ(s.ClrApptRightIcons.Value(), 0x407u);
  RECT dirty{};
  GetUpdateRect(page_->Window(), &dirty, FALSE);
  const RECT room{0, 108, 240, 150};
  EXPECT_TRUE(EqualRect(&dirty, &room)) << "and only it";
  SendMessageW(Control(kTaskLeft), WM_COMMAND, 1146, 0);
  EXPECT_EQ(s.TaskLeftAlignIcon1.Value(), 4u);
  PumpMessages();
  const Screenshot shown(page_->Window());
  EXPECT_EQ(shown.At(0, 107), RGB(255, 255, 255));
  EXPECT_EQ(shown.At(0, 108), RGB(0, 0, 0));
  EXPECT_EQ(shown.At(239, 149), RGB(0, 0, 0));
  EXPECT_EQ(shown.At(0, 150), RGB(255, 255, 255));
}

// One object left behind by each would show; a few are the system's own.
TEST_F(IconTab, LeavesNoDrawingObjectsBehind) {
  IconCache icons(store.iconSet, scale, {}, [](IconSymbol) {
    return GdiImage::Of(Bitmap(CreateBitmap(12, 12, 1, 32, nullptr)));
  });
  context.icons = &icons;
  static constexpr RECT kPreview{0, 58, 240, 100};
  const auto visit = [&](int redraws) {
    Close();
    Open(PageIndex::kTasks);
    Turn(3);
    while (redraws-- > 0) {
      RedrawWindow(page_->Window(), &kPreview, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    }
    PumpMessages();
  };
  visit(1);
  const int before = CountDrawingObjects();
  {
    const Brush brush(CreateSolidBrush(kInk));
    ASSERT_EQ(CountDrawingObjects(), before + 1) << "they are counted at all";
  }
  for (int opening = 0; opening < 50; ++opening) visit(20);
  EXPECT_LT(CountDrawingObjects(), before + 10);
}

// The base and its factory, on a page that no table describes.
enum : int { kRows = 1400, kEdit, kClear, kBrowse, kName };

class FreePage final : public SettingsPage {
 public:
  using SettingsPage::SettingsPage;

  std::string told;

 private:
  int GetTabCount() const override { return 0; }
  int GetTabTitleId(int) const override { return 0; }
  void OnCreate(HWND) override {
    AddPathEdit(kEdit, kClear, kBrowse, L"\\My Documents", 8);
    AddEdit(kName, L"Name", {10, 32, 100, 20});
    const int texts[] = {IDS_GROUP_GENERAL, IDS_GROUP_CALENDAR, IDS_GROUP_TASKS};
    AddList(kRows, texts, 8);
  }
  void ShowTab(HWND window, int command) override {
    ShowControlRange(window, kRows, kName + 5, command);
  }
  void OnDestroy(HWND) override { told += "destroyed"; }
  LRESULT OnPreviewMessage1(HWND, WPARAM, LPARAM) override { return told += "first ", 0; }
  LRESULT OnPreviewMessage2(HWND, WPARAM, LPARAM) override { return told += "second ", 0; }
};

class BasePage : public PageHost {
 protected:
  void SetUp() override {
    auto made = std::make_unique<FreePage>(context);
    free_ = made.get();
    ASSERT_TRUE(made->Create(host_.Get(), L"FreeWin", L"Free"));
    page_ = std::move(made);
  }

  FreePage* free_ = nullptr;
};

TEST_F(BasePage, ShowsItsControlsHandsOnThePreviewsMessagesAndStoresOnceWhenItGoes) {
  EXPECT_EQ(Tabs(), nullptr);
  const wchar_t* const texts[] = {L"", L"\\My Documents", L"Clear", L"Select", L"Name"};
  for (int id = kRows; id <= kName; ++id) {
    EXPECT_TRUE(IsShown(id)) << id;
    EXPECT_EQ(TextOfControl(id), texts[id - kRows]);
  }
  SendMessageW(page_->Window(), 1788, 0, 0);
  SendMessageW(page_->Window(), 1789, 0, 0);
  SetActiveWindow(host_.Get());
  DestroyWindow(page_->Window());
  EXPECT_EQ(page_->Window(), nullptr);
  EXPECT_EQ(free_->told, "first second destroyed");
  page_.reset();
}

TEST_F(BasePage, MovesAListRowOrAsksForOneAndKeysLeaveTheListAtItsEnds) {
  const auto move = [&](int row, bool up) {
    ListView_SetItemState(Control(kRows), row, LVIS_SELECTED, LVIS_SELECTED);
    free_->MoveListItem(page_->Window(), kRows, up);
    std::wstring rows;
    for (int i = 0; i < 3; ++i) {
      wchar_t text[64] = {};
      ListView_GetItemText(Control(kRows), i, 0, text, 64);
      rows += text + std::wstring(L" ");
    }
    return rows;
  };
  EXPECT_EQ(move(99, true), L"General Calendar Tasks ");
  EXPECT_EQ(dialogs.shown,
            std::vector<std::wstring>{L"Nothing selected: Select an entry in the list first."});
  EXPECT_EQ(move(1, true), L"Calendar General Tasks ");
  EXPECT_EQ(move(0, true), L"Calendar General Tasks ");
  EXPECT_EQ(move(2, false), L"Calendar General Tasks ");
  EXPECT_EQ(dialogs.shown.size(), 1u) << "the ends need no message";
  SetFocus(Control(kRows));
  Press(VK_DOWN);
  Press(VK_DOWN);
  EXPECT_EQ(FocusedId(), kRows);
  while (ListView_GetNextItem(Control(kRows), -1, LVNI_FOCUSED) < 2) Press(VK_DOWN);
  Press(VK_DOWN);
  EXPECT_NE(FocusedId(), kRows);
  Press(VK_UP);
  EXPECT_EQ(FocusedId(), kRows);
}

TEST_F(BasePage, DrawsASwatchOfAColorAndOfNone) {
  const WindowDc screen(nullptr);
  const MemoryBitmap canvas(screen.Dc(), 60, 40);
  FillPlain(canvas.Dc(), {0, 0, 60, 40}, RGB(1, 2, 3));
  for (const COLORREF color : {RGB(200, 100, 50), static_cast<COLORREF>(-1)}) {
    free_->DrawColorSwatch(canvas.Dc(), color, 2, 2);
    EXPECT_EQ(GetPixel(canvas.Dc(), 2, 2), RGB(0, 0, 0));
    EXPECT_EQ(GetPixel(canvas.Dc(), 3, 3), color == kNoColor ? RGB(255, 255, 255) : color);
    EXPECT_EQ(GetPixel(canvas.Dc(), 45, 21), RGB(0, 0, 0));
    EXPECT_EQ(GetPixel(canvas.Dc(), 46, 22), RGB(1, 2, 3)) << "44 by 20";
  }
}

}  // namespace
}  // namespace tidewell
