// The base and its factory, on a page that no table describes.
#include "pages/windows/settings_page.h"

#include <gmock/gmock.h>

#include "resources/text/text_ids.h"
#include "tests/pages/page_host.h"

namespace tidewell {
namespace {

constexpr int kList = 1300;
constexpr int kEdit = 1301;
constexpr int kClear = 1302;
constexpr int kBrowse = 1303;
constexpr int kName = 1304;

class FreePage final : public SettingsPage {
 public:
  using SettingsPage::SettingsPage;

  std::vector<std::string> told;

 private:
  int GetTabCount() const override { return 0; }
  int GetTabTitleId(int) const override { return 0; }
  void OnCreate(HWND) override {
    AddPathEdit(kEdit, kClear, kBrowse, L"\\My Documents", 8);
    AddEdit(kName, L"Name", {10, 32, 100, 20});
    const int texts[] = {IDS_GROUP_GENERAL, IDS_GROUP_CALENDAR, IDS_GROUP_TASKS};
    AddList(kList, texts, 8);
  }
  void ShowTab(HWND window, int command) override {
    ShowControlRange(window, kList, kName + 5, command);
  }
  void OnDestroy(HWND) override { told.push_back("destroyed"); }
  LRESULT OnPreviewMessage1(HWND, WPARAM, LPARAM) override { return Told("first"); }
  LRESULT OnPreviewMessage2(HWND, WPARAM, LPARAM) override { return Told("second"); }
  LRESULT Told(const char* what) {
    told.push_back(what);
    return 0;
  }
};

class BasePage : public PageHost {
 protected:
  void SetUp() override {
    auto made = std::make_unique<FreePage>(context);
    free_ = made.get();
    ASSERT_TRUE(made->Create(host_.Get(), L"FreeWin", L"Free"));
    page_ = std::move(made);
  }
  std::wstring Row(int row) const {
    wchar_t text[64] = {};
    ListView_GetItemText(Control(kList), row, 0, text, 64);
    return text;
  }
  std::vector<std::wstring> Rows() const { return {Row(0), Row(1), Row(2)}; }
  void Select(int row) { ListView_SetItemState(Control(kList), row, LVIS_SELECTED, LVIS_SELECTED); }

  FreePage* free_ = nullptr;
};

TEST_F(BasePage, WithoutTabsHasNoTabRowAndItsControlsShow) {
  EXPECT_EQ(Tabs(), nullptr);
  const wchar_t* const texts[] = {L"", L"\\My Documents", L"Clear", L"Select", L"Name"};
  for (int id = kList; id <= kName; ++id) {
    EXPECT_TRUE(IsShown(id)) << id;
    EXPECT_EQ(TextOfControl(id), texts[id - kList]);
  }
}

// With its tick and its data, as the item lists of pages tell.
TEST_F(BasePage, MovesAListRowOrAsksForOne) {
  free_->MoveListItem(page_->Window(), kList, true);
  EXPECT_THAT(dialogs.shown,
              testing::ElementsAre(L"Nothing selected: Select an entry in the list first."));
  Select(1);
  free_->MoveListItem(page_->Window(), kList, true);
  const std::vector<std::wstring> moved{L"Calendar", L"General", L"Tasks"};
  EXPECT_EQ(Rows(), moved);
  EXPECT_EQ(ListView_GetNextItem(Control(kList), -1, LVNI_SELECTED), 0);
  EXPECT_EQ(GetFocus(), Control(kList));

  free_->MoveListItem(page_->Window(), kList, true);
  Select(2);
  free_->MoveListItem(page_->Window(), kList, false);
  EXPECT_EQ(Rows(), moved) << "the ends";
  EXPECT_EQ(dialogs.shown.size(), 1u) << "the ends need no message";
}

TEST_F(BasePage, KeysLeaveAListAtItsEnds) {
  SetFocus(Control(kList));
  Press(VK_DOWN);
  Press(VK_DOWN);
  EXPECT_EQ(FocusedId(), kList);
  while (ListView_GetNextItem(Control(kList), -1, LVNI_FOCUSED) < 2) Press(VK_DOWN);
  Press(VK_DOWN);
  EXPECT_NE(FocusedId(), kList);
  Press(VK_UP);
  EXPECT_EQ(FocusedId(), kList);
}

TEST_F(BasePage, DrawsASwatchOfAColorAndOfNone) {
  const WindowDc screen(nullptr);
  const MemoryBitmap canvas(screen.Dc(), 60, 40);
  FillPlain(canvas.Dc(), {0, 0, 60, 40}, RGB(1, 2, 3));
  free_->DrawColorSwatch(canvas.Dc(), RGB(200, 100, 50), 2, 2);
  EXPECT_EQ(GetPixel(canvas.Dc(), 2, 2), RGB(0, 0, 0));
  EXPECT_EQ(GetPixel(canvas.Dc(), 45, 21), RGB(0, 0, 0));
  EXPECT_EQ(GetPixel(canvas.Dc(), 46, 22), RGB(1, 2, 3)) << "44 by 20";
  EXPECT_EQ(GetPixel(canvas.Dc(), 3, 3), RGB(200, 100, 50));
  free_->DrawColorSwatch(canvas.Dc(), static_cast<COLORREF>(-1), 2, 2);
  EXPECT_EQ(GetPixel(canvas.Dc(), 3, 3), RGB(255, 255, 255));
  int inked = 0;
  for (int x = 4; x < 44; ++x) {
    for (int y = 4; y < 20; ++y) inked += GetPixel(canvas.Dc(), x, y) != RGB(255, 255, 255);
  }
  EXPECT_GT(inked, 20) << "it says Auto";
}

TEST_F(BasePage, HandsOnThePreviewsMessagesAndStoresOnceWhenItsWindowGoes) {
  SendMessageW(page_->Window(), 1788, 0, 0);
  SendMessageW(page_->Window(), 1789, 0, 0);
  SetActiveWindow(host_.Get());
  DestroyWindow(page_->Window());
  EXPECT_EQ(page_->Window(), nullptr);
  EXPECT_THAT(free_->told, testing::ElementsAre("first", "second", "destroyed"));
  page_.reset();
}

}  // namespace
}  // namespace tidewell
