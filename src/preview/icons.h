// The small pictures of an item: their names in an icon set, and where they come from.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>

#include "preview/canvas.h"

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

// False, and nothing drawn, where there is no icon.
bool PaintIcon(Canvas& canvas, const Image* icon, int x, int y);

// Loads each icon when it is first asked for, and only once, also when it is missing.
class IconCache final : public IconSource {
 public:
  // Returns null for a picture that is missing or broken.
  using Load = std::function<std::unique_ptr<Image>(IconSymbol symbol)>;

  explicit IconCache(Load load) : load_(std::move(load)) {}
  const Image* Find(IconSymbol symbol) override;

 private:
  struct Slot {
    bool isAsked = false;
    std::unique_ptr<Image> image;
  };

  Load load_;
  std::array<Slot, kIconSymbolCount> slots_;
};

}  // namespace tidewell
