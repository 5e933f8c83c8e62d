#include "ui/windows/command_bar.h"

#include <utility>

#include "ui/windows/look.h"
#include "win32/gdi.h"

namespace tidewell {

namespace {

RECT SlotArea(const RECT& bar, std::size_t slot) {
  const auto edge = [&](std::size_t index) {
    return bar.left + static_cast<LONG>(index) * (bar.right - bar.left) /
                          static_cast<LONG>(CommandBar::kSlots);
  };
  return {edge(slot), bar.top, edge(slot + 1), bar.bottom};
}

// Stands for a picture that is missing, so that the button can still be found.
void DrawBlankButton(HDC dc, RECT area, const ScreenScale& scale) {
  InflateRect(&area, -scale.ScaleX(8), -scale.ScaleY(10));
  const Pen pen(CreatePen(PS_SOLID, 1, kScrollThumb));
  const Selected selectedPen(dc, pen.Get());
  const Selected selectedBrush(dc, GetStockObject(WHITE_BRUSH));
  RoundRect(dc, area.left, area.top, area.right, area.bottom, scale.ScaleX(6), scale.ScaleY(6));
}

}  // namespace

void CommandBar::SetButton(std::size_t slot, Picture picture, int command) {
  buttons_[slot] = Button{std::move(picture), command};
}

std::optional<int> CommandBar::Command(std::size_t slot) const {
  if (!buttons_[slot]) return std::nullopt;
  return buttons_[slot]->command;
}

void CommandBar::Paint(HDC dc, const RECT& bar, const ScreenScale& scale) const {
  FillVertically(dc, bar, kBarTop, kBarBottom);
  FillPlain(dc, {bar.left, bar.top, bar.right, bar.top + 1}, kEdge);
  for (std::size_t slot = 0; slot < kSlots; ++slot) {
    if (!buttons_[slot]) continue;
    RECT area = SlotArea(bar, slot);
    ++area.top;
    if (pressed_ == slot) FillVertically(dc, area, kSelectionTop, kSelectionBottom);
    if (buttons_[slot]->picture) {
      buttons_[slot]->picture.DrawCentred(dc, area);
    } else {
      DrawBlankButton(dc, area, scale);
    }
  }
}

std::optional<int> CommandBar::CommandAt(const RECT& bar, POINT point) const {
  const auto slot = SlotAt(bar, point);
  return slot ? Command(*slot) : std::nullopt;
}

bool CommandBar::ShowPressed(const RECT& bar, std::optional<POINT> point) {
  const auto slot = point ? SlotAt(bar, *point) : std::nullopt;
  const bool changed = slot != pressed_;
  pressed_ = slot;
  return changed;
}

std::optional<std::size_t> CommandBar::SlotAt(const RECT& bar, POINT point) const {
  for (std::size_t slot = 0; slot < kSlots; ++slot) {
    const RECT area = SlotArea(bar, slot);
    if (buttons_[slot] && PtInRect(&area, point)) return slot;
  }
  return std::nullopt;
}

}  // namespace tidewell
