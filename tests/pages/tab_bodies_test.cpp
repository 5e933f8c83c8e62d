// The bodies of tabs that no page of rows has, a list of options with its editor and a list of
// items; and the base of all pages.
#include "pages/windows/rules_page.h"
#include "preview/today_preview.h"
#include "preview/windows/gdi_canvas.h"
#include "resources/text/text_ids.h"
#include "tests/pages/page_host.h"
#include "ui/windows/look.h"

namespace tidewell {
namespace {

enum : int { kOptions = 1300, kItems, kUp, kLabel, kList };
const OptionEditor kEditor{0, kLabel, kList};

class SampleRules final : public PageRules {
 public:
  SampleRules(PageContext& context, std::vector<PageEvent>& heard)
      : context_(context), heard_(heard) {}

  PageTabs Tabs() override {
    MessagesSettings& s = context_.settings.messages;
    return {{IDS_PAGE_TAB_GENERAL,
             OptionList{kOptions,
                        kEditor,
                        {{IDS_GROUP_NOTES, 0,
                          DataList(0, 0, IDS_DIVIDER, s.MsgsBreakLineStyle, Numbers(1, 3, 1))}}}},
            {IDS_PAGE_TAB_DISPLAY, ItemList{kItems,
                                            ListLook::kTicked,
                                            {10, 8, -100, 28},
                                            {{kUp, IDS_MOVE_UP, {-85, 8, 75, 20}}}}}};
  }
  void OnBuilt(PageView& view, int tab) override {
    if (tab == 1) view.SetLines(kItems, {{L"One", 1}, {L"Two", 2, true}});
  }
  void OnEvent(PageView& view, const PageEvent& event) override {
    heard_.push_back(event);
    if (event.id == kUp) view.MoveLine(kItems, true);
  }
  std::vector<Enabling> Enabled(const PageView& view) const override {
    return {{kUp, view.SelectedLine(kItems) > 0}};
  }
  void Store(const PageView& view) override { lines = view.Lines(kItems); }

  static inline std::vector<ListLine> lines;

 private:
  PageContext& context_;
  std::vector<PageEvent>& heard_;
};

class TabBodies : public PageHost {
 protected:
  void SetUp() override { OpenPage(std::make_unique<SampleRules>(context, heard_)); }
  void OpenPage(std::unique_ptr<PageRules> rules) {
    auto page = std::make_unique<RulesPage>(context, std::move(rules));
    ASSERT_TRUE(page->Create(host_.Get(), L"SampleWin", L"Sample"));
    page_ = std::move(page);
  }
  void Select(int list, int line) const {
    ListView_SetItemState(Control(list), line, LVIS_SELECTED, LVIS_SELECTED);
  }

  std::vector<PageEvent> heard_;
};

TEST_F(TabBodies, ItemsAreTickedMovedAndToldOfAndAMissingControlStoresNothing) {
  Turn(1);
  EXPECT_FALSE(IsWindowEnabled(Control(kUp)));
  Select(kItems, 1);
  heard_.clear();
  TapControl(kUp);
  const std::vector<PageEvent> expected{{kUp, PageEventKind::kClicked}};
  EXPECT_EQ(heard_, expected) << "not what the rules did themselves";
  ListView_SetCheckState(Control(kItems), 1, TRUE);
  EXPECT_EQ(heard_.back(), (PageEvent{kItems, PageEventKind::kTicked, 1}));
  store.messages.MsgsBreakLineStyle.Set(2);
  Turn(0);
  Select(kOptions, 0);
  DestroyWindow(Control(kList));
  Close();
  EXPECT_EQ(store.messages.MsgsBreakLineStyle.Value(), 2u);
  const std::vector<ListLine> lines{{L"Two", 2, true}, {L"One", 1, true}};
  EXPECT_EQ(SampleRules::lines, lines);
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
};

TEST_F(IconTab, StoresWhatIsTappedAtOnceAndPaintsTheRoomBelow) {
  CalendarSettings& s = store.calendar;
  EXPECT_EQ(Place(Control(kRight)).left, 100);
  EXPECT_EQ(Place(Control(kRight)).top, 31);
  EXPECT_EQ(TextOfControl(kRightLabel), L"Right icons");
  SetFocus(Control(kLeft));
  for (const WPARAM key : {VK_DOWN, VK_DOWN, VK_RIGHT}) Press(key);
  EXPECT_EQ(FocusedId(), kRight);
  PumpMessages();
  Send(kRight, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(20, 4));
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
  visit(1000);
  EXPECT_LT(CountDrawingObjects(), before + 10) << "1,000 redraws";
  for (int opening = 0; opening < 50; ++opening) visit(0);
  EXPECT_LT(CountDrawingObjects(), before + 10) << "50 openings";
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
  for (const COLORREF color : {RGB(200, 100, 50), RGB(255, 255, 255)}) {
    const bool isNone = color == RGB(255, 255, 255);
    free_->DrawColorSwatch(canvas.Dc(), isNone ? static_cast<COLORREF>(-1) : color, 2, 2);
    EXPECT_EQ(GetPixel(canvas.Dc(), 2, 2), RGB(0, 0, 0));
    EXPECT_EQ(GetPixel(canvas.Dc(), 3, 3), color);
    EXPECT_EQ(GetPixel(canvas.Dc(), 45, 21), RGB(0, 0, 0));
    EXPECT_EQ(GetPixel(canvas.Dc(), 46, 22), RGB(1, 2, 3)) << "44 by 20";
    int inked = 0;
    for (int x = 4; x < 44; ++x) {
      for (int y = 4; y < 20; ++y) inked += GetPixel(canvas.Dc(), x, y) != color;
    }
    EXPECT_EQ(inked > 20, isNone) << "which says Auto";
  }
}

}  // namespace
}  // namespace tidewell
