// What a start is made of, in the order of the parts.
#pragma once

#include <cstddef>

namespace tidewell::bench {

inline constexpr const char* kStartParts[] = {
    "start: the process, to its entry",
    "start: a window, COM",
    "start: settings, language library",
    "start: picture library, fonts",
    "start: categories",
    "start: rows painted, window and title strip shown",
    "start: brought up to date",
};
inline constexpr std::size_t kStartPartCount = sizeof kStartParts / sizeof *kStartParts;

}  // namespace tidewell::bench
