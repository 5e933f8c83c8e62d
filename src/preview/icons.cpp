#include "preview/icons.h"

namespace tidewell {

const wchar_t* SymbolName(IconSymbol symbol) {
  static constexpr const wchar_t* kNames[kIconSymbolCount] = {
      L"reminder",
      L"private",
      L"recurring",
      L"recurring_2",
      L"note",
      L"category_symbol",
      L"low_importance",
      L"high_importance",
      L"attached_icon_symbol",
      L"attendees",
      L"link",
      L"allday_appt",
      L"task_checked",
      L"task_not_checked",
      L"active_task",
      L"regenerated",
  };
  return kNames[static_cast<std::size_t>(symbol)];
}

bool PaintIcon(Canvas& canvas, const Image* icon, int x, int y) {
  if (!icon) return false;
  canvas.Draw(*icon, x, y);
  return true;
}

const Image* IconCache::Find(IconSymbol symbol) {
  Slot& slot = slots_[static_cast<std::size_t>(symbol)];
  if (!slot.isAsked) {
    slot.isAsked = true;
    slot.image = load_(symbol);
  }
  return slot.image.get();
}

}  // namespace tidewell
