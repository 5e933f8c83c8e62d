// The property database volume that stands in for a device's on the desktop, as one file of bytes.
// docs/pim-volume.md describes it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace tidewell {

struct VolumeProperty {
  std::uint32_t id = 0;      // the low half tells the type
  std::uint32_t number = 0;  // of every type but text
  std::wstring text;
};

struct VolumeRecord {
  std::vector<VolumeProperty> properties;
};

struct VolumeDatabase {
  std::wstring name;
  std::vector<VolumeRecord> records;
};

struct PimVolume {
  std::vector<VolumeDatabase> databases;
};

inline constexpr std::uint32_t kVolumeTextType = 0x1F;

constexpr bool IsTextProperty(std::uint32_t id) {
  return (id & 0xFFFF) == kVolumeTextType;
}

// Texts longer than 65,535 units are cut.
std::vector<std::byte> FormatPimVolume(const PimVolume& volume);

// Nothing unless the bytes are one whole, unharmed volume.
std::optional<PimVolume> ParsePimVolume(std::span<const std::byte> bytes);

// A volume's bytes around a body that need not be one: for tests of the reader.
std::vector<std::byte> WrapVolumeBody(std::span<const std::byte> body);

}  // namespace tidewell
