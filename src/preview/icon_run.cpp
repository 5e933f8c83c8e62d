#include "preview/icon_run.h"

namespace tidewell {

namespace {

// Stands in the order of codes for the icon of tasks that no mask can leave out.
constexpr std::uint32_t kRegeneratedMark = 0;
constexpr std::uint32_t kOrder[] = {
    kImportanceIcon, kReminderIcon, kPrivateIcon,   kRecurringIcon, kRegeneratedMark,
    kNoteIcon,       kLinkIcon,     kAttendeesIcon, kAttachedIcon,  kCategoryIcon,
};

bool IsShown(const TodayItem& item, std::uint32_t mask, std::uint32_t code) {
  if (code == kRegeneratedMark) return item.IsTask() && item.regenerating;
  return (mask & code) != 0 && IconOf(item, code);
}

Rect* PlaceToKeep(TodayItem& item, std::uint32_t code) {
  if (code == kReminderIcon) return &item.reminderPlace;
  if (code == kNoteIcon) return &item.notePlace;
  if (code == kLinkIcon) return &item.linkPlace;
  return nullptr;
}

}  // namespace

bool IconDrawer::DrawInCell(IconSymbol symbol, int x, int lineTop) {
  const bool isVisible = lineTop + scale_.ScaleY(12) > 0;
  if (pass_ == DrawPass::kMeasure || !isVisible) return false;
  const Image* icon = icons_.Find(symbol);
  return icon && PaintIcon(canvas_, icon, x + (Cell() - icon->Width()) / 2,
                           lineTop + lineHeight_ / 2 - icon->Height() / 2);
}

void IconDrawer::DrawCode(TodayItem& item, std::uint32_t code, int x, int lineTop) {
  const std::optional<IconSymbol> symbol = IconOf(item, code);
  if (!symbol || !DrawInCell(*symbol, x, lineTop)) return;
  if (Rect* place = PlaceToKeep(item, code)) {
    const int height = scale_.ScaleY(12);
    *place = {x, lineTop + lineHeight_ / 2 - height / 2, Cell(), height};
  }
}

bool IconDrawer::MakeRoom(FlowingPlace& place, Overflow overflow) const {
  if (place.x + Cell() <= place.right) return true;
  if (overflow == Overflow::kStop) return false;
  const int down = scale_.ScaleX(2) + lineHeight_;
  place.top += down;
  place.bottom += down;
  place.x = place.wrapLeft;
  return true;
}

void IconDrawer::DrawRun(TodayItem& item, std::uint32_t mask, FlowingPlace& place,
                         Overflow overflow) {
  for (const std::uint32_t code : kOrder) {
    if (!IsShown(item, mask, code)) continue;
    if (!MakeRoom(place, overflow)) return;
    if (code == kRegeneratedMark) {
      DrawInCell(IconSymbol::kRegenerated, place.x, place.top);
    } else {
      DrawCode(item, code, place.x, place.top);
    }
    place.x += CellStep();
  }
}

int IconDrawer::RunWidth(TodayItem& item, std::uint32_t mask) const {
  IconDrawer measuring = *this;
  measuring.pass_ = DrawPass::kMeasure;
  FlowingPlace place{0, 0, lineHeight_, scale_.ScaleX(300), 0};
  measuring.DrawRun(item, mask, place, Overflow::kStop);
  return place.x;
}

}  // namespace tidewell
