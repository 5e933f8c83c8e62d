// What every page does beyond its rows: keys, scrolling, turning, and that it fits its screen in
// every language.
#include <gmock/gmock.h>
#include <windows.h>

#include <commctrl.h>

#include "pages/general_table.h"
#include "pages/pim_table.h"
#include "tests/pages/page_host.h"

namespace tidewell {
namespace {

class PageWindow : public PageHost {
 protected:
  RECT Place(HWND control) const {
    RECT place;
    GetWindowRect(control, &place);
    MapWindowPoints(nullptr, page_->Window(), reinterpret_cast<POINT*>(&place), 2);
    return place;
  }
  std::vector<HWND> Shown() const {
    std::vector<HWND> controls;
    for (HWND child = GetWindow(page_->Window(), GW_CHILD); child;
         child = GetWindow(child, GW_HWNDNEXT)) {
      if (IsWindowVisible(child) && child != Tabs()) controls.push_back(child);
    }
    return controls;
  }
  void OpenOnLowScreen();
  void TurnScreen() {
    RECT place;
    GetWindowRect(page_->Window(), &place);
    MoveWindow(page_->Window(), place.left, place.top, place.bottom - place.top,
               place.right - place.left, TRUE);
  }
};

TEST_F(PageWindow, TheArrowsWalkThroughWhatCanBeUsedAndTheTabs) {
  Open(PageIndex::kGeneral);
  std::vector<int> walk{FocusedId()};
  for (int i = 0; i < 4; ++i) {
    Press(VK_DOWN);
    walk.push_back(FocusedId());
  }
  EXPECT_EQ(walk, (std::vector<int>{1201, 1203, 1206, 0, 1201})) << "the limits are greyed";
  Press(VK_UP);
  EXPECT_EQ(FocusedId(), 0);
  Press(VK_TAB);
  EXPECT_EQ(FocusedId(), 1201);
}

TEST_F(PageWindow, ArrowsTurnTheTabsFromTheirRow) {
  Open(PageIndex::kGeneral);
  Press(VK_UP);
  Press(VK_RIGHT);
  EXPECT_TRUE(IsShown(1212));
  EXPECT_FALSE(IsShown(1201));
  EXPECT_EQ(FocusedId(), 0);
  Press(VK_DOWN);
  EXPECT_EQ(FocusedId(), general_ids::kSkinPath);
  Press(VK_UP);
  Press(VK_LEFT);
  EXPECT_TRUE(IsShown(1201));
}

TEST_F(PageWindow, TheActionKeyAndSpaceWorkTheControls) {
  Open(PageIndex::kGeneral);
  const auto isOpen = [this](int id) {
    return SendMessageW(Control(id), CB_GETDROPPEDSTATE, 0, 0) != 0;
  };
  Press(VK_RIGHT);
  EXPECT_EQ(Selection(1201), 1) << "a closed list turns its lines";
  Press(VK_RETURN);
  EXPECT_TRUE(isOpen(1201));
  Press(VK_DOWN);
  Press(VK_RETURN);
  EXPECT_FALSE(isOpen(1201));
  EXPECT_EQ(Selection(1201), 2);
  Press(VK_RIGHT);
  EXPECT_EQ(Selection(1201), 2) << "the last line stays";
  Press(VK_SPACE);
  EXPECT_TRUE(isOpen(1201));
  Press(VK_ESCAPE);
  EXPECT_FALSE(isOpen(1201));

  Press(VK_DOWN);
  Press(VK_DOWN);
  Press(VK_RETURN);
  EXPECT_FALSE(IsChecked(general_ids::kAutoHeight));
  EXPECT_TRUE(IsUsable(general_ids::kHeight)) << "the rule follows the key as well";
  Press(VK_SPACE);
  EXPECT_TRUE(IsChecked(general_ids::kAutoHeight));
}

TEST_F(PageWindow, AListThatIsTurnedByKeysStoresItsProgramToo) {
  machine_.registry.Create(RegistryRoot::kCurrentUser, L"SOFTWARE\\Velmont Calendar")
      ->Set(L"ExecutablePath", kTypeString, {});
  Open(PageIndex::kPim);
  Press(VK_RIGHT);
  EXPECT_EQ(store_.customPim.PimSw.Value(), 4u);
  EXPECT_FALSE(IsUsable(pim_ids::kTaskReminder));
}

TEST_F(PageWindow, TheFocusComesBackWithTheWindow) {
  Open(PageIndex::kMessages);
  Press(VK_DOWN);
  EXPECT_EQ(FocusedId(), 1202);
  SetFocus(host_);
  SetFocus(page_->Window());
  EXPECT_EQ(FocusedId(), 1202);
}

// So low that the D-pad's rows do not fit.
void PageWindow::OpenOnLowScreen() {
  UseScreen(240, 190, 96);
  Open(PageIndex::kGeneral);
  Turn(2);
}

TEST_F(PageWindow, ALowScreenScrollsToTheRowThatHasTheFocus) {
  OpenOnLowScreen();
  const int bottom = static_cast<int>(Place(Tabs()).top);
  ASSERT_GT(Place(Control(1228)).bottom, bottom) << "it does not fit";
  Press(VK_UP);
  EXPECT_EQ(FocusedId(), 1228);
  EXPECT_LE(Place(Control(1228)).bottom, bottom);
  Press(VK_DOWN);
  Press(VK_DOWN);
  EXPECT_EQ(FocusedId(), 1220);
  EXPECT_EQ(Place(Control(1220)).top, 8);
}

TEST_F(PageWindow, AFingerDragsWhatDoesNotFitAndAWheelTurnsIt) {
  OpenOnLowScreen();
  const HWND window = page_->Window();
  const int room = static_cast<int>(Place(Control(1228)).bottom - Place(Tabs()).top);
  const auto top = [this] { return static_cast<int>(Place(Control(1220)).top); };
  SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(4, 100));
  SendMessageW(window, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(4, 95));
  EXPECT_EQ(top(), 3);
  SendMessageW(window, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(4, 0));
  EXPECT_LE(top(), 8 - room) << "no further than the last row";
  EXPECT_GE(top(), 8 - room - 8);
  SendMessageW(window, WM_LBUTTONUP, 0, MAKELPARAM(4, 0));
  SendMessageW(window, WM_MOUSEMOVE, 0, MAKELPARAM(4, 90));
  EXPECT_LT(top(), 8) << "the finger is off";
  SendMessageW(window, WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA), 0);
  EXPECT_EQ(top(), 8);
  SendMessageW(Control(1222), WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA)), 0);
  EXPECT_EQ(Selection(1222), 0) << "a wheel over a closed list scrolls the page";
  EXPECT_LT(top(), 8);
}

TEST_F(PageWindow, TurningTheScreenLosesNoEdit) {
  Load();
  store_.root.AutoHeight.Set(0);
  Open(PageIndex::kGeneral);
  const HWND list = Control(1201);
  Choose(1201, 2);
  Tap(general_ids::kAutoHeight);
  Tap(general_ids::kAutoHeight);
  Type(general_ids::kHeight, L"234");
  TurnScreen();
  EXPECT_EQ(Control(1201), list);
  EXPECT_EQ(Place(list).left, static_cast<LONG>(268 - 135));
  EXPECT_EQ(Selection(1201), 2);
  EXPECT_EQ(TextOfControl(general_ids::kHeight), L"234");
  EXPECT_EQ(FocusedId(), general_ids::kHeight);
  EXPECT_EQ(store_.root.OnClick.Value(), 0u) << "nothing is stored before the page closes";
  Close();
  EXPECT_EQ(store_.root.OnClick.Value(), 2u);
  EXPECT_EQ(store_.root.dHeightLimit.Value(), 234u);
}

// ---- Before the tabs behind the first one are built

TEST_F(PageWindow, ATabIsBuiltWhenItIsAskedFor) {
  BeginToOpen(PageIndex::kGeneral);
  EXPECT_FALSE(Control(1212));
  Turn(2);
  EXPECT_TRUE(IsShown(1224));
  EXPECT_FALSE(IsUsable(1226)) << "with its rule";
  HandleMessages();
  EXPECT_TRUE(Control(1212));
  EXPECT_FALSE(IsShown(1212));
}

TEST_F(PageWindow, AScreenThatTurnsEarlyFindsEveryTabInItsPlace) {
  BeginToOpen(PageIndex::kGeneral);
  TurnScreen();
  HandleMessages();
  for (const int id : {1201, 1212, 1224, 1235}) EXPECT_EQ(Place(Control(id)).left, 268 - 135);
}

TEST_F(PageWindow, APageThatGoesEarlyStoresTabsThatItNeverBuilt) {
  Load();
  store_.root.LoadingDelay.Set(9);
  store_.root.GoofyMode.Set(5);
  BeginToOpen(PageIndex::kGeneral);
  Close();
  EXPECT_EQ(store_.root.LoadingDelay.Value(), ~0u);
  EXPECT_EQ(store_.root.GoofyMode.Value(), 1u);
}

// ---- On every screen, in every language

struct Screen {
  const char* name;
  int width;
  int height;
  int dpi;
};
const Screen kScreens[] = {{"qvga", 240, 320, 96},
                           {"landscape", 320, 240, 96},
                           {"square", 240, 240, 96},
                           {"vga", 480, 640, 192},
                           {"vga landscape", 640, 480, 192}};

// How much room a text takes in a control's font, wrapped at a width.
SIZE SizeOf(HWND control, const std::wstring& text, int width) {
  const HDC dc = GetDC(control);
  const HGDIOBJ font =
      SelectObject(dc, reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0)));
  RECT area{0, 0, width, 0};
  DrawTextW(dc, text.c_str(), -1, &area, DT_CALCRECT | DT_WORDBREAK);
  SelectObject(dc, font);
  ReleaseDC(control, dc);
  return {area.right, area.bottom};
}

class PageOnScreens : public PageWindow {
 protected:
  void CheckTab(int dpi) {
    const std::vector<HWND> shown = Shown();
    RECT client;
    GetClientRect(page_->Window(), &client);
    for (const HWND control : shown) {
      const RECT place = Place(control);
      EXPECT_TRUE(place.left >= 0 && place.right <= client.right) << GetDlgCtrlID(control);
      CheckText(control, place, dpi);
      for (const HWND other : shown) {
        RECT common;
        const RECT otherPlace = Place(other);
        EXPECT_FALSE(other != control && IntersectRect(&common, &place, &otherPlace))
            << GetDlgCtrlID(control) << " lies over " << GetDlgCtrlID(other);
      }
    }
  }

 private:
  void CheckText(HWND control, const RECT& place, int dpi) {
    wchar_t kind[32];
    GetClassNameW(control, kind, 32);
    const int id = GetDlgCtrlID(control);
    if (lstrcmpiW(kind, WC_EDITW) == 0) return;
    if (lstrcmpiW(kind, WC_COMBOBOXW) == 0) return CheckLines(id, place, dpi);
    const bool isCheckBox = GetWindowLongW(control, GWL_STYLE) & BS_LEFTTEXT;
    const bool isLabel = lstrcmpiW(kind, WC_STATICW) == 0;
    const int reserved = isLabel ? 0 : isCheckBox ? 16 : 3;
    const int width = place.right - place.left - reserved * dpi / 96;
    const std::wstring text = TextOfControl(id);
    EXPECT_FALSE(text.empty()) << id;
    const SIZE size = SizeOf(control, text, width);
    EXPECT_LE(size.cx, width) << id;
    EXPECT_LE(size.cy, place.bottom - place.top) << id;
  }

  // Each line fits the closed list beside its arrow.
  void CheckLines(int id, const RECT& place, int dpi) {
    const LONG width = place.right - place.left - 23 * dpi / 96;
    for (int line = 0; line < Count(id); ++line) {
      const std::wstring text = Line(id, line);
      EXPECT_FALSE(text.empty()) << id;
      EXPECT_LE(SizeOf(Control(id), text, 10'000).cx, width)
          << id << ": " << std::string(text.begin(), text.end());
    }
  }
};

TEST_F(PageOnScreens, EveryTabHasItsTextsInTheirPlacesInEveryLanguage) {
  for (const wchar_t* library : {L"TWEngRc.dll", L"TWGerRc.dll"}) {
    UseLanguage(library);
    for (const Screen& screen : kScreens) {
      UseScreen(screen.width, screen.height, screen.dpi);
      Load();
      for (int index = 0; index < kPageCount; ++index) {
        if (!kPages[static_cast<std::size_t>(index)].table) continue;
        Open(static_cast<PageIndex>(index));
        const int tabs = static_cast<int>(SendMessageW(Tabs(), TCM_GETITEMCOUNT, 0, 0));
        RECT last;
        SendMessageW(Tabs(), TCM_GETITEMRECT, static_cast<WPARAM>(tabs - 1),
                     reinterpret_cast<LPARAM>(&last));
        EXPECT_LE(last.right, screen.width) << screen.name << ", page " << index;
        for (int tab = 0; tab < tabs; ++tab) {
          SCOPED_TRACE(testing::Message() << screen.name << ", page " << index << ", tab " << tab);
          Turn(tab);
          CheckTab(screen.dpi);
        }
        Close();
      }
    }
  }
}

}  // namespace
}  // namespace tidewell
