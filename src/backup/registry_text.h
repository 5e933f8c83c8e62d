// A registry tree and the category and filter records as one text, and back.
// docs/backup-format.md describes the format with its limits.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "backup/text_stream.h"
#include "categories/category_catalog.h"
#include "platform/registry.h"

namespace tidewell {

inline constexpr std::wstring_view kProductKey = L"Software\\Velmont\\Tidewell";

// What the writer takes along. A string that does not fit the data capacity ends the list of its
// key's values; a value, a record or a key with its subkeys whose line does not fit is left out.
struct TextLimits {
  std::uint32_t dataCapacity;  // bytes of a value's data, a string's terminating zero included
  std::size_t lineCapacity;    // units of a line, its line end included
};
inline constexpr TextLimits kBackupLimits{256, 800};
// For copies that must hold what a backup leaves out: strings of up to 900 units, as far as the
// reader takes a line in one piece.
inline constexpr TextLimits kCopyLimits{2 * (900 + 1), TextReader::kLineCapacity};

// The tree of `keyPath` (below the current user), then the categories, then the filters. Whether
// everything was written the stream tells.
void ExportRegistryText(Registry& registry, const CategoryCatalog& catalog,
                        const std::wstring& keyPath, TextWriter& stream,
                        TextLimits limits = kBackupLimits);
// Creates the key when it is missing.
void WriteKeyTree(Registry& registry, const std::wstring& keyPath, TextWriter& stream,
                  TextLimits limits = kBackupLimits);
void WriteCategoriesSection(const CategoryCatalog& catalog, TextWriter& stream,
                            TextLimits limits = kBackupLimits);
void WriteFiltersSection(const CategoryCatalog& catalog, TextWriter& stream,
                         TextLimits limits = kBackupLimits);

// False, and nothing changed, unless the text can be read from its start and begins with an empty
// line.
bool IsRegistryText(TextReader& stream);

// Reads the whole text into the registry and the catalogue's records, in memory only for those.
// False when it is no registry text, or when a key cannot be created: what was read before stays.
bool ImportRegistryText(Registry& registry, CategoryCatalog& catalog, TextReader& stream);

}  // namespace tidewell
