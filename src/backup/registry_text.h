// A registry tree and the category and filter records as one text, and back.
// docs/backup-format.md describes the format with its limits.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "categories/category_catalog.h"
#include "platform/registry.h"
#include "text_format/text_stream.h"

namespace tidewell {

inline constexpr std::wstring_view kProductKey = L"Software\\Velmont\\Tidewell";

// A backup takes along what its format has room for: names of up to 255 units, data of up to
// kBackupDataCapacity bytes (the first value of a key that has more ends the list), lines of up to
// kBackupLineCapacity units. A copy takes along everything, whatever its type and its size; a
// second line of its own tells its reader so.
enum class TextKind : std::uint8_t { kBackup, kCopy };
inline constexpr std::uint32_t kBackupDataCapacity = 256;  // a string's terminating zero included
inline constexpr std::size_t kBackupLineCapacity = 800;    // the line end included
// The line that makes a text a copy, right behind the empty one.
inline constexpr std::wstring_view kCopyMark = L"Tidewell settings, everything, 1\n";

// The tree of `keyPath` (below the current user), then the categories, then the filters. False when
// something was not to be read that belongs there: for a backup the key itself, for a copy
// anything. Whether everything was written the stream tells.
bool ExportRegistryText(Registry& registry, const CategoryCatalog& catalog,
                        const std::wstring& keyPath, TextWriter& stream,
                        TextKind kind = TextKind::kBackup);
// What a copy begins with.
void WriteCopyMark(TextWriter& stream);
// Creates the key when it is missing.
bool WriteKeyTree(Registry& registry, const std::wstring& keyPath, TextWriter& stream,
                  TextKind kind = TextKind::kBackup);
void WriteCategoriesSection(const CategoryCatalog& catalog, TextWriter& stream,
                            TextKind kind = TextKind::kBackup);
void WriteFiltersSection(const CategoryCatalog& catalog, TextWriter& stream,
                         TextKind kind = TextKind::kBackup);

// Whether a key is `tree` or below it, as the registry finds keys: name by name, without regard to
// case.
bool IsWithinKey(std::wstring_view tree, std::wstring_view path);

struct TextSurvey {
  // It begins with an empty line.
  bool isRegistryText = false;
  // The first key that an import would write to outside the product's own.
  std::optional<std::wstring> outsideKey;
};
// What an import of the text would do, found without changing anything.
TextSurvey SurveyRegistryText(TextReader& stream);

// How far an import came.
enum class TextImport : std::uint8_t {
  kRefused,  // no registry text, or a key that cannot be created before anything was changed
  kInPart,   // a key that cannot be created; what was read before it stays
  kWhole,
};
// Reads the text into the registry and the catalogue's records, in memory only for those. Where
// `trees` names keys, only they and what is below them are written, and no filter is taken.
TextImport ImportRegistryText(Registry& registry, CategoryCatalog& catalog, TextReader& stream,
                              std::span<const std::wstring> trees = {});

}  // namespace tidewell
