#include "categories/category_catalog.h"

#include <gtest/gtest.h>

#include "categories/filters_file.h"
#include "platform/memory/metered_files.h"
#include "platform/memory/metered_registry.h"
#include "tests/support/catalog_support.h"
#include "tests/support/registry_support.h"
#include "tests/support/utf8.h"

namespace tidewell {
namespace {

constexpr RegistryRoot kUser = RegistryRoot::kCurrentUser;
const std::wstring kRoot = L"Software\\Velmont\\Tidewell\\";
const std::wstring kCategories = kRoot + L"Categories";
const std::wstring kFiltersFile = L"\\Program Files\\Velmont\\Tidewell\\TWFilters.txt";

class Catalog : public testing::Test {
 protected:
  Catalog() { files.Put(L"\\Program Files\\Velmont\\Tidewell\\"); }
  // The values of all categories, without the key's name.
  std::string Values() {
    const std::string text = DumpTree(registry, kUser, kCategories);
    return text.substr(text.find('\n') + 1);
  }
  // A catalogue on the same machine whose calls are counted and can fail.
  CategoryCatalog Metered() {
    const Machine door = machine.memory.Door();
    return CategoryCatalog(
        {meteredRegistry, meteredFiles, door.locale, door.libraries, door.system}, machine.store);
  }

  CatalogMachine machine;
  MemoryRegistry& registry = machine.memory.registry;
  MemoryFiles& files = machine.memory.files;
  CategoryCatalog& catalog = machine.catalog;
  MeteredRegistry meteredRegistry{registry};
  MeteredFiles meteredFiles{files};
};

// What a selection is, in a word.
std::string Show(const Selection& selection) {
  if (std::holds_alternative<const AllRecord*>(selection)) return "all";
  if (const auto* category = std::get_if<const CategoryRecord*>(&selection)) {
    return Utf8((*category)->name);
  }
  return "filter " + std::to_string(std::get<const FilterRecord*>(selection)->index);
}

TEST_F(Catalog, CategoriesStandByNameAndTheFirstOfEqualNamesStays) {
  machine.Start({L"Old", L"work"});
  catalog.FindCategory(L"work")->color = 1;
  ListedCategories source({{L"work", 5, false},
                           {L"Alpha", 3, true},
                           {L"Work", 6, false},
                           {L"", 7, false},
                           {L"No id", PimCategory::kNoId, false},
                           {L"beta", 65534, false},
                           {L"WORK", 8, true}});
  catalog.Rebuild(source, L"Everything");
  std::wstring text;
  for (const auto& category : catalog.Categories()) {
    text += category->name + L" " + FormatDecimal(category->pimId) +
            (category->pimFlag ? L" flag\n" : L"\n");
    EXPECT_EQ(category->color, CategoryRecord::kNoColor) << Utf8(category->name);
    EXPECT_EQ(category->filterFlags, 0u) << Utf8(category->name);
  }
  EXPECT_EQ(Utf8(text), "Alpha 3 flag\nbeta 65534\nwork 5\n");
  EXPECT_EQ(catalog.All().name, L"Everything");
}

TEST_F(Catalog, ValuesAreFourBytesOfAnyType) {
  SetDword(registry, kUser, kCategories, L"CatColor.A", 0x123456);
  SetBinary(registry, kUser, kCategories, L"catfilter.a", {1, 2, 3, 4});
  SetBinary(registry, kUser, kCategories, L"CatColor.B", {1, 2, 3, 4, 5});
  SetString(registry, kUser, kCategories, L"CatFilter.B", L"far too long");
  machine.Start({L"A", L"B"});
  EXPECT_EQ(catalog.FindCategory(L"A")->color, 0x123456u);
  EXPECT_EQ(catalog.FindCategory(L"A")->filterFlags, 0x04030201u);
  EXPECT_EQ(catalog.FindCategory(L"B")->color, CategoryRecord::kNoColor);
  EXPECT_EQ(catalog.FindCategory(L"B")->filterFlags, 0u);
}

TEST_F(Catalog, SavingWritesWhatHasAMeaningAndTheRegistryDoesNotHold) {
  SetDword(registry, kUser, kCategories, L"CatColor.Gone", 7);
  SetDword(registry, kUser, kCategories, L"CatColor.C", 7);
  SetDword(registry, kUser, kCategories, L"CatFilter.C", 7);
  machine.Start();
  CategoryCatalog counted = Metered();
  ListedCategories source({{L"A", 1, false}, {L"B \x00DC", 2, false}, {L"C", 3, false}});
  counted.Rebuild(source, L"All");
  EXPECT_EQ(meteredRegistry.Count(RegistryCall::kCreate), 1);
  counted.SaveCategoryValues();
  EXPECT_EQ(meteredRegistry.CountWrites(), 0);

  counted.FindCategory(L"A")->color = 0;
  counted.FindCategory(L"B \x00DC")->filterFlags = 0x80000000;
  counted.FindCategory(L"C")->color = CategoryRecord::kNoColor;
  counted.FindCategory(L"C")->filterFlags = 0;
  for (int save = 1; save <= 2; ++save) {
    counted.SaveCategoryValues();
    EXPECT_EQ(Values(), "CatColor.A = 0\nCatColor.Gone = 7\nCatFilter.B \xC3\x9C = 2147483648\n");
    EXPECT_EQ(meteredRegistry.CountWrites(), 4);
  }
  // Whatever wrote the values since, the records win.
  SetBinary(registry, kUser, kCategories, L"CatColor.A", {0, 0, 0, 0});
  SetDword(registry, kUser, kCategories, L"CatFilter.C", 1);
  counted.SaveCategoryValues();
  EXPECT_EQ(meteredRegistry.CountWrites(), 6);
  EXPECT_EQ(Values(), "CatColor.A = 0\nCatColor.Gone = 7\nCatFilter.B \xC3\x9C = 2147483648\n");
}

TEST_F(Catalog, ARegistryThatRefusesLeavesTheDefaults) {
  SetDword(registry, kUser, kCategories, L"CatColor.A", 1);
  machine.Start();
  meteredRegistry.Meter().FailFrom(1);
  CategoryCatalog refused = Metered();
  ListedCategories source({{L"A", 1, false}});
  refused.Rebuild(source, L"All");
  EXPECT_EQ(refused.FindCategory(L"A")->color, CategoryRecord::kNoColor);
  refused.SaveCategoryValues();
  EXPECT_EQ(Values(), "CatColor.A = 1\n");
}

TEST_F(Catalog, TheFiltersFileLiesWhereTheSettingSaysAndIsWholeOrTheDefaults) {
  SetString(registry, kUser, L"Software\\Velmont\\Tidewell", L"TWFiltersFileFolder", L"\\Card");
  files.Put(L"\\Card\\");
  machine.Start();
  EXPECT_FALSE(catalog.LoadFiltersFile());
  FilterSet filters = DefaultFilters();
  filters[4] = {L"Fifth", 3, false, true, 5};
  catalog.Filters()[4] = filters[4];
  EXPECT_TRUE(catalog.SaveFiltersFile());
  std::vector<std::byte> bytes = BytesOf(FormatFilters(filters));
  EXPECT_EQ(files.Contents(L"\\Card\\TWFilters.txt"), bytes);
  catalog.ResetFilters();
  EXPECT_TRUE(catalog.LoadFiltersFile());
  EXPECT_EQ(catalog.Filters()[4].title, L"Fifth");

  bytes.resize(bytes.size() / 2);
  files.Put(L"\\Card\\TWFilters.txt", bytes);
  EXPECT_FALSE(catalog.LoadFiltersFile());
  EXPECT_EQ(catalog.Filters()[4].title, L"Filter 5");
  EXPECT_EQ(catalog.Filters()[4].sensitivity, 0);
}

TEST_F(Catalog, WhateverCallFailsTheFiltersFileIsTheOldOrTheNewOneAndUnchangedNotWritten) {
  machine.Start();
  ASSERT_TRUE(catalog.SaveFiltersFile());
  const auto old = files.Contents(kFiltersFile);
  CategoryCatalog counted = Metered();
  EXPECT_TRUE(counted.SaveFiltersFile());
  EXPECT_EQ(meteredFiles.Count(FileCall::kOpenForWriting), 0);

  FilterSet changed = DefaultFilters();
  changed[0].title = counted.Filters()[0].title = L"New";
  int failures = 0;
  for (int n = 1; n <= 10; ++n) {
    files.Put(kFiltersFile, *old);
    meteredFiles.Meter().Reset();
    meteredFiles.Meter().FailNth(n);
    const bool saved = counted.SaveFiltersFile();
    if (!saved) ++failures;
    EXPECT_EQ(files.Contents(kFiltersFile), saved ? BytesOf(FormatFilters(changed)) : *old) << n;
    EXPECT_FALSE(files.Find(kFiltersFile + L".new").has_value()) << n;
  }
  EXPECT_EQ(failures, 4);  // create, write, close and replace
}

TEST_F(Catalog, ASelectionIsACategoryByItsExactNameElseAFilterElseAll) {
  machine.Start({L"Work"});
  for (const auto& [name, filter, selection] : {std::tuple(L"", 0, "all"),
                                                {L"Work", 0, "Work"},
                                                {L"Work", 5, "Work"},
                                                {L"work", 0, "all"},
                                                {L"work", 5, "filter 5"},
                                                {L"Gone", 32, "filter 32"},
                                                {L"", 1, "filter 1"},
                                                {L"", 33, "all"},
                                                {L"", -1, "all"},
                                                {L"", INT32_MIN, "all"}}) {
    EXPECT_EQ(Show(catalog.FindByNameOrIndex(name, filter)), selection) << Utf8(name) << filter;
  }
}

TEST_F(Catalog, EveryViewHasItsOwnSelection) {
  using enum RestrictedView;
  const std::pair<RestrictedView, std::wstring> views[] = {{kCalendar, L"Calendar"},
                                                           {kTasks, L"Tasks"},
                                                           {kContacts, L"Contacts"},
                                                           {kSpecialEvents, L"SEvents"}};
  std::uint32_t filter = 0;
  for (const auto& [view, name] : views) {
    EXPECT_EQ(Show(catalog.Selected(view)), "all") << "before the first build";
    SetDword(registry, kUser, kRoot + name, name + L"SelFilter", ++filter);
  }
  machine.Start({L"Calendar", L"Contacts", L"SEvents", L"Tasks"});
  filter = 0;
  for (const auto& [view, name] : views) {
    EXPECT_EQ(Show(catalog.Selected(view)), "filter " + std::to_string(++filter)) << Utf8(name);
    SetString(registry, kUser, kRoot + name, name + L"SelCategory", name);
  }
  machine.Start({L"Calendar", L"Contacts", L"SEvents", L"Tasks"});
  for (const auto& [view, name] : views) EXPECT_EQ(Show(catalog.Selected(view)), Utf8(name));
}

}  // namespace
}  // namespace tidewell
