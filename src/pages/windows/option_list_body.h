// A list of options with an editor above it for the one that is selected. The editor's controls are
// made once for all option lists of a page. Windows only.
#pragma once

#include "pages/option_layout.h"
#include "pages/windows/tab_body.h"

namespace tidewell {

class OptionListBody final : public TabBody {
 public:
  OptionListBody(SettingsPage& page, Raise raise, const PaintedRoom& room, const OptionList& list);

  void Build() override;
  // Hidden, it stores and leaves its selected option.
  void Show(int showCommand) override;
  void LayOut() override;
  void Store() override;
  bool OnCommand(int id, int notification) override;
  void OnSelection(int listId, int line, bool selected) override;

 private:
  void BuildPart(const ControlPlace& part) const;
  void FitColumns() const;
  void Deselect() const;
  void ShowOrder(const Option& option) const;
  void StoreOption(const Option& option) const;
  void ShowEditor(const Option& option) const;
  void ShowChoices(const Row& row) const;

  const OptionList& list_;
  const Option* selected_ = nullptr;  // whose editor is shown
};

}  // namespace tidewell
