// Icon pickers, one below another. Windows only.
#pragma once

#include "pages/windows/column_body.h"

namespace tidewell {

class IconPickerBody final : public ColumnBody {
 public:
  IconPickerBody(SettingsPage& page, Raise raise, const PaintedRoom& room,
                 const IconPickers& content);

  // What is chosen was stored at once.
  void Store() override {}

 private:
  std::vector<RowPlace> BuildRows(int y) override;
  std::vector<RowPlace> PlaceRows(const PageMetrics& metrics, int y) const override;
  // Puts them one below another; `place` tells where one stands that begins at a height.
  template <typename Place>
  std::vector<RowPlace> Stack(int y, Place place) const;

  const IconPickers& content_;
};

}  // namespace tidewell
