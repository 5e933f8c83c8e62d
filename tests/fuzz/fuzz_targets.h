// The targets. Each takes any bytes and ends the program when a promise is broken.
#pragma once

#include <cstddef>
#include <cstdlib>
#include <span>

namespace tidewell::fuzz {

using Bytes = std::span<const std::byte>;

void registry_text(Bytes bytes);
void import_flow(Bytes bytes);
void filters_file(Bytes bytes);
void pim_volume(Bytes bytes);
void settings_load(Bytes bytes);

inline void Require(bool promise) {
  if (!promise) std::abort();
}

}  // namespace tidewell::fuzz
