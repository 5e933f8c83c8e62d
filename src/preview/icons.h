// The small pictures of an item: their names in an icon set, and where they come from.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "platform/scale.h"
#include "preview/canvas.h"
#include "settings/catalogue/icon_set_settings.h"

namespace tidewell {

enum class IconSymbol : std::uint8_t {
  kReminder,
  kPrivate,
  kRecurring,
  kRecurringSecond,
  kNote,
  kCategory,
  kLowImportance,
  kHighImportance,
  kAttached,
  kAttendees,
  kLink,
  kAllDay,
  kTaskChecked,
  kTaskNotChecked,
  kActiveTask,
  kRegenerated,
};
inline constexpr std::size_t kIconSymbolCount = 16;

// What the symbol's picture is called in an icon set, such as "high_importance".
const wchar_t* SymbolName(IconSymbol symbol);

class IconSource {
 public:
  virtual ~IconSource() = default;
  // Null where there is no picture of that symbol.
  virtual const Image* Find(IconSymbol symbol) = 0;
};

// Where there are no icons at all.
class NoIcons final : public IconSource {
 public:
  const Image* Find(IconSymbol) override { return nullptr; }
};

// False, and nothing drawn, where there is no icon.
bool PaintIcon(Canvas& canvas, const Image* icon, int x, int y);

// The icons of the chosen set, each loaded when it is first asked for, and only once, also when it
// is missing. What the set lacks comes from the one that ships.
class IconCache final : public IconSource {
 public:
  // Returns null for a picture that is missing or broken.
  using LoadIcon = std::function<std::unique_ptr<Image>(IconSymbol symbol)>;

  // The settings outlive the cache.
  IconCache(const IconSetSettings& settings, const ScreenScale& scale, LoadImageFile loadFile,
            LoadIcon loadShipped)
      : settings_(settings),
        size_(scale.ScaleX(12)),
        loadFile_(std::move(loadFile)),
        loadShipped_(std::move(loadShipped)) {}

  // Begins anew when the settings name another set: what was found before is gone then.
  const Image* Find(IconSymbol symbol) override;

 private:
  struct Slot {
    bool isAsked = false;
    std::unique_ptr<Image> image;
  };

  const std::wstring& ChosenFolder() const;
  std::unique_ptr<Image> Load(IconSymbol symbol) const;

  const IconSetSettings& settings_;
  int size_;  // of an icon, in pixels
  LoadImageFile loadFile_;
  LoadIcon loadShipped_;
  std::wstring folder_;  // empty: the set that ships
  std::array<Slot, kIconSymbolCount> slots_;
};

}  // namespace tidewell
