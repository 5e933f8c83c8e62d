// A machine in memory with a settings store and, its calls counted, a catalogue on it; and the
// files that both make.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "backup/registry_text.h"
#include "categories/category_catalog.h"
#include "platform/memory/memory_machine.h"
#include "platform/memory/recorded_files.h"
#include "platform/memory/recorded_registry.h"
#include "platform/text.h"

namespace tidewell {

class ListedCategories final : public CategorySource {
 public:
  explicit ListedCategories(std::vector<PimCategory> categories)
      : categories_(std::move(categories)) {}
  void ReadInto(CategoryCatalog& catalog) override {
    for (const PimCategory& category : categories_) catalog.Add(category);
  }

 private:
  std::vector<PimCategory> categories_;
};

struct CatalogMachine {
  MemoryMachine memory;
  RecordedRegistry registry{memory.registry};
  RecordedFiles files{memory.files};
  SettingsStore store;
  Language language;
  CategoryCatalog catalog{RecordedMachine(), store};

  Machine RecordedMachine() {
    return {registry, files, memory.locale, memory.libraries, memory.system};
  }
  // Loads the store and rebuilds the catalogue with these categories.
  void Start(const std::vector<std::wstring>& names = {}) {
    Machine door = memory.Door();
    store.Load(door, ScreenScale(), language);
    std::vector<PimCategory> categories;
    for (const std::wstring& name : names) {
      categories.push_back({name, static_cast<std::uint16_t>(categories.size() + 1), false});
    }
    ListedCategories source(std::move(categories));
    catalog.Rebuild(source, L"All");
  }
};

// Takes everything that is written.
class ByteSink final : public OutputStream {
 public:
  bool Write(std::span<const std::byte> more) override {
    bytes.insert(bytes.end(), more.begin(), more.end());
    return true;
  }
  bool Close() override { return true; }

  std::vector<std::byte> bytes;
};

// A whole backup as text, and the import of one.
inline std::wstring ExportText(Registry& registry, const CategoryCatalog& catalog) {
  ByteSink sink;
  TextWriter writer(sink);
  ExportRegistryText(registry, catalog, std::wstring(kProductKey), writer);
  writer.Flush();
  return TextOfBytes(sink.bytes);
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
