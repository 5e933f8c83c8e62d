// What every page does beyond its rows: its frame, keys, scrolling, turning, and that it fits its
// screen in every language.
#include "pages/general_page.h"
#include "platform/text.h"
#include "tests/pages/page_host.h"
#include "win32/gdi.h"

namespace tidewell {
namespace {

class PageWindow : public PageHost {
 protected:
  void TurnScreen() const {
    const RECT place = WindowRect(page_->Window());
    MoveWindow(page_->Window(), place.left, place.top, place.bottom - place.top,
               place.right - place.left, TRUE);
  }
  LONG DistanceFromRight(int id) const {
    return ClientArea(page_->Window()).right - Place(Control(id)).left;
  }
  LONG Top(int id) const { return Place(Control(id)).top; }
  LONG Bottom(int id) const { return Place(Control(id)).bottom; }
};

TEST_F(PageWindow, IsAPopupWithAnOkButtonAndLeavesNoClassBehind) {
  Open(PageIndex::kMessages);
  WNDCLASSW found;
  const HWND window = page_->Window();
  EXPECT_EQ(CaptionOf(window), L"Messages");
  EXPECT_EQ(GetWindowLongW(window, GWL_STYLE) & 0x90000800, static_cast<LONG>(0x90000800));
  EXPECT_TRUE(GetWindowLongW(window, GWL_EXSTYLE) & 0x80000000);
  EXPECT_TRUE(GetClassInfoW(GetModuleHandleW(nullptr), L"MessagesSettingsWin", &found));
  SendMessageW(window, WM_COMMAND, IDOK, 0);
  EXPECT_EQ(host_.Count(WM_USER + 1), 1) << "asks its host to close";
  SendMessageW(window, WM_CLOSE, 0, 0);
  EXPECT_EQ(host_.Count(WM_USER + 1), 2) << "and so does whoever closes it from outside";
  EnableWindow(window, FALSE);
  SendMessageW(window, WM_CLOSE, 0, 0);
  SendMessageW(window, WM_COMMAND, IDOK, 0);
  EXPECT_EQ(host_.Count(WM_USER + 1), 2) << "but not below a dialog";
  Close();
  EXPECT_FALSE(GetClassInfoW(GetModuleHandleW(nullptr), L"MessagesSettingsWin", &found));
  for (const int index : {-1, kPageCount}) EXPECT_FALSE(CreatePage(index, host_.Get(), context));
}

TEST_F(PageWindow, KeysWalkThroughWhatCanBeUsedAndTurnTheTabs) {
  Open(PageIndex::kGeneral);
  EXPECT_EQ(FocusedId(), 1201);
  // Past the greyed limits of the height; 0 is the row of tabs.
  const std::pair<WPARAM, int> steps[] = {
      {VK_DOWN, 1203}, {VK_DOWN, 1206}, {VK_DOWN, 0}, {VK_DOWN, 1201}, {VK_UP, 0},
      {VK_RIGHT, 0},   {VK_TAB, 1212},  {VK_UP, 0},   {VK_LEFT, 0},    {VK_TAB, 1201},
  };
  for (const auto& [key, focus] : steps) {
    Press(key);
    EXPECT_EQ(FocusedId(), focus);
  }
  SetFocus(Control(general_ids::kAutoHeight));
  Press(VK_SPACE);
  EXPECT_EQ(Enabled(1206, 1210), (std::vector{1206, 1207, 1208, 1209, 1210}));
  SetFocus(Control(1203));
  SetFocus(host_.Get());
  SetFocus(page_->Window());
  EXPECT_EQ(FocusedId(), 1203) << "the focus comes back with the window";
  NMHDR hiding{Tabs(), 0, static_cast<UINT>(TCN_SELCHANGING)};
  SendMessageW(page_->Window(), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&hiding));
  EXPECT_EQ(GetFocus(), Tabs()) << "and leaves a tab that is hidden";
}

// So low that the D-pad's rows do not fit.
TEST_F(PageWindow, WhatDoesNotFitIsScrolledByTheFocusAFingerAndAWheel) {
  UseScreen(240, 190, 96);
  Open(PageIndex::kGeneral);
  Turn(2);
  const HWND window = page_->Window();
  const LONG room = Bottom(1228) - Place(Tabs()).top;
  ASSERT_GT(room, 0);
  Press(VK_UP);
  EXPECT_EQ(FocusedId(), 1228);
  EXPECT_LE(Bottom(1228), Place(Tabs()).top);
  Press(VK_DOWN);
  Press(VK_DOWN);
  EXPECT_EQ(FocusedId(), 1220);
  EXPECT_EQ(Top(1220), 8);
  SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(4, 100));
  SendMessageW(window, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(4, 95));
  EXPECT_EQ(Top(1220), 3);
  SendMessageW(window, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(4, 0));
  EXPECT_LE(Top(1220), 8 - room) << "no further than the last row";
  EXPECT_GE(Top(1220), 8 - room - 8);
  SendMessageW(window, WM_LBUTTONUP, 0, MAKELPARAM(4, 0));
  SendMessageW(window, WM_MOUSEMOVE, 0, MAKELPARAM(4, 90));
  EXPECT_LT(Top(1220), 8) << "the finger is off";
  SendMessageW(window, WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA), 0);
  EXPECT_EQ(Top(1220), 8);
  Send(1222, WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA)));
  EXPECT_EQ(Selection(1222), 0) << "a wheel over a closed list scrolls the page";
  EXPECT_LT(Top(1220), 8);
}

TEST_F(PageWindow, EveryTabIsBuiltWhenThePageIsAndTurnsWithTheScreenAndNoEditIsLost) {
  store.root.AutoHeight.Set(0);
  Open(PageIndex::kGeneral);
  EXPECT_FALSE(IsShown(1212));
  Choose(1201, 2);
  Type(general_ids::kHeight, L"234");
  for (int turns = 0; turns < 2; ++turns) {
    for (const int id : {1201, 1212, 1224, 1235}) EXPECT_EQ(DistanceFromRight(id), 135);
    if (turns == 0) TurnScreen();
  }
  EXPECT_EQ(FocusedId(), general_ids::kHeight);
  EXPECT_EQ(store.root.OnClick.Value(), 0u) << "nothing is stored before the page closes";
  Close();
  EXPECT_EQ(store.root.OnClick.Value(), 2u);
  EXPECT_EQ(store.root.dHeightLimit.Value(), 234u);
}

TEST_F(PageWindow, APathIsOnlyBrowsedAndClearedAndShowsItsEnd) {
  store.root.SkinPath.Set(L"\\Storage Card\\Program Files\\Skins\\Blue");
  Open(PageIndex::kGeneral);
  const auto endIsSeen = [&] {
    const int last = GetWindowTextLengthW(Control(general_ids::kSkinPath)) - 1;
    const auto x = static_cast<short>(
        LOWORD(Send(general_ids::kSkinPath, EM_POSFROMCHAR, static_cast<WPARAM>(last))));
    return x > 0 && x < ClientArea(Control(general_ids::kSkinPath)).right;
  };
  EXPECT_TRUE(endIsSeen());
  Turn(1);
  Type(general_ids::kSkinPath, L"it can only be read");
  TapControl(general_ids::kBrowseSkin);
  EXPECT_EQ(dialogs.shown, std::vector{L"Select Skin Path: " + store.root.SkinPath.Value()});
  EXPECT_EQ(TextOfControl(general_ids::kSkinPath), store.root.SkinPath.Value()) << "cancelled";
  dialogs.answer = L"\\Storage Card\\Program Files\\Skins\\Blue and green";
  TapControl(general_ids::kBrowseSkin);
  EXPECT_EQ(TextOfControl(general_ids::kSkinPath), dialogs.answer);
  EXPECT_TRUE(endIsSeen());
  TapControl(general_ids::kClearSkin);
  EXPECT_EQ(TextOfControl(general_ids::kSkinPath), L"");
}

// ---- On every screen, in every language

struct Screen {
  const char* name;
  int width;
  int height;
  int dpi;
  bool vgaMode = false;
};
const Screen kScreens[] = {{"qvga", 240, 320, 96},
                           {"landscape", 320, 240, 96},
                           {"square", 240, 240, 96},
                           {"vga", 480, 640, 192},
                           {"vga landscape", 640, 480, 192},
                           // As a backup of another device can bring it: the tabs scroll then, and
                           // a chosen line may be cut.
                           {"qvga, doubled", 240, 320, 96, true},
                           {"landscape, doubled", 320, 240, 96, true}};

class PageOnScreens : public PageWindow {
 protected:
  bool doubled_ = false;

  void CheckTabs() const {
    const int tabs = TabCtrl_GetItemCount(Tabs());
    RECT last;
    TabCtrl_GetItemRect(Tabs(), tabs - 1, &last);
    EXPECT_TRUE(last.right <= ClientArea(page_->Window()).right || doubled_ || tabs > 4);
    for (int tab = 0; tab < tabs; ++tab) {
      SCOPED_TRACE(testing::Message() << "tab " << tab);
      Turn(tab);
      const HWND list = CheckControls(true);
      for (int line = 0; list && line < ListView_GetItemCount(list); ++line) {
        SCOPED_TRACE(testing::Message() << "option " << line);
        ListView_SetItemState(list, line, LVIS_SELECTED, LVIS_SELECTED);
        CheckControls(!doubled_);
      }
    }
  }

 private:
  static std::wstring ClassOf(HWND control) {
    wchar_t name[32];
    GetClassNameW(control, name, 32);
    return name;
  }
  // Of the tab and the option in view, with their texts or their places alone. Returns the list
  // among them, if there is one.
  HWND CheckControls(bool texts) const {
    std::vector<HWND> shown;
    HWND list = nullptr;
    for (HWND child = GetWindow(page_->Window(), GW_CHILD); child;
         child = GetWindow(child, GW_HWNDNEXT)) {
      if (!IsWindowVisible(child) || child == Tabs()) continue;
      shown.push_back(child);
      if (ListView_GetItemCount(child) > 0) list = child;
    }
    for (const HWND control : shown) {
      const RECT place = Place(control);
      const bool fits = place.left >= 0 && place.right <= ClientArea(page_->Window()).right;
      EXPECT_TRUE(fits || (doubled_ && ClassOf(control) == L"IconMarkerClass"));
      if (texts) CheckTexts(control);
      for (const HWND other : shown) CheckApart(control, other);
    }
    return list;
  }
  void CheckApart(HWND control, HWND other) const {
    RECT common;
    const RECT place = Place(control);
    const RECT otherPlace = Place(other);
    EXPECT_FALSE(other != control && IntersectRect(&common, &place, &otherPlace))
        << GetDlgCtrlID(control) << " lies over " << GetDlgCtrlID(other);
  }
  // A text has the width of its control but for the box or the arrow beside it.
  void CheckTexts(HWND control) const {
    const RECT place = Place(control);
    const bool isCheckBox = GetWindowLongW(control, GWL_STYLE) & BS_LEFTTEXT;
    const std::wstring kind = ClassOf(control);
    if (EqualIgnoringCase(kind, WC_COMBOBOXW)) {
      if (doubled_) return;
      wchar_t line[256];
      for (WPARAM i = 0;
           SendMessageW(control, CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(line)) != CB_ERR; ++i) {
        ExpectFits(control, line, 23, DT_SINGLELINE);
      }
    } else if (EqualIgnoringCase(kind, WC_STATICW)) {
      const int margin = place.left > 0 ? 0 : 4;  // to the edge of the screen
      ExpectFits(control, CaptionOf(control), margin, DT_WORDBREAK);
    } else if (EqualIgnoringCase(kind, WC_BUTTONW)) {
      ExpectFits(control, CaptionOf(control), isCheckBox ? 16 : 6, DT_WORDBREAK);
    }
  }
  void ExpectFits(HWND control, const std::wstring& text, int beside, UINT format) const {
    const WindowDc dc(control);
    const Selected font(dc.Dc(), reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0)));
    const LONG width = ClientArea(control).right - context.scale.ScaleX(beside);
    RECT area{0, 0, width, 0};
    DrawTextW(dc.Dc(), text.c_str(), -1, &area, DT_CALCRECT | format);
    EXPECT_TRUE(!text.empty() && area.right <= width && area.bottom <= ClientArea(control).bottom)
        << GetDlgCtrlID(control) << ": " << std::string(text.begin(), text.end());
  }
};

TEST_F(PageOnScreens, EveryTabHasItsTextsInTheirPlacesInEveryLanguage) {
  for (const wchar_t* library : {L"TWEngRc.dll", L"TWGerRc.dll"}) {
    UseLanguage(library);
    for (const Screen& screen : kScreens) {
      UseScreen(screen.width, screen.height, screen.dpi, screen.vgaMode);
      doubled_ = screen.vgaMode;
      for (int index = 0; index < kPageCount; ++index) {
        SCOPED_TRACE(testing::Message() << screen.name << ", page " << index);
        Open(static_cast<PageIndex>(index));
        CheckTabs();
        Close();
      }
    }
  }
}

}  // namespace
}  // namespace tidewell
