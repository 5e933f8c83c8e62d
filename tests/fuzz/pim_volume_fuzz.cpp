#include "platform/desktop/pim_volume.h"

#include <algorithm>

#include "tests/fuzz/fuzz_targets.h"

namespace tidewell::fuzz {

// What is a volume is the one way to write what it holds. The checksum stops nearly every change,
// so the bytes are tried as a body with a right checksum too.
void pim_volume(Bytes bytes) {
  const std::vector<std::byte> wrapped = WrapVolumeBody(bytes);
  for (const Bytes file : {bytes, Bytes(wrapped)}) {
    const std::optional<PimVolume> volume = ParsePimVolume(file);
    Require(!volume || std::ranges::equal(FormatPimVolume(*volume), file));
  }
}

}  // namespace tidewell::fuzz
