#include <algorithm>
#include <set>

#include "companion/backup_check.h"
#include "tests/fuzz/fuzz_targets.h"
#include "tests/support/backup_text.h"
#include "tests/support/test_device.h"

namespace tidewell::fuzz {

namespace {

bool HasLoss(const std::vector<Finding>& findings) {
  return std::ranges::any_of(findings, &Finding::isLoss);
}

// Each line of a text below its header, folded; of the keys in Software and the filters.
std::set<std::wstring> LinesIn(const std::wstring& text) {
  std::set<std::wstring> lines;
  std::wstring header;
  for (std::size_t start = 0; start < text.size();) {
    const std::size_t end = std::min(text.find(L'\n', start), text.size());
    const std::wstring line = text.substr(start, end - start);
    const bool isHeader = line.size() > 1 && line.starts_with(L"[") && line.ends_with(L"]");
    if (isHeader) header = FoldedPath(L"\\" + line.substr(1, line.size() - 2));
    const bool isMeant =
        (header + L"\\").starts_with(L"\\software\\") || header == L"\\::filters::";
    if (!line.empty() && !isHeader && isMeant) {
      lines.insert(header + L'\n' + Folded(line));
    }
    start = end + 1;
  }
  return lines;
}

}  // namespace

// Where the check finds no loss, an import has brought every line into the registry: written anew,
// each is there again.
void backup_check(Bytes bytes) {
  static const TestDevice device;
  const BackupDocument document({bytes.begin(), bytes.end()});
  if (!document.IsRegistryText()) return;
  BackupSettings backup(document, {});
  const bool hasLoss = HasLoss(CheckBackup(backup, bytes.size()));
  if (hasLoss || document.IsCopy()) return;

  MemoryRegistry registry;
  CategoryCatalog catalog(device.machine, device.store);
  Require(ImportBytes(registry, catalog, bytes));
  const std::wstring again = Written([&](TextWriter& writer) {
    WriteKeyTree(registry, L"Software", writer, TextKind::kCopy);
    WriteFiltersSection(catalog, writer, TextKind::kCopy);
  });
  const std::set<std::wstring> restored = LinesIn(again);
  for (const std::wstring& line : LinesIn(TextOfBytes(bytes))) Require(restored.contains(line));
}

}  // namespace tidewell::fuzz
