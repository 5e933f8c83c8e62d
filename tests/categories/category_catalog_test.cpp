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
const std::wstring kCategories = L"Software\\Velmont\\Tidewell\\Categories";
const std::wstring kFolder = L"\\Program Files\\Velmont\\Tidewell";
const std::wstring kFiltersFile = kFolder + L"\\TWFilters.txt";

class Catalog : public testing::Test {
 protected:
  Catalog() { files.Put(kFolder + L"\\"); }
  std::string Values() { return DumpTree(registry, kUser, kCategories); }
  // A catalogue on the same machine whose calls are counted and can fail.
  CategoryCatalog Metered(Registry& meteredRegistry, Files& meteredFiles) {
    const Machine door = machine.memory.Door();
    return CategoryCatalog(
        {meteredRegistry, meteredFiles, door.locale, door.libraries, door.system}, machine.store);
  }

  CatalogMachine machine;
  MemoryRegistry& registry = machine.memory.registry;
  MemoryFiles& files = machine.memory.files;
  CategoryCatalog& catalog = machine.catalog;
};

std::vector<std::wstring> Names(const CategoryCatalog& catalog) {
  std::vector<std::wstring> names;
  for (const auto& category : catalog.Categories()) names.push_back(category->name);
  return names;
}

// What a selection is, in a word.
std::string Show(const Selection& selection) {
  if (std::holds_alternative<const AllRecord*>(selection)) return "all";
  if (const auto* category = std::get_if<const CategoryRecord*>(&selection)) {
    return Utf8((*category)->name);
  }
  return "filter " + std::to_string(std::get<const FilterRecord*>(selection)->index);
}

TEST_F(Catalog, CategoriesStandByNameAndTheFirstOfEqualNamesStays) {
  machine.Start();
  ListedCategories source({{L"work", 5, false},
                           {L"Alpha", 3, true},
                           {L"Work", 6, false},
                           {L"", 7, false},
                           {L"No id", PimCategory::kNoId, false},
                           {L"beta", 65534, false},
                           {L"WORK", 8, true}});
  catalog.Rebuild(source, L"Everything");
  EXPECT_EQ(Names(catalog), (std::vector<std::wstring>{L"Alpha", L"beta", L"work"}));
  const CategoryRecord& work = *catalog.Categories()[2];
  EXPECT_EQ(work.pimId, 5);
  EXPECT_FALSE(work.pimFlag);
  EXPECT_EQ(work.color, CategoryRecord::kNoColor);
  EXPECT_EQ(work.filterFlags, 0u);
  EXPECT_TRUE(catalog.Categories()[0]->pimFlag);
  EXPECT_EQ(catalog.All().name, L"Everything");
}

TEST_F(Catalog, ARebuildForgetsTheCategoriesBefore) {
  machine.Start({L"Old", L"Kept"});
  catalog.FindCategory(L"Kept")->color = 1;
  machine.Start({L"Kept"});
  EXPECT_EQ(Names(catalog), std::vector<std::wstring>{L"Kept"});
  EXPECT_EQ(catalog.FindCategory(L"Kept")->color, CategoryRecord::kNoColor);
}

TEST_F(Catalog, ValuesAreFourBytesOfAnyType) {
  SetDword(registry, kUser, kCategories, L"CatColor.A", 0x123456);
  SetBinary(registry, kUser, kCategories, L"catfilter.a", {1, 2, 3, 4});
  SetBinary(registry, kUser, kCategories, L"CatColor.B", {1, 2, 3, 4, 5});
  SetString(registry, kUser, kCategories, L"CatFilter.B", L"far too long");
  machine.Start({L"A", L"B", L"C"});
  EXPECT_EQ(catalog.FindCategory(L"A")->color, 0x123456u);
  EXPECT_EQ(catalog.FindCategory(L"A")->filterFlags, 0x04030201u);
  for (const wchar_t* name : {L"B", L"C"}) {
    EXPECT_EQ(catalog.FindCategory(name)->color, CategoryRecord::kNoColor);
    EXPECT_EQ(catalog.FindCategory(name)->filterFlags, 0u);
  }
}

TEST_F(Catalog, OnlyValuesWithAMeaningAreStored) {
  SetDword(registry, kUser, kCategories, L"CatColor.Gone", 7);
  SetDword(registry, kUser, kCategories, L"CatColor.C", 7);
  SetDword(registry, kUser, kCategories, L"CatFilter.C", 7);
  machine.Start({L"A", L"B \x00DC", L"C"});
  catalog.FindCategory(L"A")->color = 0;
  catalog.FindCategory(L"B \x00DC")->filterFlags = 0x80000000;
  catalog.FindCategory(L"C")->color = CategoryRecord::kNoColor;
  catalog.FindCategory(L"C")->filterFlags = 0;
  catalog.SaveCategoryValues();
  EXPECT_EQ(Values(), "[" + Utf8(kCategories) +
                          "]\nCatColor.A = 0\nCatColor.Gone = 7\n"
                          "CatFilter.B \xC3\x9C = 2147483648\n");
}

TEST_F(Catalog, SavingWritesWhatTheRegistryDoesNotHoldAndNothingElse) {
  machine.Start();
  MeteredRegistry metered(registry);
  CategoryCatalog counted = Metered(metered, files);
  ListedCategories source({{L"A", 1, false}, {L"B", 2, false}});
  counted.Rebuild(source, L"All");
  EXPECT_EQ(metered.Count(RegistryCall::kCreate), 1);
  counted.SaveCategoryValues();
  EXPECT_EQ(metered.CountWrites(), 0);

  counted.FindCategory(L"A")->color = 5;
  counted.SaveCategoryValues();
  EXPECT_EQ(metered.CountWrites(), 1);
  counted.SaveCategoryValues();
  EXPECT_EQ(metered.CountWrites(), 1);

  // Whatever wrote the values since, the records win.
  SetString(registry, kUser, kCategories, L"CatColor.A", L"x");
  SetDword(registry, kUser, kCategories, L"CatFilter.B", 1);
  counted.SaveCategoryValues();
  EXPECT_EQ(metered.CountWrites(), 3);
  EXPECT_EQ(Values(), "[" + Utf8(kCategories) + "]\nCatColor.A = 5\n");
}

TEST_F(Catalog, ARegistryThatRefusesLeavesTheDefaults) {
  SetDword(registry, kUser, kCategories, L"CatColor.A", 1);
  machine.Start();
  MeteredRegistry metered(registry);
  metered.Meter().FailFrom(1);
  CategoryCatalog refused = Metered(metered, files);
  ListedCategories source({{L"A", 1, false}});
  refused.Rebuild(source, L"All");
  EXPECT_EQ(refused.FindCategory(L"A")->color, CategoryRecord::kNoColor);
  refused.SaveCategoryValues();
}

TEST_F(Catalog, TheFiltersFileLiesWhereTheSettingSays) {
  SetString(registry, kUser, L"Software\\Velmont\\Tidewell", L"TWFiltersFileFolder", L"\\Card");
  files.Put(L"\\Card\\");
  machine.Start();
  catalog.Filters()[4].title = L"Fifth";
  EXPECT_TRUE(catalog.SaveFiltersFile());
  EXPECT_EQ(files.Contents(L"\\Card\\TWFilters.txt"), BytesOf(FormatFilters([] {
              FilterSet filters = DefaultFilters();
              filters[4].title = L"Fifth";
              return filters;
            }())));
  catalog.ResetFilters();
  EXPECT_TRUE(catalog.LoadFiltersFile());
  EXPECT_EQ(catalog.Filters()[4].title, L"Fifth");
}

TEST_F(Catalog, AFileThatIsNotWholeGivesTheDefaults) {
  machine.Start();
  EXPECT_FALSE(catalog.LoadFiltersFile());
  catalog.Filters()[0].title = L"Changed";
  catalog.Filters()[0].sensitivity = 3;
  EXPECT_TRUE(catalog.SaveFiltersFile());
  EXPECT_TRUE(catalog.LoadFiltersFile());

  std::vector<std::byte> bytes = *files.Contents(kFiltersFile);
  bytes.resize(bytes.size() / 2);
  files.Put(kFiltersFile, bytes);
  EXPECT_FALSE(catalog.LoadFiltersFile());
  EXPECT_EQ(catalog.Filters()[0].title, L"Filter 1");
  EXPECT_EQ(catalog.Filters()[0].sensitivity, 0);
}

TEST_F(Catalog, WhateverCallFailsTheFiltersFileIsTheOldOrTheNewOne) {
  machine.Start();
  ASSERT_TRUE(catalog.SaveFiltersFile());
  const auto old = files.Contents(kFiltersFile);
  int lastFailure = 0;
  for (int n = 1; n <= 10; ++n) {
    files.Put(kFiltersFile, *old);
    MeteredFiles metered(files);
    CategoryCatalog failing = Metered(registry, metered);
    failing.Filters()[0].title = L"New";
    metered.Meter().FailNth(n);
    const bool saved = failing.SaveFiltersFile();
    if (!saved) lastFailure = n;
    FilterSet expected = DefaultFilters();
    if (saved) expected[0].title = L"New";
    EXPECT_EQ(files.Contents(kFiltersFile), BytesOf(FormatFilters(expected))) << n;
    EXPECT_FALSE(files.Find(kFiltersFile + L".new").has_value()) << n;
  }
  EXPECT_GE(lastFailure, 4);  // create, write, close and replace, after the old file was read
}

TEST_F(Catalog, AnUnchangedFiltersFileIsNotWritten) {
  machine.Start();
  ASSERT_TRUE(catalog.SaveFiltersFile());
  MeteredFiles metered(files);
  CategoryCatalog counted = Metered(registry, metered);
  EXPECT_TRUE(counted.SaveFiltersFile());
  EXPECT_EQ(metered.Count(FileCall::kOpenForWriting), 0);
  EXPECT_EQ(metered.Count(FileCall::kReplace), 0);
}

TEST_F(Catalog, ASelectionIsACategoryByItsExactNameElseAFilterElseAll) {
  struct Case {
    const wchar_t* name;
    std::int32_t filter;
    const char* selection;
  };
  const Case cases[] = {
      {L"", 0, "all"},         {L"Work", 0, "Work"},     {L"Work", 5, "Work"},
      {L"work", 0, "all"},     {L"work", 5, "filter 5"}, {L"Gone", 32, "filter 32"},
      {L"", 1, "filter 1"},    {L"", 33, "all"},         {L"", -1, "all"},
      {L"", INT32_MIN, "all"}, {L"", INT32_MAX, "all"},
  };
  machine.Start({L"Work"});
  for (const Case& c : cases) {
    EXPECT_EQ(Show(catalog.FindByNameOrIndex(c.name, c.filter)), c.selection)
        << Utf8(c.name) << ' ' << c.filter;
  }
}

TEST_F(Catalog, EveryViewHasItsOwnSelection) {
  const std::wstring root = L"Software\\Velmont\\Tidewell\\";
  EXPECT_EQ(Show(catalog.Selected(RestrictedView::kTasks)), "all");  // also before the first build
  SetString(registry, kUser, root + L"Calendar", L"CalendarSelCategory", L"Work");
  SetDword(registry, kUser, root + L"Tasks", L"TasksSelFilter", 2);
  SetString(registry, kUser, root + L"Contacts", L"ContactsSelCategory", L"Home");
  SetDword(registry, kUser, root + L"Contacts", L"ContactsSelFilter", 3);
  SetString(registry, kUser, root + L"SEvents", L"SEventsSelCategory", L"home");
  SetDword(registry, kUser, root + L"SEvents", L"SEventsSelFilter", 4);
  machine.Start({L"Home", L"Work"});
  EXPECT_EQ(Show(catalog.Selected(RestrictedView::kCalendar)), "Work");
  EXPECT_EQ(Show(catalog.Selected(RestrictedView::kTasks)), "filter 2");
  EXPECT_EQ(Show(catalog.Selected(RestrictedView::kContacts)), "Home");
  EXPECT_EQ(Show(catalog.Selected(RestrictedView::kSpecialEvents)), "filter 4");
}

}  // namespace
}  // namespace tidewell
