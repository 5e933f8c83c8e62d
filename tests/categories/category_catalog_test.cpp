#include "categories/category_catalog.h"

#include <gtest/gtest.h>

#include "categories/filters_file.h"
#include "tests/support/catalog_support.h"
#include "tests/support/registry_support.h"
#include "tests/support/utf8.h"

namespace tidewell {
namespace {

constexpr RegistryRoot kUser = RegistryRoot::kCurrentUser;
const std::wstring kRoot = L"Software\\Velmont\\Tidewell\\";
const std::wstring kCategories = kRoot + L"Categories";
const std::wstring kFiltersFile = L"\\Card\\TWFilters.txt";

class Catalog : public testing::Test {
 protected:
  Catalog() {
    files.Put(L"\\Card\\");
    SetString(registry, kUser, std::wstring(kProductKey), L"TWFiltersFileFolder", L"\\Card");
    machine.Start();
  }

  CatalogMachine machine;
  MemoryRegistry& registry = machine.memory.registry;
  MemoryFiles& files = machine.memory.files;
  CategoryCatalog& catalog = machine.catalog;
};

TEST_F(Catalog, CategoriesStandByNameAndTheFirstOfEqualNamesStays) {
  machine.Start({L"Old", L"b"});
  ListedCategories source(
      {{L"b", 5}, {L"A", 3}, {L"B", 6}, {L"", 7}, {L"d", PimCategory::kNoId}, {L"c", 65534}});
  catalog.Rebuild(source, L"Everything");
  std::wstring text;
  for (const auto& category : catalog.Categories()) {
    text += category->name + FormatDecimal(category->pimId) + L" ";
  }
  EXPECT_EQ(Utf8(text), "A3 b5 c65534 ");
  EXPECT_EQ(catalog.All().name, L"Everything");
}

TEST_F(Catalog, SavingWritesWhatHasAMeaningAndTheRegistryDoesNotHold) {
  SetDword(registry, kUser, kCategories, L"CatColor.Gone", 7);
  SetDword(registry, kUser, kCategories, L"CatColor.C", 8);
  SetBinary(registry, kUser, kCategories, L"CatFilter.C", {1, 2, 3, 4});
  machine.registry.Calls().Reset();
  machine.Start({L"A", L"B \x00DC", L"C"});
  CategoryRecord& c = *catalog.FindCategory(L"C");
  EXPECT_EQ(c.color, 8u);
  EXPECT_EQ(c.filterFlags, 0x04030201u) << "four bytes of any type";
  EXPECT_EQ(machine.registry.Count(RegistryCall::kCreate), 1);

  c.color = CategoryRecord::kNoColor;
  c.filterFlags = 0;
  catalog.FindCategory(L"A")->color = 0;
  catalog.FindCategory(L"B \x00DC")->filterFlags = 0x80000000;
  const char* saved =
      "[Software\\Velmont\\Tidewell\\Categories]\n"
      "CatColor.A = 0\nCatColor.Gone = 7\nCatFilter.B \xC3\x9C = 2147483648\n";
  for (int save = 1; save <= 2; ++save) {
    catalog.SaveCategoryValues();
    EXPECT_EQ(DumpTree(registry, kUser, kCategories), saved);
    EXPECT_EQ(machine.registry.CountWrites(), 4);
  }
  // Whatever wrote the values since, the records win.
  SetBinary(registry, kUser, kCategories, L"CatColor.A", {0, 0, 0, 0});
  SetDword(registry, kUser, kCategories, L"CatFilter.C", 1);
  catalog.SaveCategoryValues();
  EXPECT_EQ(DumpTree(registry, kUser, kCategories), saved);
}

TEST_F(Catalog, WhatIsRefusedAtLoadIsADefaultThatDeletesNothing) {
  SetDword(registry, kUser, kCategories, L"CatColor.A", 7);
  SetDword(registry, kUser, kCategories, L"CatFilter.A", 8);
  const std::string tree = DumpTree(registry, kUser, kCategories);
  for (int n = 1; n <= 3; ++n) {
    machine.registry.Calls().Reset();
    machine.registry.Calls().FailNth(n);
    machine.Start({L"A"});
    const CategoryRecord& a = *catalog.FindCategory(L"A");
    EXPECT_TRUE(a.color == CategoryRecord::kNoColor || a.filterFlags == 0) << n;
    catalog.SaveCategoryValues();
    EXPECT_EQ(DumpTree(registry, kUser, kCategories), tree) << n;
  }
}

TEST_F(Catalog, AFiltersFileThatCannotBeReadIsReplacedByNewFiltersAlone) {
  FilterSet filters = DefaultFilters();
  filters[4].title = L"Fifth";
  const std::vector<std::byte> own = BytesOf(FormatFilters(filters));
  files.Put(kFiltersFile, own);
  for (const FileCall call : {FileCall::kOpenForReading, FileCall::kRead}) {
    machine.files.Calls().Reset();
    machine.files.Calls().FailEvery(call);
    machine.files.Calls().Watch([&](FileCall present) {  // the card is drawn out, and put back
      if (present == call) files.Remove(kFiltersFile);
    });
    EXPECT_FALSE(catalog.LoadFiltersFile());
    machine.files.Calls().Reset();
    files.Put(kFiltersFile, own);
    EXPECT_FALSE(catalog.SaveFiltersFile());
    EXPECT_EQ(files.Contents(kFiltersFile), own);
  }
  catalog.FindFilter(1)->visible = false;
  EXPECT_TRUE(catalog.SaveFiltersFile());
  EXPECT_NE(files.Contents(kFiltersFile), own);
}

TEST_F(Catalog, TheFiltersFileIsTheOldOrTheNewOneAndUnchangedNotWritten) {
  ASSERT_TRUE(catalog.SaveFiltersFile());
  const auto old = files.Contents(kFiltersFile);
  ASSERT_EQ(old, BytesOf(FormatFilters(DefaultFilters())));
  machine.files.Calls().Reset();
  EXPECT_TRUE(catalog.SaveFiltersFile());
  EXPECT_EQ(machine.files.Count(FileCall::kCreateNew), 0);

  FilterSet filters = DefaultFilters();
  filters[4].title = catalog.Filters()[4].title = L"Fifth";
  const std::vector<std::byte> changed = BytesOf(FormatFilters(filters));
  for (const FileCall call : {FileCall::kWrite, FileCall::kReplace}) {
    machine.files.Calls().FailEvery(call);
    EXPECT_FALSE(catalog.SaveFiltersFile());
    EXPECT_EQ(files.Contents(kFiltersFile), old);
    machine.files.Calls().Reset();
  }
  EXPECT_TRUE(catalog.SaveFiltersFile());
  EXPECT_EQ(files.Contents(kFiltersFile), changed);

  catalog.ResetFilters();
  EXPECT_TRUE(catalog.LoadFiltersFile());
  EXPECT_EQ(catalog.Filters()[4].title, L"Fifth");
  files.Put(kFiltersFile, std::span(changed).first(changed.size() / 2));
  EXPECT_FALSE(catalog.LoadFiltersFile());
  EXPECT_EQ(catalog.Filters()[4].title, L"Filter 5");
}

// What a selection is, in a word.
std::string Show(const Selection& selection) {
  const auto* category = std::get_if<const CategoryRecord*>(&selection);
  if (category) return Utf8((*category)->name);
  const auto* filter = std::get_if<const FilterRecord*>(&selection);
  return filter ? "filter " + std::to_string((*filter)->index) : "all";
}

TEST_F(Catalog, EveryViewHasItsOwnCategoryByItsExactNameElseAFilterElseAll) {
  using enum RestrictedView;
  const std::tuple<RestrictedView, std::wstring, std::uint32_t, const char*> views[] = {
      {kCalendar, L"Calendar", 1, "filter 1"},
      {kTasks, L"Tasks", 32, "filter 32"},
      {kContacts, L"Contacts", 33, "all"},
      {kSpecialEvents, L"SEvents", 0, "all"}};
  for (const bool isExact : {false, true}) {
    for (const auto& [view, name, filter, shown] : views) {
      SetDword(registry, kUser, kRoot + name, name + L"SelFilter", filter);
      SetString(registry, kUser, kRoot + name, name + L"SelCategory", isExact ? name : L"TASKS");
    }
    machine.Start({L"Calendar", L"Tasks", L"Contacts", L"SEvents"});
    for (const auto& [view, name, filter, shown] : views) {
      EXPECT_EQ(Show(catalog.Selected(view)), isExact ? Utf8(name) : shown);
    }
  }
}

}  // namespace
}  // namespace tidewell
