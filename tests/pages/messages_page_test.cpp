// The page that is only a table: what holds for every page is tested on it.
#include <gmock/gmock.h>

#include "tests/pages/page_host.h"

namespace tidewell {
namespace {

using testing::UnorderedElementsAre;

class MessagesPage : public PageHost {
 protected:
  MessagesSettings& messages() { return store_.messages; }
};

TEST_F(MessagesPage, ShowsEveryStoredValueAndStoresWhatItShows) {
  struct Case {
    std::uint32_t stored;
    int line;  // of the list of four
    bool checked;
    std::uint32_t lineStored;
  };
  const Case cases[] = {
      {0, 0, false, 0}, {1, 1, true, 1}, {3, 3, true, 3}, {4, -1, true, ~0u}, {~0u, -1, true, ~0u},
  };
  Load();
  for (const Case& c : cases) {
    messages().MsgsBreakLineStyle.Set(c.stored);
    messages().MsgsIncldCounters.Set(c.stored);
    Open(PageIndex::kMessages);
    EXPECT_EQ(Selection(1206), c.line) << c.stored;
    EXPECT_EQ(IsChecked(1207), c.checked) << c.stored;
    Close();
    EXPECT_EQ(messages().MsgsBreakLineStyle.Value(), c.lineStored) << c.stored;
    EXPECT_EQ(messages().MsgsIncldCounters.Value(), c.checked ? 1u : 0u) << c.stored;
  }
}

TEST_F(MessagesPage, StoresWhatAFingerChangedAndTheRestAsItWas) {
  Open(PageIndex::kMessages);
  Choose(1201, 0);
  Tap(1203);
  Turn(1);
  Choose(1206, 3);
  Tap(1208);
  Close();
  EXPECT_EQ(messages().MsgsDPadActionOverride.Value(), 0u);
  EXPECT_EQ(messages().MsgsOpenOnClick.Value(), 0u);
  EXPECT_EQ(messages().MsgsPreviewWhenOpen.Value(), 1u);
  EXPECT_EQ(messages().MsgsMrkReadOnPrev.Value(), 1u);
  EXPECT_EQ(messages().MsgsBreakLineStyle.Value(), 3u);
  EXPECT_EQ(messages().MsgsIncldCounters.Value(), 1u);
  EXPECT_EQ(messages().MsgsIncldFoldBttns.Value(), 0u);
}

// The values of the page are set again, and nothing else is: what equals its default is deleted.
TEST_F(MessagesPage, AnUntouchedPageTouchesItsOwnValuesOnly) {
  Load();
  Open(PageIndex::kMessages);
  EXPECT_EQ(registry_.CountWrites(), 0);
  EXPECT_THAT(CloseAndSave(), UnorderedElementsAre(L"MsgsDPadActionOverride", L"MsgsOpenOnClick",
                                                   L"MsgsPreviewWhenOpen", L"MsgsMrkReadOnPrev",
                                                   L"MsgsBreakLineStyle", L"MsgsIncldCounters",
                                                   L"MsgsIncldFoldBttns"));
  EXPECT_EQ(registry_.Count(RegistryCall::kSet), 0);
}

TEST_F(MessagesPage, ShowsOneTabAtATimeAndKeepsBoth) {
  Open(PageIndex::kMessages);
  const auto shown = [this] {
    std::vector<int> ids;
    for (int id = 1200; id <= 1208; ++id) {
      if (IsShown(id)) ids.push_back(id);
    }
    return ids;
  };
  EXPECT_EQ(shown(), (std::vector<int>{1200, 1201, 1202, 1203, 1204}));
  const HWND list = Control(1206);
  Turn(1);
  EXPECT_EQ(shown(), (std::vector<int>{1205, 1206, 1207, 1208}));
  EXPECT_EQ(Control(1206), list) << "turning a tab builds nothing anew";
  Turn(0);
  EXPECT_EQ(shown().size(), 5u);
}

TEST_F(MessagesPage, AsksItsHostToCloseOnOk) {
  Open(PageIndex::kMessages);
  SendMessageW(page_->Window(), WM_COMMAND, IDOK, 0);
  EXPECT_TRUE(askedToClose_);
}

TEST_F(MessagesPage, IsAPopupWithAnOkButtonAndLeavesNoClassBehind) {
  Open(PageIndex::kMessages);
  WNDCLASSW found;
  const HWND window = page_->Window();
  EXPECT_EQ(GetWindowLongW(window, GWL_STYLE) & 0x90000800, static_cast<LONG>(0x90000800));
  EXPECT_TRUE(GetWindowLongW(window, GWL_EXSTYLE) & 0x80000000);
  EXPECT_TRUE(GetClassInfoW(GetModuleHandleW(nullptr), L"MessagesSettingsWin", &found));
  Close();
  EXPECT_FALSE(GetClassInfoW(GetModuleHandleW(nullptr), L"MessagesSettingsWin", &found));
}

TEST_F(MessagesPage, AnIndexWithoutAPageMakesNone) {
  Load();
  for (const int index : {-1, 1, 12}) EXPECT_FALSE(CreatePage(index, host_, *context_)) << index;
}

}  // namespace
}  // namespace tidewell
