// A column of rows. One that does not fit is scrolled by finger, thumb, wheel and focus. Windows
// only.
#pragma once

#include <optional>
#include <vector>

#include "pages/page_layout.h"
#include "pages/scroll_range.h"
#include "pages/windows/tab_body.h"

namespace tidewell {

class RowColumnBody final : public TabBody {
 public:
  RowColumnBody(SettingsPage& page, Raise raise, const RowColumn& column);

  void Build() override;
  void Show(int showCommand) override;
  void LayOut() override;
  void Store() override;
  bool OnCommand(int id, int notification) override;
  void OnFocus(HWND control) override;
  bool OnPageKey(int direction) override;
  void OnWheel(int distance) override;
  void OnPointer(UINT message, POINT point) override;
  void PaintBackground(HDC dc) override;

 private:
  // What moves under the finger, and by what it is held.
  struct Drag {
    bool thumb;
    int grip;  // from its top to the finger
  };

  RowPlace BuildRow(const Row& row, int y) const;
  void ShowCaption(const Row& row, const RowPlace& place) const;
  void FitScroll();
  void MoveControls(UINT flags) const;
  // After the scroll offset changed.
  void Follow(bool changed);
  void BeginDrag(POINT point);
  void DragTo(int y);
  RECT ThumbArea() const;

  const RowColumn& column_;
  std::vector<RowPlace> places_;
  ScrollRange scroll_;
  std::optional<Drag> drag_;
};

}  // namespace tidewell
