#include "platform/library_check.h"

#include "platform/memory/memory_files.h"
#include "tests/fuzz/fuzz_targets.h"

namespace tidewell::fuzz {

namespace {

// Goes where the headers and the tree lead as the system does, which looks nowhere.
class BlindLoader {
 public:
  explicit BlindLoader(Bytes bytes) : bytes_(bytes) {
    const std::uint64_t headers = NumberIn(bytes, 60, 4) + 24;
    sections_ = headers + NumberIn(bytes, headers - 4, 2);
    count_ = NumberIn(bytes, headers - 18, 2);
    RequireIn(bytes, sections_, count_ * 40);
    const std::uint64_t directories = headers + (NumberIn(bytes, headers, 2) == 0x10B ? 96 : 112);
    if (NumberIn(bytes, directories - 4, 4) < 3) return;
    const std::uint64_t resources = NumberIn(bytes, directories + 16, 4);
    if (resources != 0) Walk(OffsetOf(resources), OffsetOf(resources));
  }

 private:
  static constexpr std::uint64_t kFlag = 0x80000000;

  std::uint64_t OffsetOf(std::uint64_t place) const {
    for (std::uint64_t at = sections_; at < sections_ + count_ * 40; at += 40) {
      const std::uint64_t start = NumberIn(bytes_, at + 12, 4);
      if (place < start || place - start >= NumberIn(bytes_, at + 16, 4)) continue;
      return NumberIn(bytes_, at + 20, 4) + place - start;
    }
    return bytes_.size();
  }

  void Walk(std::uint64_t root, std::uint64_t at) const {
    const std::uint64_t count = NumberIn(bytes_, at + 12, 2) + NumberIn(bytes_, at + 14, 2);
    for (std::uint64_t entry = at + 16; entry < at + 16 + count * 8; entry += 8) {
      const std::uint64_t name = NumberIn(bytes_, entry, 4);
      const std::uint64_t text = root + (name & ~kFlag);
      if (name & kFlag) RequireIn(bytes_, text + 2, NumberIn(bytes_, text, 2) * 2);
      const std::uint64_t target = root + (NumberIn(bytes_, entry + 4, 4) & ~kFlag);
      if (NumberIn(bytes_, entry + 4, 4) & kFlag) {
        Walk(root, target);
      } else if (const std::uint64_t size = NumberIn(bytes_, target + 4, 4)) {
        RequireIn(bytes_, OffsetOf(NumberIn(bytes_, target, 4)), size);
      }
    }
  }

  Bytes bytes_;
  std::uint64_t sections_ = 0;
  std::uint64_t count_ = 0;
};

}  // namespace

bool library_check(Bytes bytes) {
  MemoryFiles files;
  files.Put(L"\\a.dll", bytes);
  const bool isWhole = IsWholeLibrary(files, L"\\a.dll");
  if (isWhole) BlindLoader{bytes};
  return isWhole;
}

}  // namespace tidewell::fuzz
