#include "platform/image_check.h"

#include "tests/fuzz/fuzz_targets.h"

namespace tidewell::fuzz {

// What a decoder would be given is no longer than the file, and whole itself.
bool image_check(Bytes bytes) {
  const std::vector<std::byte> part = DecodablePart({bytes.begin(), bytes.end()});
  Require(part.size() <= bytes.size());
  Require(part.empty() || DecodablePart(part) == part);
  return !part.empty();
}

}  // namespace tidewell::fuzz
