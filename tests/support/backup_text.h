// Backups as texts.
#pragma once

#include <string>
#include <string_view>

#include "backup/registry_text.h"
#include "platform/memory/memory_files.h"
#include "platform/text.h"

namespace tidewell {

// What `write` writes to a file; it may end with a part.
template <typename Write>
std::wstring Written(Write write) {
  MemoryFiles files;
  const auto file = files.OpenForWriting(L"\\text").stream;
  TextWriter writer(*file);
  write(writer);
  writer.Flush();
  return TextOfBytes(*files.Contents(L"\\text"));
}

// A whole backup, and the import of one.
inline std::wstring ExportText(Registry& registry, const CategoryCatalog& catalog) {
  return Written([&](TextWriter& writer) {
    ExportRegistryText(registry, catalog, std::wstring(kProductKey), writer);
  });
}
inline bool ImportBytes(Registry& registry, CategoryCatalog& catalog,
                        std::span<const std::byte> bytes) {
  TextReader reader(bytes);
  return ImportRegistryText(registry, catalog, reader) == TextImport::kWhole;
}
inline bool ImportText(Registry& registry, CategoryCatalog& catalog, std::wstring_view text) {
  return ImportBytes(registry, catalog, BytesOf(text));
}

}  // namespace tidewell
