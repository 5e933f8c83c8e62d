// The bodies of tabs that no page of rows has: a list of options with its editor, a list of items.
#include <gmock/gmock.h>

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
  const HWND strip = Control(kRight);
  EXPECT_EQ(Place(strip).left, 100);
  EXPECT_EQ(Place(strip).top, 31);
  EXPECT_EQ(TextOfControl(kRightLabel), L"Right icons");
  SendMessageW(strip, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(20, 4));
  SendMessageW(strip, WM_LBUTTONUP, 0, MAKELPARAM(20, 4));
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

TEST_F(IconTab, IsWorkedByKeys) {
  SetFocus(Control(kLeft));
  for (const WPARAM key : {VK_DOWN, VK_DOWN, VK_RIGHT, VK_SPACE}) Press(key);
  EXPECT_EQ(FocusedId(), kRight);
  EXPECT_EQ(store.calendar.ClrApptRightIcons.Value(), 0x407u);
}

}  // namespace
}  // namespace tidewell
