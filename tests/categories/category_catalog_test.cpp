#include "categories/category_catalog.h"

#include <gtest/gtest.h>

#include "categories/filters_file.h"
#include "platform/text.h"
#include "tests/support/test_device.h"
#include "tests/support/utf8.h"

namespace tidewell {
namespace {

const std::wstring kRoot = L"Software\\Velmont\\Tidewell\\";
constexpr SettingKey kCategories = SettingKey::kCategories;
const std::wstring kFiltersFile = L"\\Card\\TWFilters.txt";

class Catalog : public testing::Test, protected TestDevice {
 protected:
  Catalog() {
    files.Put(L"\\Card\\");
    Put(SettingKey::kRoot, L"TWFiltersFileFolder", L"\\Card");
    LoadWith({});
  }
};

TEST_F(Catalog, CategoriesStandByNameAndTheFirstOfEqualNamesStays) {
  LoadWith({L"Old", L"b"});
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
  Put(kCategories, L"CatColor.Gone", 7);
  Put(kCategories, L"CatColor.C", 8);
  PutBytes(kCategories, L"CatFilter.C", {1, 2, 3, 4});
  recorded.Calls().Reset();
  CategoryCatalog(machine, store).SaveCategoryValues();
  EXPECT_EQ(recorded.Count(RegistryCall::kCreate), 0) << "nothing was loaded yet";
  LoadWith({L"A", L"B \x00DC", L"C"});
  CategoryRecord& c = *catalog.FindCategory(L"C");
  EXPECT_EQ(c.color, 8u);
  EXPECT_EQ(c.filterFlags, 0x04030201u) << "four bytes of any type";
  EXPECT_EQ(recorded.Count(RegistryCall::kCreate), 1);

  c.color = CategoryRecord::kNoColor;
  c.filterFlags = 0;
  catalog.FindCategory(L"A")->color = 0;
  catalog.FindCategory(L"B \x00DC")->filterFlags = 0x80000000;
  const char* saved =
      "[Software\\Velmont\\Tidewell\\Categories]\n"
      "CatColor.A = 0\nCatColor.Gone = 7\nCatFilter.B \xC3\x9C = 2147483648\n";
  for (int save = 1; save <= 2; ++save) {
    catalog.SaveCategoryValues();
    EXPECT_EQ(Dump(kCategories), saved);
    EXPECT_EQ(recorded.CountWrites(), 4);
  }
}

TEST_F(Catalog, WhatIsRefusedAtLoadIsADefaultThatDeletesNothing) {
  Put(kCategories, L"CatColor.A", 7);
  Put(kCategories, L"CatFilter.A", 8);
  const std::string tree = Dump(kCategories);
  for (int n = 1; n <= 3; ++n) {
    recorded.Calls().Reset();
    recorded.Calls().FailNth(n);
    LoadWith({L"A"});
    const CategoryRecord& a = *catalog.FindCategory(L"A");
    EXPECT_TRUE(a.color == CategoryRecord::kNoColor || a.filterFlags == 0) << n;
    catalog.SaveCategoryValues();
    EXPECT_EQ(Dump(kCategories), tree) << n;
  }
}

TEST_F(Catalog, AFiltersFileThatCannotBeReadIsReplacedByNewFiltersAlone) {
  FilterSet filters = DefaultFilters();
  filters[4].title = L"Fifth";
  const std::vector<std::byte> own = BytesOf(FormatFilters(filters));
  files.Put(kFiltersFile, own);
  for (const FileCall call : {FileCall::kOpenForReading, FileCall::kRead}) {
    recordedFiles.Calls().Reset();
    recordedFiles.Calls().FailEvery(call);
    recordedFiles.Calls().Watch([&](FileCall present) {  // the card is drawn out, and put back
      if (present == call) files.Remove(kFiltersFile);
    });
    EXPECT_FALSE(catalog.LoadFiltersFile());
    recordedFiles.Calls().Reset();
    files.Put(kFiltersFile, own);
    EXPECT_EQ(catalog.SaveFiltersFile(), FileStatus::kOther);
    EXPECT_EQ(files.Contents(kFiltersFile), own);
  }
  catalog.FindFilter(1)->visible = false;
  EXPECT_EQ(catalog.SaveFiltersFile(), FileStatus::kOk);
  EXPECT_NE(files.Contents(kFiltersFile), own);
  catalog.ResetFilters();
  EXPECT_EQ(catalog.SaveFiltersFile(), FileStatus::kOk);
}

TEST_F(Catalog, TheFiltersFileIsTheOldOrTheNewOneAndUnchangedNotWritten) {
  ASSERT_EQ(catalog.SaveFiltersFile(), FileStatus::kOk);
  const auto old = files.Contents(kFiltersFile);
  ASSERT_EQ(old, BytesOf(FormatFilters(DefaultFilters())));
  recordedFiles.Calls().Reset();
  EXPECT_EQ(catalog.SaveFiltersFile(), FileStatus::kOk);
  EXPECT_EQ(recordedFiles.Count(FileCall::kCreateNew), 0);

  FilterSet filters = DefaultFilters();
  filters[4].title = catalog.Filters()[4].title = L"Fifth";
  const std::vector<std::byte> changed = BytesOf(FormatFilters(filters));
  for (const FileCall call : {FileCall::kWrite, FileCall::kReplace}) {
    recordedFiles.Calls().FailEvery(call);
    EXPECT_EQ(catalog.SaveFiltersFile(), FileStatus::kOther);
    EXPECT_EQ(files.Contents(kFiltersFile), old);
    recordedFiles.Calls().Reset();
  }
  EXPECT_EQ(catalog.SaveFiltersFile(), FileStatus::kOk);
  EXPECT_EQ(files.Contents(kFiltersFile), changed);

  catalog.ResetFilters();
  EXPECT_TRUE(catalog.LoadFiltersFile());
  EXPECT_EQ(catalog.Filters()[4].title, L"Fifth");
  files.Put(kFiltersFile, std::span(changed).first(changed.size() / 2));
  EXPECT_FALSE(catalog.LoadFiltersFile());
  EXPECT_EQ(catalog.Filters()[4].title, L"Filter 5");
}

TEST_F(Catalog, EveryViewHasItsOwnCategoryByItsExactNameElseAFilterElseAll) {
  using enum RestrictedView;
  const std::tuple<RestrictedView, std::wstring, std::uint32_t> views[] = {
      {kCalendar, L"Calendar", 1},
      {kTasks, L"Tasks", 32},
      {kContacts, L"Contacts", 33},
      {kSpecialEvents, L"SEvents", 0}};
  for (const bool isExact : {false, true}) {
    for (const auto& [view, name, filter] : views) {
      Put(kRoot + name, name + L"SelFilter", filter);
      Put(kRoot + name, name + L"SelCategory", isExact ? name : L"TASKS");
    }
    LoadWith({L"Calendar", L"Tasks", L"Contacts", L"SEvents"});
    for (const auto& [view, name, filter] : views) {
      const FilterRecord* record = catalog.FindFilter(static_cast<std::int32_t>(filter));
      const Selection expected = isExact  ? Selection(catalog.FindCategory(name))
                                 : record ? Selection(record)
                                          : Selection(&catalog.All());
      EXPECT_EQ(catalog.Selected(view), expected) << Utf8(name);
    }
  }
}

}  // namespace
}  // namespace tidewell
