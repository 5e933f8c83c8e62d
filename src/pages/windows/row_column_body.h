// A column of rows, one setting each. Windows only.
#pragma once

#include "pages/windows/column_body.h"

namespace tidewell {

class RowColumnBody final : public ColumnBody {
 public:
  RowColumnBody(SettingsPage& page, Raise raise, const PaintedRoom& room, const RowColumn& column);

  void LayOut() override;
  void Store() override;
  bool OnCommand(int id, int notification) override;

 private:
  std::vector<RowPlace> BuildRows(int y) override;
  std::vector<RowPlace> PlaceRows(const PageMetrics& metrics, int y) const override;
  RowPlace BuildRow(const Row& row, int y) const;
  void ShowCaption(const Row& row, const RowPlace& place) const;

  const RowColumn& column_;
};

}  // namespace tidewell
