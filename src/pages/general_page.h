#pragma once

#include "addons/language_packs.h"
#include "pages/table_page.h"

namespace tidewell {

class GeneralPage final : public TablePage {
 public:
  explicit GeneralPage(PageContext& context);

 protected:
  void OnTabBuilt(int tab) override;
  void OnDestroy(HWND window) override;
  LRESULT OnCommand(HWND window, WPARAM wParam, LPARAM lParam) override;

 private:
  void FillLanguages();
  void ApplyHeightRule() const;
  void ApplyDPadRule() const;
  void BrowseSkin();

  LanguagePacks packs_;
};

}  // namespace tidewell
