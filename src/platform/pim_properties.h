// What the device's own database calls the facts of a category. The low half of a property
// identifier is its type.
#pragma once

#include <cstdint>

namespace tidewell {

inline constexpr const wchar_t* kCategoryDatabase = L"CategoryMainDB";
inline constexpr std::uint32_t kPimIdProperty = 0x00010066;    // low 16 bits of a number
inline constexpr std::uint32_t kPimNameProperty = 0x0002001F;  // text
inline constexpr std::uint32_t kPimFlagProperty = 0x00030003;  // set when 1

}  // namespace tidewell
