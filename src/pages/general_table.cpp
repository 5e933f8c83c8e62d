#include "pages/general_table.h"

#include "resources/text/text_ids.h"

namespace tidewell {

namespace {

constexpr int kWideScreen = 480;  // pixels: a VGA screen

Choices LandscapeHeights() {
  Choices choices = Numbers(80, 600, 20);
  choices.insert(choices.begin(), L"0");
  return choices;
}

}  // namespace

PageTable GeneralTable(PageContext& context) {
  using namespace general_ids;
  RootSettings& s = context.settings.root;
  const bool wide = context.machine.system.Screen().width >= kWideScreen;
  const bool modern = !IsBeforeWindowsMobile5(context.machine.system.Version());
  return {
      Tab(IDS_PAGE_TAB_GENERAL, 1200, 1210,
          {
              List(1200, 1201, IDS_ON_TAP, s.OnClick,
                   {IDS_ON_TAP_SELECT, IDS_ON_TAP_OPEN, IDS_ON_TAP_PREVIEW}),
              List(1202, 1203, IDS_ON_DOUBLE_TAP, s.OnDoubleClick,
                   {IDS_ON_DOUBLE_TAP_OPEN, IDS_ON_DOUBLE_TAP_PREVIEW, IDS_ON_DOUBLE_TAP_NOTHING}),
              Check(kAutoHeight, IDS_AUTO_HEIGHT, s.AutoHeight),
              Number(kHeightLabel, kHeight, IDS_HEIGHT_LIMIT, s.dHeightLimit, Numbers(80, 600, 20)),
              Number(kLandscapeHeightLabel, kLandscapeHeight, IDS_HEIGHT_LIMIT_LANDSCAPE,
                     s.dHeightLimitLandscape, LandscapeHeights()),
          }),
      Tab(IDS_GENERAL_TAB_LOOK, 1211, 1219,
          {
              Path(1211, kSkinPath, kClearSkin, kBrowseSkin, IDS_SKIN_FOLDER, s.SkinPath),
              FilledByPage(1215, kLanguage, IDS_LANGUAGE, s.SelectedLangResFile),
              Check(1217, IDS_SOUND_EFFECTS, s.EnableSoundEffect).Closer(2),
              Check(1218, IDS_GOOFY_MODE, s.GoofyMode).Closer(2),
              Check(1219, IDS_INDENT_ITEMS, s.IndentItems).Closer(2),
          }),
      Tab(IDS_GENERAL_TAB_DPAD, 1220, 1228,
          {
              Check(kDPadEnabled, IDS_DPAD_ENABLED, s.DPadEnabled),
              Selector(kDPadGroupLabel, kDPadGroup, IDS_DPAD_GROUP,
                       {IDS_DPAD_GROUP_NAVIGATION, IDS_DPAD_GROUP_SCROLLING}),
              List(kActionLabel, kAction, IDS_DPAD_ACTION, s.DPadCompleteAction,
                   {IDS_DPAD_ACTION_OPEN, IDS_DPAD_ACTION_PREVIEW, IDS_DPAD_ACTION_MENU}),
              Check(kDoublePress, IDS_DPAD_DOUBLE_PRESS_SWITCHES_TABS,
                    s.DPadDoubleClickTabSwitching),
              List(kScrollingLabel, kScrolling, IDS_DPAD_SCROLLING, s.DPadScrollingAction,
                   {IDS_DPAD_SCROLL_LINE, IDS_DPAD_SCROLL_ITEM, IDS_DPAD_SCROLL_PAGE}),
              Check(kExclusive, IDS_DPAD_EXCLUSIVE, s.ExclusiveDPadNavig).When(modern),
          }),
      Tab(IDS_PAGE_TAB_OTHER, 1229, 1235,
          {
              Check(1229, IDS_DOUBLE_TAP_SCROLLS, s.UseDoubleClickScroll),
              Check(1230, IDS_SCROLL_WHOLE_PAGES, s.UseFullScrollings),
              Check(1231, IDS_VGA_MODE, s.MyVgaMode).When(wide),
              Check(1232, IDS_THIN_LINES, s.UseThinLines).When(wide),
              Check(1233, IDS_REMOVE_HIGHLIGHT, s.RemoveHighlight),
              List(1234, 1235, IDS_LOADING_DELAY, s.LoadingDelay,
                   {L"0", L"1", L"2", L"3", L"4", L"5"}),
          }),
  };
}

std::array<Enabling, 4> HeightRule(bool autoHeight) {
  using namespace general_ids;
  return {{{kHeightLabel, !autoHeight},
           {kHeight, !autoHeight},
           {kLandscapeHeightLabel, !autoHeight},
           {kLandscapeHeight, !autoHeight}}};
}

std::array<Enabling, 8> DPadRule(bool dPadEnabled, int group) {
  using namespace general_ids;
  const bool navigation = dPadEnabled && group == 0;
  const bool scrolling = dPadEnabled && group == 1;
  return {{{kDPadGroupLabel, dPadEnabled},
           {kDPadGroup, dPadEnabled},
           {kActionLabel, navigation},
           {kAction, navigation},
           {kDoublePress, navigation},
           {kScrollingLabel, scrolling},
           {kScrolling, scrolling},
           {kExclusive, dPadEnabled}}};
}

}  // namespace tidewell
