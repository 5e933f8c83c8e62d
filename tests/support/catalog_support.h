// A machine in memory with a settings store and a catalogue on it, and the files that both make.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "categories/category_catalog.h"
#include "platform/memory/memory_machine.h"
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
  SettingsStore store;
  std::unique_ptr<ResourceLibrary> language;
  CategoryCatalog catalog{memory.Door(), store};

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

// "Filter 1" to "Filter 32" as a backup holds them, visible and without uncategorized items.
inline std::wstring DefaultFiltersSection() {
  std::wstring text = L"\n[::Filters::]\n";
  for (int i = 1; i <= 32; ++i) {
    const std::wstring number = FormatDecimal(i);
    text += L"\"FilterName\"=\"Filter " + number + L"\"\n\"Index\"=dword:" + number +
            L"\n\"VisibleState\"=dword:1\n\"IncludeUncategorized\"=dword:0\n";
  }
  return text;
}

}  // namespace tidewell
