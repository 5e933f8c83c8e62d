#include <cstdint>

#include "tests/fuzz/fuzz_targets.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  tidewell::fuzz::FUZZ_TARGET(std::as_bytes(std::span(data, size)));
  return 0;
}
