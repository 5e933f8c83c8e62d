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

}  // namespace tidewell::fuzz
