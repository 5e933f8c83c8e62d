// A list of items that the page's rules fill, with rows above it and buttons beside or below it.
// Windows only.
#pragma once

#include <optional>
#include <vector>

#include "pages/windows/category_images.h"
#include "pages/windows/list_lines.h"
#include "pages/windows/row_column_body.h"
#include "pages/windows/tab_body.h"
#include "ui/windows/file_icons.h"

namespace tidewell {

class ItemListBody final : public TabBody {
 public:
  ItemListBody(SettingsPage& page, Raise raise, const PaintedRoom& room, const ItemList& list);

  void Build() override;
  void Show(int showCommand) override;
  void LayOut() override;
  void Store() override { rows_.Store(); }
  bool OnCommand(int id, int notification) override { return rows_.OnCommand(id, notification); }
  void OnShowLine(LVITEMW& line) override;
  bool SetLines(int listId, const std::vector<ListLine>& lines) override;
  bool SetLook(int listId, int line, const LineLook& look) override;
  LRESULT OnDrawLine(NMLVCUSTOMDRAW& draw) override;

 private:
  std::vector<ItemButton> Buttons() const;
  void AddButton(const ItemButton& button, const std::vector<ControlPlace>& places) const;
  void BuildList(const Rect& place);
  std::vector<ControlPlace> Places() const;
  void Fit() const;
  Rect PlaceOfList(const PageMetrics& metrics) const;

  const ItemList& list_;
  RowColumnBody rows_;
  std::optional<FileIcons> icons_;
  LineLooks looks_;
  std::optional<CategoryImages> categories_;
  std::vector<ListLine> lines_;  // whose pictures are still to be told
};

}  // namespace tidewell
