// The colours of the device's theme, as Windows COLORREFs: red in the low byte.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "platform/registry.h"
#include "platform/system.h"

namespace tidewell {

// Looks colours up by their system index. Opens the theme's key once, for as long as it lives.
class ThemeColorLookup {
 public:
  explicit ThemeColorLookup(Registry& registry);
  // The value named after the index wins over the one in the common table.
  std::uint32_t Find(std::uint32_t index, std::uint32_t defaultColor);

 private:
  const std::vector<std::byte>& Table();

  std::unique_ptr<RegistryKey> key_;
  std::optional<std::vector<std::byte>> table_;  // "SHColor", read when first needed
};

struct ThemeColors {
  std::uint32_t color1 = 0x000000;
  std::uint32_t color2 = 0xEF8E73;
  std::uint32_t color3 = 0x9C4D2C;
  std::uint32_t color4 = 0xFFFFFF;
  std::uint32_t highlight = 0x9C4D2C;
  std::uint32_t highlightText = 0xFFFFFF;
};

ThemeColors ReadThemeColors(Registry& registry, SystemVersion version);

}  // namespace tidewell
