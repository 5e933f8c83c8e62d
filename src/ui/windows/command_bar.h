// A strip along a window's bottom with room for five buttons, each a picture that runs a command.
#pragma once

#include <windows.h>

#include <array>
#include <cstddef>
#include <optional>

#include "platform/scale.h"
#include "ui/windows/picture.h"

namespace tidewell {

class CommandBar {
 public:
  static constexpr std::size_t kSlots = 5;
  static constexpr std::size_t kLeftSlot = 0;
  static constexpr std::size_t kRightSlot = 4;

  static int Height(const ScreenScale& scale) { return scale.ScaleY(40, true); }

  void SetButton(std::size_t slot, Picture picture, int command);
  void RemoveButton(std::size_t slot) { buttons_[slot].reset(); }
  std::optional<int> Command(std::size_t slot) const;

  // `bar` is where the strip lies in its window, here and below.
  void Paint(HDC dc, const RECT& bar, const ScreenScale& scale) const;
  // The command of the button at `point`, if there is one.
  std::optional<int> CommandAt(const RECT& bar, POINT point) const;
  // The button at `point` looks pressed until the next call; true when the looks have changed.
  bool ShowPressed(const RECT& bar, std::optional<POINT> point);

 private:
  struct Button {
    Picture picture;
    int command = 0;
  };

  std::optional<std::size_t> SlotAt(const RECT& bar, POINT point) const;

  std::array<std::optional<Button>, kSlots> buttons_;
  std::optional<std::size_t> pressed_;
};

}  // namespace tidewell
