#include "preview/icons.h"

#include "platform/text.h"

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
  if (const std::wstring& chosen = ChosenFolder(); chosen != folder_) {
    folder_ = chosen;
    slots_ = {};
  }
  Slot& slot = slots_[static_cast<std::size_t>(symbol)];
  if (!slot.isAsked) {
    slot.isAsked = true;
    slot.image = Load(symbol);
  }
  return slot.image.get();
}

// The largest that is not larger than an icon, or else the smallest.
const std::wstring& IconCache::ChosenFolder() const {
  if (size_ >= 24) return settings_.InstallPath24.Value();
  return size_ >= 18 ? settings_.InstallPath18.Value() : settings_.InstallPath12.Value();
}

std::unique_ptr<Image> IconCache::Load(IconSymbol symbol) const {
  if (!folder_.empty()) {
    const std::wstring path = JoinPath(folder_, SymbolName(symbol));
    for (const wchar_t* extension : {L".png", L".tga", L".bmp"}) {
      if (auto image = loadFile_(path + extension)) return image;
    }
  }
  return loadShipped_(symbol);
}

}  // namespace tidewell
