#include "platform/desktop/pim_volume.h"

#include "tests/fuzz/fuzz_targets.h"

namespace tidewell::fuzz {

// Every record written as a line gives the same record.
void pim_volume(Bytes bytes) {
  const auto field = [](std::optional<std::uint32_t> number) {
    return number ? std::to_string(*number) + ' ' : "- ";
  };
  const std::string text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
  const std::vector<PimRecord> records = ParsePimVolume(text);
  std::string written;
  for (const PimRecord& record : records) {
    written += field(record.id) + field(record.flag) + record.name + '\n';
  }
  Require(ParsePimVolume(written) == records);
}

}  // namespace tidewell::fuzz
