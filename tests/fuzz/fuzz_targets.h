// The targets. Each takes any bytes and ends the program when a promise is broken.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>

namespace tidewell::fuzz {

using Bytes = std::span<const std::byte>;

void registry_text(Bytes bytes);
void import_flow(Bytes bytes);
void filters_file(Bytes bytes);
void pim_volume(Bytes bytes);
void settings_load(Bytes bytes);
void backup_document(Bytes bytes);
void backup_check(Bytes bytes);
// These tell whether the file is whole.
bool bitmap_check(Bytes bytes);
bool image_check(Bytes bytes);
bool library_check(Bytes bytes);
bool tga(Bytes bytes);

inline void Require(bool promise) {
  if (!promise) std::abort();
}

// Both take as much off the front of the input as it has.
inline Bytes TakeBytes(Bytes& input, std::size_t size) {
  const Bytes taken = input.first(size < input.size() ? size : input.size());
  input = input.subspan(taken.size());
  return taken;
}
inline std::uint8_t TakeNumber(Bytes& input) {
  const Bytes taken = TakeBytes(input, 1);
  return taken.empty() ? 0 : std::to_integer<std::uint8_t>(taken[0]);
}

// That a place is within the bytes, and the little-endian number there.
inline void RequireIn(Bytes bytes, std::uint64_t at, std::uint64_t size) {
  Require(at <= bytes.size() && size <= bytes.size() - at);
}
inline std::uint64_t NumberIn(Bytes bytes, std::uint64_t at, std::size_t size) {
  RequireIn(bytes, at, size);
  std::uint64_t number = 0;
  while (size-- > 0) number = number << 8 | std::to_integer<std::uint64_t>(bytes[at + size]);
  return number;
}

}  // namespace tidewell::fuzz
