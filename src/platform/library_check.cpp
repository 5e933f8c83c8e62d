#include "platform/library_check.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <vector>

#include "platform/file_start.h"

namespace tidewell {

namespace {

using Bytes = std::span<const std::byte>;

constexpr std::uint32_t kDosMagic = 0x5A4D;  // "MZ"
constexpr std::size_t kDosHeaderSize = 64;
constexpr std::uint32_t kMagic = 0x4550;  // "PE"
constexpr std::size_t kFileHeaderSize = 24;
constexpr std::size_t kSectionHeaderSize = 40;
constexpr std::uint32_t kResourceDirectory = 2;
constexpr int kTreeDepth = 3;  // type, name, language

// Places are counted within the library as it would lie in memory.
struct Section {
  std::uint64_t place = 0;
  std::uint64_t size = 0;
  std::uint64_t offset = 0;  // in the file

  bool Holds(std::uint64_t at, std::uint64_t bytes) const {
    return at >= place && at - place < size && bytes <= size - (at - place);
  }
};

struct Layout {
  std::vector<Section> sections;
  std::uint64_t resources = 0;  // the place of their tree; 0 for none

  // The section that the system looks for a place in: the first one that has it.
  const Section* SectionAt(std::uint64_t place) const {
    const auto found = std::ranges::find_if(
        sections, [&](const Section& section) { return section.Holds(place, 1); });
    return found == sections.end() ? nullptr : &*found;
  }
};

// What the optional header says of the resources. Nothing where it is none or too short.
std::optional<std::uint64_t> ReadResourcePlace(Bytes optional) {
  if (optional.size() < 2) return std::nullopt;
  const std::uint32_t kind = NumberAt(optional, 0, 2);
  if (kind != 0x10B && kind != 0x20B) return std::nullopt;
  const std::size_t directories = kind == 0x10B ? 96 : 112;
  if (optional.size() < directories) return std::nullopt;
  if (NumberAt(optional, directories - 4, 4) <= kResourceDirectory) return 0;
  const std::size_t entry = directories + 8 * kResourceDirectory;
  if (optional.size() < entry + 8) return std::nullopt;
  const std::uint32_t place = NumberAt(optional, entry, 4);
  // What lies before this is taken for a part of the headers.
  const std::uint32_t headersEnd = NumberAt(optional, 60, 4);
  if (place != 0 && place < headersEnd) return std::nullopt;
  return place;
}

bool ReadSections(FileStart& file, std::uint64_t offset, std::uint32_t count, Layout& layout) {
  const auto table = file.At(offset, count * kSectionHeaderSize);
  if (!table) return false;
  for (std::size_t i = 0; i < count; ++i) {
    const Bytes header = table->subspan(i * kSectionHeaderSize, kSectionHeaderSize);
    const Section section{NumberAt(header, 12, 4), NumberAt(header, 16, 4),
                          NumberAt(header, 20, 4)};
    if (section.size == 0) continue;
    if (section.offset + section.size > file.Size()) return false;
    if (section.place + section.size > UINT32_MAX) return false;
    layout.sections.push_back(section);
  }
  return true;
}

std::optional<Layout> ReadLayout(FileStart& file) {
  const auto dos = file.At(0, kDosHeaderSize);
  if (!dos || NumberAt(*dos, 0, 2) != kDosMagic) return std::nullopt;
  const std::uint64_t start = NumberAt(*dos, 60, 4);
  const auto header = file.At(start, kFileHeaderSize);
  if (!header || NumberAt(*header, 0, 4) != kMagic) return std::nullopt;
  const std::uint32_t sectionCount = NumberAt(*header, 6, 2);
  const std::uint32_t optionalSize = NumberAt(*header, 20, 2);

  const auto optional = file.At(start + kFileHeaderSize, optionalSize);
  const auto resources = optional ? ReadResourcePlace(*optional) : std::nullopt;
  if (!resources) return std::nullopt;
  Layout layout;
  layout.resources = *resources;
  if (!ReadSections(file, start + kFileHeaderSize + optionalSize, sectionCount, layout)) {
    return std::nullopt;
  }
  return layout;
}

class ResourceTree {
 public:
  // Offsets are counted from the tree's first byte, which `section` holds.
  ResourceTree(FileStart& file, const Layout& layout, const Section& section)
      : file_(file),
        layout_(layout),
        offset_(section.offset + layout.resources - section.place),
        size_(section.size - (layout.resources - section.place)),
        entriesLeft_(size_ / kEntrySize) {}

  bool IsWhole() { return IsDirectoryWhole(0, kTreeDepth); }

 private:
  static constexpr std::size_t kEntrySize = 8;
  static constexpr std::uint32_t kFlag = 0x80000000;

  std::optional<Bytes> At(std::uint64_t offset, std::uint64_t size) {
    if (offset > size_ || size > size_ - offset) return std::nullopt;
    return file_.At(offset_ + offset, size);
  }

  bool IsDirectoryWhole(std::uint64_t offset, int depth) {
    const auto header = At(offset, 16);
    if (!header || depth == 0) return false;
    const std::uint64_t count = NumberAt(*header, 12, 2) + NumberAt(*header, 14, 2);
    // Directories that share their entries would be walked again and again.
    if (count > entriesLeft_) return false;
    entriesLeft_ -= count;
    for (std::uint64_t i = 0; i < count; ++i) {
      if (!IsEntryWhole(offset + 16 + i * kEntrySize, depth)) return false;
    }
    return true;
  }

  bool IsEntryWhole(std::uint64_t offset, int depth) {
    const auto entry = At(offset, kEntrySize);
    if (!entry) return false;
    const std::uint32_t name = NumberAt(*entry, 0, 4);
    const std::uint32_t target = NumberAt(*entry, 4, 4);
    if ((name & kFlag) && !IsNameWhole(name & ~kFlag)) return false;
    return target & kFlag ? IsDirectoryWhole(target & ~kFlag, depth - 1) : IsDataWhole(target);
  }

  bool IsNameWhole(std::uint64_t offset) {
    const auto length = At(offset, 2);
    return length && At(offset + 2, std::uint64_t{2} * NumberAt(*length, 0, 2));
  }

  bool IsDataWhole(std::uint64_t offset) {
    const auto entry = At(offset, 16);
    if (!entry) return false;
    const std::uint32_t place = NumberAt(*entry, 0, 4);
    const std::uint32_t size = NumberAt(*entry, 4, 4);
    const Section* section = layout_.SectionAt(place);
    return size == 0 || (section && section->Holds(place, size));
  }

  FileStart& file_;
  const Layout& layout_;
  std::uint64_t offset_;  // in the file
  std::uint64_t size_;
  std::uint64_t entriesLeft_;
};

}  // namespace

bool IsWholeLibrary(Files& files, const std::wstring& path) {
  FileStart file(files, path);
  const auto layout = ReadLayout(file);
  if (!layout) return false;
  if (layout->resources == 0) return true;
  const Section* section = layout->SectionAt(layout->resources);
  return section && ResourceTree(file, *layout, *section).IsWhole();
}

}  // namespace tidewell
