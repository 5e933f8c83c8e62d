// A device in memory with everything that pages ask for, and its settings.
#pragma once

#include <gtest/gtest.h>

#include "pages/page_context.h"
#include "pages/page_table.h"
#include "platform/memory/memory_machine.h"

namespace tidewell {

class PageFixture : public testing::Test {
 protected:
  // A VGA device, which has every row.
  PageFixture() {
    machine.system.screen = {480, 640, 192, 192};
    for (const wchar_t* name : {L"Business", L"Family"}) categories.Add({name, 1});
  }
  void Load() {
    store.Load(door, scale, language);
    context.language = language.get();
  }
  void Install(RegistryRoot root, const wchar_t* key, const wchar_t* value) {
    machine.registry.Create(root, key)->Set(value, kTypeString, {});
  }

  MemoryMachine machine;
  Machine door = machine.Door();
  ScreenScale scale{192, 192, false};
  SettingsStore store;
  std::unique_ptr<ResourceLibrary> language;
  CategoryCatalog categories{door, store};
  PageContext context{door, store, categories, nullptr, scale};
};

// The row that has a control of that id.
inline const Row& RowOf(const PageTable& table, int controlId) {
  for (const PageTab& tab : table) {
    for (const Row& row : tab.rows) {
      if (row.controlId == controlId) return row;
    }
  }
  static const Row none;
  ADD_FAILURE() << "no row with a control " << controlId;
  return none;
}

}  // namespace tidewell
