// The categories that stand in for a device's own on the desktop: a text with one on each line.
// docs/pim-volume.md describes it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tidewell {

// What a line leaves out its record lacks.
struct PimRecord {
  std::optional<std::uint32_t> id;
  std::optional<std::uint32_t> flag;
  std::string name;  // UTF-8; empty for none

  bool operator==(const PimRecord&) const = default;
};

// Lines that are no record are left out.
std::vector<PimRecord> ParsePimVolume(std::string_view text);

}  // namespace tidewell
