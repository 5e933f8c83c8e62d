#include "pages/windows/icon_picker_body.h"

#include <utility>

#include "pages/icon_layout.h"

namespace tidewell {

namespace {

constexpr int kPickerGap = 8;  // at 96 dots per inch

}  // namespace

IconPickerBody::IconPickerBody(SettingsPage& page, Raise raise, const PaintedRoom& room,
                               const IconPickers& content)
    : ColumnBody(page, std::move(raise), room), content_(content) {}

template <typename Place>
std::vector<RowPlace> IconPickerBody::Stack(int y, Place place) const {
  std::vector<RowPlace> places;
  for (const TwoRowPicker& picker : content_.pickers) {
    RowPlace& placed = places.emplace_back(place(picker, y));
    placed.height += Scale().ScaleY(kPickerGap);
    y += placed.height;
  }
  return places;
}

std::vector<RowPlace> IconPickerBody::BuildRows(int y) {
  return Stack(
      y, [&](const TwoRowPicker& picker, int top) { return Page().AddTwoRowPicker(picker, top); });
}

std::vector<RowPlace> IconPickerBody::PlaceRows(const PageMetrics& metrics, int y) const {
  return Stack(y, [&](const TwoRowPicker& picker, int top) {
    return PlaceTwoRowPicker(metrics, picker, top);
  });
}

}  // namespace tidewell
