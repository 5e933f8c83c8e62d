#include "platform/whole_file.h"

#include <algorithm>

namespace tidewell {

std::optional<std::vector<std::byte>> ReadWholeFile(Files& files, const std::wstring& path,
                                                    std::size_t limit) {
  const std::unique_ptr<InputStream> input = files.OpenForReading(path);
  if (!input) return std::nullopt;
  std::vector<std::byte> bytes;
  std::size_t used = 0;
  for (;;) {
    if (used == bytes.size()) {
      // One byte more than the limit tells a file that has more.
      bytes.resize(used + std::min(limit - used, std::max<std::size_t>(16 * 1024, used)) + 1);
    }
    const std::optional<std::size_t> count = input->Read(std::span(bytes).subspan(used));
    if (!count) return std::nullopt;
    if (*count == 0) break;
    used += *count;
    if (used > limit) return std::nullopt;
  }
  bytes.resize(used);
  return bytes;
}

}  // namespace tidewell
