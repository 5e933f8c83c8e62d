#include "categories/pim_categories.h"

#include <gtest/gtest.h>

#include <cstring>

#include "backup/text_stream.h"
#include "categories/pim_properties.h"
#include "platform/desktop/pim_volume.h"
#include "tests/backup/windows/test_folder.h"
#include "tests/support/catalog_support.h"
#include "tests/support/utf8.h"

namespace tidewell {
namespace {

VolumeRecord Category(std::uint32_t id, const wchar_t* name, std::uint32_t flag) {
  return {{{kPimFlagProperty, flag, {}}, {kPimNameProperty, 0, name}, {kPimIdProperty, id, {}}}};
}

// A bitmap of one black pixel.
std::vector<std::byte> TinyBitmap() {
  const BITMAPFILEHEADER file = {0x4D42, sizeof(file) + sizeof(BITMAPINFOHEADER) + 4, 0, 0,
                                 sizeof(file) + sizeof(BITMAPINFOHEADER)};
  const BITMAPINFOHEADER info = {sizeof(info), 1, 1, 1, 24, BI_RGB, 4, 0, 0, 0, 0};
  std::vector<std::byte> bytes(file.bfSize);
  std::memcpy(bytes.data(), &file, sizeof file);
  std::memcpy(bytes.data() + sizeof file, &info, sizeof info);
  return bytes;
}

class PimCategories : public testing::Test {
 protected:
  void Put(std::vector<VolumeRecord> records, const wchar_t* database = kCategoryDatabase) {
    PimVolume volume;
    volume.databases.push_back({L"Other", {Category(1, L"Elsewhere", 0)}});
    volume.databases.push_back({database, std::move(records)});
    ASSERT_TRUE(folder.Put(L"pim.vol", FormatPimVolume(volume)));
  }
  // Reads the volume anew: names, ids, flags and icons, a category a line.
  std::string Shown() {
    PimCategorySource source(folder.Path(), folder.Below(L"pim.vol"));
    machine.catalog.Rebuild(source, L"All");
    std::string text;
    for (const auto& category : machine.catalog.Categories()) {
      text += Utf8(category->name) + ' ' + std::to_string(category->pimId) +
              (category->pimFlag ? " flag" : "") + (category->bitmap ? " icon" : "") + '\n';
    }
    return text;
  }

  TestFolder folder;
  CatalogMachine machine;
};

TEST_F(PimCategories, TheDatabaseTellsNameIdAndFlagAndTheFolderTheIcon) {
  ASSERT_TRUE(folder.Put(L"Work.bmp", TinyBitmap()));
  ASSERT_TRUE(folder.Put(L"Home.bmp", BytesOf(L"no bitmap")));
  Put({Category(7, L"Work", 0), Category(0x00050008, L"Home", 1), Category(9, L"caf\x00E9", 2)});
  EXPECT_EQ(Shown(), "caf\xC3\xA9 9\nHome 8 flag\nWork 7 icon\n");
  const auto* icon =
      static_cast<const BitmapIcon*>(machine.catalog.FindCategory(L"Work")->bitmap.get());
  EXPECT_EQ(GetObjectType(icon->Bitmap()), static_cast<DWORD>(OBJ_BITMAP));
}

TEST_F(PimCategories, WhatARecordLacksCountsAsAbsent) {
  Put({{{{kPimNameProperty, 0, L"No id"}, {kPimFlagProperty, 1, {}}}},
       {{{kPimIdProperty, 1, {}}, {kPimFlagProperty, 1, {}}}},
       {{{kPimIdProperty, 2, {}}, {kPimNameProperty, 0, L"No flag"}}},
       {{}},
       Category(3, L"", 1),
       Category(0xFFFF, L"Id 65535", 1),
       Category(0x1FFFF, L"Id 65535 in its low half", 1),
       Category(4, L"Twice", 0),
       Category(5, L"twice", 1),
       Category(65534, L"Last id", 0)});
  EXPECT_EQ(Shown(), "Last id 65534\nNo flag 2\nTwice 4\n");
}

TEST_F(PimCategories, AVolumeThatIsMissingHarmedOrWithoutTheDatabaseGivesNone) {
  EXPECT_EQ(Shown(), "");
  Put({Category(1, L"Work", 0)}, L"AnotherDB");
  EXPECT_EQ(Shown(), "");
  Put({});
  EXPECT_EQ(Shown(), "");
  EXPECT_EQ(machine.catalog.Filters().size(), 32u);

  Put({Category(1, L"Work", 0)});
  EXPECT_EQ(Shown(), "Work 1\n");
  WindowsFiles files;
  const std::vector<std::byte> whole = *ReadWholeFile(files, folder.Below(L"pim.vol"));
  for (const std::size_t size : {std::size_t{0}, whole.size() / 2, whole.size() - 1}) {
    ASSERT_TRUE(folder.Put(L"pim.vol", std::span(whole).first(size)));
    EXPECT_EQ(Shown(), "") << size;
  }
}

TEST_F(PimCategories, TheSampleDeviceHasElevenCategories) {
  PimCategorySource source(folder.Path(), L"" SAMPLE_VOLUME);
  machine.catalog.Rebuild(source, L"All");
  EXPECT_EQ(machine.catalog.Categories().size(), 11u);
  EXPECT_TRUE(machine.catalog.FindCategory(L"Business"));
  EXPECT_FALSE(machine.catalog.FindCategory(L"business"));
  EXPECT_FALSE(machine.catalog.FindCategory(L"Unfiled"));
  EXPECT_TRUE(machine.catalog.FindCategory(L"Ideas")->pimFlag);
}

TEST_F(PimCategories, AClosedDatabaseAnswersNothing) {
  Put({Category(1, L"Work", 0)});
  PimDatabase database;
  EXPECT_EQ(database.Seek(CEDB_SEEK_BEGINNING, 0), 0u);
  ASSERT_TRUE(database.Open(kCategoryDatabase, true, nullptr, nullptr, folder.Below(L"pim.vol")));
  EXPECT_NE(database.Seek(CEDB_SEEK_BEGINNING, 0), 0u);
  const HANDLE handle = database.Handle();
  database.Close();
  EXPECT_EQ(database.Handle(), nullptr);
  EXPECT_EQ(CeSeekDatabaseEx(handle, CEDB_SEEK_BEGINNING, 0, 0, nullptr), 0u);
  EXPECT_FALSE(database.Open(L"AnotherDB", true, nullptr, nullptr, folder.Below(L"pim.vol")));
}

TEST_F(PimCategories, ReadingAgainAndAgainLeavesNoHandleBehind) {
  Put({Category(1, L"Work", 0)});
  Shown();
  DWORD before = 0;
  DWORD after = 0;
  ASSERT_TRUE(GetProcessHandleCount(GetCurrentProcess(), &before));
  for (int i = 0; i < 100; ++i) Shown();
  ASSERT_TRUE(GetProcessHandleCount(GetCurrentProcess(), &after));
  EXPECT_LT(after, before + 10);
}

}  // namespace
}  // namespace tidewell
