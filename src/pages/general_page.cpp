#include "pages/general_page.h"

#include <optional>

#include "addons/icon_sets.h"
#include "addons/language_packs.h"
#include "resources/text/text_ids.h"

namespace tidewell {

namespace {

using namespace general_ids;

constexpr int kWideScreen = 480;  // pixels: a VGA screen

Choices LandscapeHeights() {
  Choices choices = Numbers(80, 600, 20);
  choices.insert(choices.begin(), L"0");
  return choices;
}

constexpr int kLookTab = 1;

void ShowNames(PageView& view, int listId, const std::vector<std::wstring>& names, int selection) {
  Choices choices;
  for (const std::wstring& name : names) choices.emplace_back(name);
  view.SetChoices(listId, choices);
  view.SetState(listId, ControlState::OfLine(selection));
}

class GeneralRules final : public PageRules {
 public:
  explicit GeneralRules(PageContext& context) : context_(context) {}

  PageTabs Tabs() override;
  void OnBuilt(PageView& view, int tab) override;
  std::vector<Enabling> Enabled(const PageView& view) const override;
  void Store(const PageView& view) override;

 private:
  void ShowLanguages(PageView& view);
  void ShowIconSets(PageView& view);

  PageContext& context_;
  LanguagePacks packs_;
  std::optional<IconSets> iconSets_;
};

PageTabs GeneralRules::Tabs() {
  RootSettings& s = context_.settings.root;
  const bool wide = context_.machine.system.Screen().width >= kWideScreen;
  const bool modern = !IsBeforeWindowsMobile5(context_.machine.system.Version());
  return {
      RowTab(
          IDS_PAGE_TAB_GENERAL,
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
      RowTab(
          IDS_GENERAL_TAB_LOOK,
          {
              Path(1211, kSkinPath, kClearSkin, kBrowseSkin, IDS_SKIN_FOLDER, s.SkinPath,
                   {L"Select Skin Path"}),
              FilledByRules(1215, kLanguage, IDS_LANGUAGE, s.SelectedLangResFile),
              FilledByRules(2000, kIconSet, IDS_ICON_SET, context_.settings.iconSet.InstallPath12),
              Check(1217, IDS_SOUND_EFFECTS, s.EnableSoundEffect).ReducedSpacing(2),
              Check(1218, IDS_GOOFY_MODE, s.GoofyMode).ReducedSpacing(2),
              Check(1219, IDS_INDENT_ITEMS, s.IndentItems).ReducedSpacing(2),
          }),
      RowTab(IDS_GENERAL_TAB_DPAD,
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
      RowTab(IDS_PAGE_TAB_OTHER,
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

void GeneralRules::OnBuilt(PageView& view, int tab) {
  if (tab != kLookTab) return;
  ShowLanguages(view);
  ShowIconSets(view);
}

void GeneralRules::ShowLanguages(PageView& view) {
  const SettingsStore& settings = context_.settings;
  packs_ = ScanLanguagePacks(context_.machine, settings.installFolder,
                             settings.root.SelectedLangResFile.Value());
  ShowNames(view, kLanguage, packs_.names, packs_.selection);
}

void GeneralRules::ShowIconSets(PageView& view) {
  const SettingsStore& settings = context_.settings;
  iconSets_.emplace(context_.machine.files, settings.installFolder);
  ShowNames(view, kIconSet, iconSets_->Names(), iconSets_->Find(settings.iconSet));
}

// The limits apply to a height that does not fit itself to the content; of the D-pad's two groups
// one can be edited at a time.
std::vector<Enabling> GeneralRules::Enabled(const PageView& view) const {
  const bool fixed = !view.State(kAutoHeight).checked;
  const bool dPad = view.State(kDPadEnabled).checked;
  const int group = view.State(kDPadGroup).selection;
  const bool navigation = dPad && group == 0;
  const bool scrolling = dPad && group == 1;
  return {{kHeightLabel, fixed},        {kHeight, fixed},        {kLandscapeHeightLabel, fixed},
          {kLandscapeHeight, fixed},    {kDPadGroupLabel, dPad}, {kDPadGroup, dPad},
          {kActionLabel, navigation},   {kAction, navigation},   {kDoublePress, navigation},
          {kScrollingLabel, scrolling}, {kScrolling, scrolling}, {kExclusive, dPad}};
}

// Where no pack or set is chosen, the present one stays.
void GeneralRules::Store(const PageView& view) {
  if (const std::wstring* path = packs_.PathOf(view.State(kLanguage).selection)) {
    context_.settings.root.SelectedLangResFile.Set(*path);
  }
  const int set = view.State(kIconSet).selection;
  if (iconSets_ && set != kNoChoice) iconSets_->Choose(set, context_.settings.iconSet);
}

}  // namespace

std::unique_ptr<PageRules> MakeGeneralPage(PageContext& context) {
  return std::make_unique<GeneralRules>(context);
}

}  // namespace tidewell
