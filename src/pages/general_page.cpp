#include "pages/general_page.h"

#include "pages/general_table.h"
#include "pages/page_dialogs.h"

namespace tidewell {

namespace {

constexpr int kHeightTab = 0;
constexpr int kLanguageTab = 1;
constexpr int kDPadTab = 2;

}  // namespace

using namespace general_ids;

GeneralPage::GeneralPage(PageContext& context) : TablePage(context, GeneralTable(context)) {}

void GeneralPage::OnTabBuilt(int tab) {
  if (tab == kHeightTab) ApplyHeightRule();
  if (tab == kLanguageTab) FillLanguages();
  if (tab == kDPadTab) ApplyDPadRule();
}

void GeneralPage::OnDestroy(HWND window) {
  TablePage::OnDestroy(window);
  // Where no pack is chosen, the present one stays.
  const int choice =
      Control(kLanguage) ? static_cast<int>(Send(kLanguage, CB_GETCURSEL)) : kNoChoice;
  if (const std::wstring* path = packs_.PathOf(choice)) {
    Context().settings.root.SelectedLangResFile.Set(*path);
  }
}

LRESULT GeneralPage::OnCommand(HWND, WPARAM wParam, LPARAM) {
  switch (LOWORD(wParam)) {
    case kAutoHeight:
      ApplyHeightRule();
      break;
    case kDPadEnabled:
      ApplyDPadRule();
      break;
    case kDPadGroup:
      if (HIWORD(wParam) == CBN_SELCHANGE) ApplyDPadRule();
      break;
    case kClearSkin:
      SetPathOfControl(kSkinPath, L"");
      break;
    case kBrowseSkin:
      BrowseSkin();
      break;
  }
  return 0;
}

void GeneralPage::FillLanguages() {
  const SettingsStore& settings = Context().settings;
  packs_ = ScanLanguagePacks(Context().machine, settings.installFolder,
                             settings.root.SelectedLangResFile.Value());
  for (const std::wstring& name : packs_.names) {
    Send(kLanguage, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name.c_str()));
  }
  Send(kLanguage, CB_SETCURSEL, static_cast<WPARAM>(packs_.selection));
}

void GeneralPage::ApplyHeightRule() const {
  Enable(HeightRule(IsChecked(kAutoHeight)));
}

void GeneralPage::ApplyDPadRule() const {
  Enable(DPadRule(IsChecked(kDPadEnabled), static_cast<int>(Send(kDPadGroup, CB_GETCURSEL))));
}

void GeneralPage::BrowseSkin() {
  if (!Context().dialogs) return;
  const auto folder = Context().dialogs->ChooseFolder(Window(), Context(), L"Select Skin Path",
                                                      TextOfControl(kSkinPath));
  if (folder) SetPathOfControl(kSkinPath, *folder);
}

}  // namespace tidewell
