#include "platform/whole_file.h"

#include <algorithm>
#include <utility>

namespace tidewell {

WholeFile ReadWholeFile(Files& files, const std::wstring& path, std::size_t limit) {
  const Opened<InputStream> file = files.OpenForReading(path);
  if (!file.stream) return {{}, file.status};
  std::vector<std::byte> bytes;
  std::size_t used = 0;
  for (;;) {
    if (used == bytes.size()) {
      // One byte more than the limit tells a file that has more.
      bytes.resize(used + std::min(limit - used, std::max<std::size_t>(16 * 1024, used)) + 1);
    }
    const std::optional<std::size_t> count = file.stream->Read(std::span(bytes).subspan(used));
    if (!count) return {};
    if (*count == 0) break;
    used += *count;
    if (used > limit) return {};
  }
  bytes.resize(used);
  return {std::move(bytes), FileStatus::kOk};
}

}  // namespace tidewell
