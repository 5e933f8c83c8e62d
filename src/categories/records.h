// What a view can be restricted to: a category, a filter, or nothing.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>

namespace tidewell {

// The picture of a category; only the shell knows what it is made of.
class CategoryIcon {
 public:
  virtual ~CategoryIcon() = default;
};

struct CategoryRecord {
  static constexpr std::uint32_t kNoColor = 0xFFFFFFFF;

  std::wstring name;
  std::uint32_t filterFlags = 0;
  std::uint32_t color = kNoColor;  // 0x00BBGGRR
  // The registry would not say: what stands here is only the default.
  bool filterFlagsRefused = false;
  bool colorRefused = false;
  std::unique_ptr<CategoryIcon> bitmap;
  bool pimFlag = false;
  std::uint16_t pimId = 0;
};

struct FilterRecord {
  std::wstring title;
  std::int32_t sensitivity = 0;  // kept in the filters file only
  bool visible = true;
  bool includeUncategorized = false;  // items without a category pass
  std::int32_t index = 0;             // 1 to 32, the filter's identity

  bool operator==(const FilterRecord&) const = default;
};

// No restriction at all.
struct AllRecord {
  std::wstring name;
};

inline constexpr std::int32_t kFilterCount = 32;
// The filter of index i stands at place i - 1.
using FilterSet = std::array<FilterRecord, kFilterCount>;

// "Filter 1" to "Filter 32", all visible.
FilterRecord DefaultFilter(std::int32_t index);
FilterSet DefaultFilters();

}  // namespace tidewell
