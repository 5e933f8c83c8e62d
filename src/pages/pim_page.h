#pragma once

#include "pages/table_page.h"

namespace tidewell {

class PimPage final : public TablePage {
 public:
  explicit PimPage(PageContext& context);

 protected:
  void OnTabBuilt(int tab) override;
  LRESULT OnCommand(HWND window, WPARAM wParam, LPARAM lParam) override;

 private:
  // The program is stored as soon as it is chosen: the other controls depend on what is stored.
  void ChooseProgram();
  void FallBack();
  std::uint32_t ChosenProgram() const;
  void ApplyRule() const;

  DwordSetting& Program() const { return Context().settings.customPim.PimSw; }
};

}  // namespace tidewell
