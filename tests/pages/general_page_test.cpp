#include <gmock/gmock.h>

#include "pages/general_table.h"
#include "resources/text/text_ids.h"
#include "tests/pages/page_host.h"

namespace tidewell {
namespace {

using namespace general_ids;

class GeneralPage : public PageHost {
 protected:
  RootSettings& root() { return store_.root; }
  std::vector<int> Usable(int first, int last) const {
    std::vector<int> ids;
    for (int id = first; id <= last; ++id) {
      if (IsUsable(id)) ids.push_back(id);
    }
    return ids;
  }
};

TEST_F(GeneralPage, UntouchedItTouchesItsOwnValuesOnly) {
  Load();
  Open(PageIndex::kGeneral);
  EXPECT_THAT(
      CloseAndSave(),
      testing::UnorderedElementsAre(
          L"OnClick", L"OnDoubleClick", L"AutoHeight", L"dHeightLimit", L"dHeightLimitLandscape",
          L"SkinPath", L"EnableSoundEffect", L"GoofyMode", L"IndentItems", L"DPadEnabled",
          L"DPadCompleteAction", L"DPadDoubleClickTabSwitching", L"DPadScrollingAction",
          L"ExclusiveDPadNavig", L"UseDoubleClickScroll", L"UseFullScrollings", L"RemoveHighlight",
          L"LoadingDelay"));
  EXPECT_EQ(registry_.Count(RegistryCall::kSet), 0);
}

TEST_F(GeneralPage, ANarrowScreenKeepsTheValuesOfRowsThatItDoesNotShow) {
  Load();
  root().MyVgaMode.Set(7);
  root().UseThinLines.Set(9);
  Open(PageIndex::kGeneral);
  EXPECT_FALSE(Control(1231) || Control(1232));
  Close();
  EXPECT_EQ(root().MyVgaMode.Value(), 7u);
  EXPECT_EQ(root().UseThinLines.Value(), 9u);

  UseScreen(480, 640, 192);
  Load();
  Open(PageIndex::kGeneral);
  Turn(3);
  EXPECT_TRUE(IsShown(1231) && IsShown(1232));
  Tap(1232);
  Close();
  EXPECT_EQ(root().UseThinLines.Value(), 1u);
}

TEST_F(GeneralPage, HeightsCanBeChosenAndTyped) {
  Load();
  root().AutoHeight.Set(0);
  root().dHeightLimit.Set(150);
  Open(PageIndex::kGeneral);
  EXPECT_EQ(TextOfControl(kHeight), L"150");
  EXPECT_EQ(Count(kHeight), 27);
  EXPECT_EQ(Count(kLandscapeHeight), 28);
  EXPECT_EQ(Line(kLandscapeHeight, 27), L"600");
  Type(kHeight, L"0x50");
  Choose(kLandscapeHeight, 2);
  Close();
  EXPECT_EQ(root().dHeightLimit.Value(), 80u);
  EXPECT_EQ(root().dHeightLimitLandscape.Value(), 100u);

  Open(PageIndex::kGeneral);
  Type(kHeight, L"tall");
  Choose(kLandscapeHeight, 0);
  Close();
  EXPECT_EQ(root().dHeightLimit.Value(), 0u);
  EXPECT_EQ(root().dHeightLimitLandscape.Value(), 0u);
}

TEST_F(GeneralPage, AFittingHeightGreysTheLimitsButKeepsThem) {
  Load();
  root().dHeightLimit.Set(220);
  Open(PageIndex::kGeneral);
  EXPECT_EQ(Usable(1207, 1210), std::vector<int>());
  Tap(kAutoHeight);
  EXPECT_EQ(Usable(1207, 1210), (std::vector<int>{1207, 1208, 1209, 1210}));
  Tap(kAutoHeight);
  EXPECT_EQ(Usable(1207, 1210), std::vector<int>());
  Close();
  EXPECT_EQ(root().dHeightLimit.Value(), 220u);
}

TEST_F(GeneralPage, TheDPadsSelectorTurnsItsTwoGroupsAndAllAreStored) {
  Load();
  root().DPadCompleteAction.Set(1);
  root().DPadDoubleClickTabSwitching.Set(1);
  root().DPadScrollingAction.Set(2);
  Open(PageIndex::kGeneral);
  Turn(2);
  EXPECT_EQ(Usable(1220, 1228), (std::vector<int>{1220, 1221, 1222, 1223, 1224, 1227, 1228}));
  Choose(kDPadGroup, 1);
  EXPECT_EQ(Usable(1220, 1228), (std::vector<int>{1220, 1221, 1222, 1225, 1226, 1228}));
  Tap(kDPadEnabled);
  EXPECT_EQ(Usable(1220, 1228), (std::vector<int>{1220}));
  Close();
  EXPECT_EQ(root().DPadEnabled.Value(), 0u);
  EXPECT_EQ(root().DPadCompleteAction.Value(), 1u);
  EXPECT_EQ(root().DPadDoubleClickTabSwitching.Value(), 1u);
  EXPECT_EQ(root().DPadScrollingAction.Value(), 2u);

  Open(PageIndex::kGeneral);
  EXPECT_EQ(Selection(kDPadGroup), 0) << "the selector is not stored";
}

TEST_F(GeneralPage, TheSkinFolderIsChosenKeptAndCleared) {
  Load();
  root().SkinPath.Set(L"\\My Documents\\Skins");
  Open(PageIndex::kGeneral);
  Turn(1);
  EXPECT_TRUE(GetWindowLongW(Control(kSkinPath), GWL_STYLE) & ES_READONLY);
  Tap(kBrowseSkin);
  EXPECT_THAT(dialogs_.asked, testing::ElementsAre(L"Select Skin Path: \\My Documents\\Skins"));
  EXPECT_EQ(TextOfControl(kSkinPath), L"\\My Documents\\Skins") << "cancelled";
  dialogs_.answer = L"\\Storage Card\\Skins";
  Tap(kBrowseSkin);
  Close();
  EXPECT_EQ(root().SkinPath.Value(), L"\\Storage Card\\Skins");

  Open(PageIndex::kGeneral);
  Turn(1);
  Tap(kClearSkin);
  Close();
  EXPECT_EQ(root().SkinPath.Value(), L"");
}

class Languages : public GeneralPage {
 protected:
  static constexpr const wchar_t* kFolder = L"\\Program Files\\Velmont\\Tidewell\\LangRes\\";

  Languages() { installed_ = &machine_.libraries; }
  void Put(const std::wstring& file, std::optional<std::wstring> name) {
    machine_.files.Put(kFolder + file, "MZ");
    MemoryLibraries::Texts texts;
    if (name) texts[IDS_LANGUAGE_NAME] = *name;
    machine_.libraries.Put(kFolder + file, texts);
  }
  const std::wstring& Selected() { return root().SelectedLangResFile.Value(); }
};

TEST_F(Languages, APackIsChosenByItsName) {
  Put(L"TWEngRc.dll", L"English");
  Put(L"TWGerRc.dll", L"Deutsch");
  Open(PageIndex::kGeneral);
  Turn(1);
  EXPECT_EQ(Count(kLanguage), 2);
  EXPECT_EQ(Selection(kLanguage), 0);
  Choose(kLanguage, 1);
  Close();
  EXPECT_EQ(Selected(), std::wstring(kFolder) + L"TWGerRc.dll");
  Open(PageIndex::kGeneral);
  EXPECT_EQ(Selection(kLanguage), 1);
}

TEST_F(Languages, APackWithoutANameShiftsTheSlotsOfLaterOnes) {
  Put(L"AAA.dll", std::nullopt);
  Put(L"TWEngRc.dll", L"English");
  Put(L"TWGerRc.dll", L"Deutsch");
  Open(PageIndex::kGeneral);
  EXPECT_EQ(Count(kLanguage), 2);
  EXPECT_EQ(Selection(kLanguage), 1) << "English has the second slot";
  Close();
  EXPECT_EQ(Selected(), std::wstring(kFolder) + L"TWEngRc.dll");
}

TEST_F(Languages, NoPackLeavesTheChoiceAsItWas) {
  Load();
  root().SelectedLangResFile.Set(L"\\Storage Card\\Klingon.dll");
  Open(PageIndex::kGeneral);
  EXPECT_EQ(Count(kLanguage), 0);
  Close();
  EXPECT_EQ(Selected(), L"\\Storage Card\\Klingon.dll");
}

}  // namespace
}  // namespace tidewell
