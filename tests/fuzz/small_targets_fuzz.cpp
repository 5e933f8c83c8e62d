// The targets that need little.
#include <algorithm>

#include "categories/filters_file.h"
#include "platform/desktop/pim_volume.h"
#include "platform/tga.h"
#include "tests/fuzz/fuzz_targets.h"
#include "tests/support/backup_text.h"
#include "tests/support/test_device.h"

namespace tidewell::fuzz {

// Whatever was read, the device has a backup that the reader takes, no line of it too long.
void registry_text(Bytes bytes) {
  static TestDevice device;
  MemoryRegistry registry;
  CategoryCatalog catalog(device.machine, device.store);
  catalog.Add({L"Home", 1, false});
  catalog.Add({L"Work", 2, true});
  ImportBytes(registry, catalog, bytes);

  const std::wstring backup = ExportText(registry, catalog);
  Require(backup.starts_with(L"\n[Software\\Velmont\\Tidewell]\n"));
  Require(backup.find(L"\n[::Categories::]\n\"Category\"=\"Home\"\n") != std::wstring::npos);
  for (std::size_t start = 0; start < backup.size();) {
    const std::size_t end = std::min(backup.find(L'\n', start), backup.size());
    Require(end - start < kBackupLineCapacity);
    start = end + 1;
  }
  Require(ImportText(registry, catalog, backup));
}

// Since its characters were bytes, writing what a file holds and reading it again changes nothing.
void filters_file(Bytes bytes) {
  const std::optional<FilterSet> filters = ReadFilters(bytes);
  if (!filters) return;
  const std::wstring text = FormatFilters(*filters);
  const std::optional<FilterSet> again = ReadFilters(BytesOf(text));
  Require(again && FormatFilters(*again) == text);
}

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

bool tga(Bytes bytes) {
  const auto pixels = DecodeTga(bytes);
  if (!pixels) return false;
  const auto width = static_cast<std::size_t>(pixels->width);
  Require(width <= 2048 && pixels->height <= 2048);
  Require(pixels->points.size() == width * static_cast<std::size_t>(pixels->height));
  for (const Argb point : pixels->points) {
    for (int shift = 0; shift < 24; shift += 8) Require((point >> shift & 0xFF) <= point >> 24);
  }
  return true;
}

}  // namespace tidewell::fuzz
