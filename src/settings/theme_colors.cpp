#include "settings/theme_colors.h"

#include <array>
#include <span>

#include "platform/text.h"

namespace tidewell {

namespace {

// The theme keeps a colour as its red, green and blue bytes.
std::uint32_t ColorOf(std::span<const std::byte, 3> bytes) {
  return std::to_integer<std::uint32_t>(bytes[0]) | std::to_integer<std::uint32_t>(bytes[1]) << 8 |
         std::to_integer<std::uint32_t>(bytes[2]) << 16;
}

}  // namespace

ThemeColorLookup::ThemeColorLookup(Registry& registry)
    : key_(registry.Open(RegistryRoot::kLocalMachine, L"SOFTWARE\\Microsoft\\Color")) {}

std::uint32_t ThemeColorLookup::Find(std::uint32_t index, std::uint32_t defaultColor) {
  if (!key_) return defaultColor;
  std::array<std::byte, 4> own{};
  ValueInfo info;
  const std::wstring name = FormatDecimal(static_cast<std::int32_t>(index));
  if (key_->Query(name, own, info) == kStatusSuccess && info.size >= 3) {
    return ColorOf(std::span(own).first<3>());
  }
  const std::span<const std::byte> table = Table();
  const std::size_t offset = std::size_t{index} * 4;
  if (table.size() <= offset + 4) return defaultColor;
  return ColorOf(table.subspan(offset).first<3>());
}

const std::vector<std::byte>& ThemeColorLookup::Table() {
  if (table_) return *table_;
  std::vector<std::byte>& table = table_.emplace();
  ValueInfo info;
  if (key_->Query(L"SHColor", {}, info) != kStatusSuccess) return table;
  table.resize(info.size);
  const bool isRead = key_->Query(L"SHColor", table, info) == kStatusSuccess;
  if (!isRead || info.size != table.size()) table.clear();
  return table;
}

ThemeColors ReadThemeColors(Registry& registry, SystemVersion version) {
  ThemeColorLookup lookup(registry);
  ThemeColors colors;
  colors.color1 = lookup.Find(4, colors.color1);
  colors.color2 = lookup.Find(6, colors.color2);
  colors.color3 = lookup.Find(8, colors.color3);
  colors.color4 = lookup.Find(9, colors.color4);
  if (IsBeforeWindowsMobile5(version)) return colors;
  colors.highlight = lookup.Find(34, colors.highlight);
  colors.highlightText = lookup.Find(35, colors.highlightText);
  return colors;
}

}  // namespace tidewell
