#include "categories/pim_categories.h"

#include <gtest/gtest.h>

#include <cstring>

#include "backup/text_stream.h"
#include "categories/pim_properties.h"
#include "platform/desktop/pim_volume.h"
#include "platform/text.h"
#include "platform/windows/windows_files.h"
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
  PimCategories() {
    wchar_t temporary[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, temporary);
    folder = JoinPath(temporary, L"TidewellCategories");
    files.MakeFolder(folder);
  }
  ~PimCategories() override {
    for (const wchar_t* name : {L"pim.vol", L"Work.bmp"}) {
      files.Remove(JoinPath(folder, name));
    }
    RemoveDirectoryW(folder.c_str());
  }
  std::wstring Volume() const { return JoinPath(folder, L"pim.vol"); }
  void PutFile(const wchar_t* name, std::span<const std::byte> bytes) {
    const auto stream = files.OpenForWriting(JoinPath(folder, name));
    ASSERT_TRUE(stream && stream->Write(bytes) && stream->Close());
  }
  void Put(std::vector<VolumeRecord> records, const wchar_t* database = kCategoryDatabase) {
    PimVolume volume;
    volume.databases.push_back({L"Other", {Category(1, L"Elsewhere", 0)}});
    volume.databases.push_back({database, std::move(records)});
    PutFile(L"pim.vol", FormatPimVolume(volume));
  }
  // Reads the volume anew: names, ids, flags and icons, a category a line.
  std::string Shown() {
    PimCategorySource source(folder, Volume());
    machine.catalog.Rebuild(source, L"All");
    std::string text;
    for (const auto& category : machine.catalog.Categories()) {
      text += Utf8(category->name) + ' ' + std::to_string(category->pimId) +
              (category->pimFlag ? " flag" : "") + (category->bitmap ? " icon" : "") + '\n';
    }
    return text;
  }

  WindowsFiles files;
  std::wstring folder;
  CatalogMachine machine;
};

TEST_F(PimCategories, TheDatabaseTellsNameIdAndFlagAndTheFolderTheIcon) {
  PutFile(L"Work.bmp", TinyBitmap());
  Put({Category(7, L"Work", 0),
       Category(0x00050008, L"Home", 1),
       Category(9, L"work", 1),
       Category(65534, L"caf\x00E9", 2),
       Category(0x1FFFF, L"Id 65535 in its low half", 1),
       Category(3, L"", 1),
       {{{kPimNameProperty, 0, L"No id"}, {kPimFlagProperty, 1, {}}}},
       {{{kPimIdProperty, 1, {}}, {kPimFlagProperty, 1, {}}}},
       {{{kPimIdProperty, 2, {}}, {kPimNameProperty, 0, L"No flag"}}},
       {{}}});
  EXPECT_EQ(Shown(), "caf\xC3\xA9 65534\nHome 8 flag\nNo flag 2\nWork 7 icon\n");
}

TEST_F(PimCategories, AVolumeThatIsMissingHarmedOrWithoutTheDatabaseGivesNone) {
  EXPECT_EQ(Shown(), "");
  Put({Category(1, L"Work", 0)}, L"AnotherDB");
  EXPECT_EQ(Shown(), "");
  Put({Category(1, L"Work", 0)});
  const std::vector<std::byte> whole = *ReadWholeFile(files, Volume());
  PutFile(L"pim.vol", std::span(whole).first(whole.size() - 1));
  EXPECT_EQ(Shown(), "");
}

TEST_F(PimCategories, AClosedDatabaseAnswersNothingAndLeavesNoHandle) {
  PimDatabase database;
  EXPECT_EQ(database.Seek(CEDB_SEEK_BEGINNING, 0), 0u);
  Put({Category(1, L"Work", 0)});
  ASSERT_TRUE(database.Open(kCategoryDatabase, true, nullptr, nullptr, Volume()));
  EXPECT_NE(database.Seek(CEDB_SEEK_BEGINNING, 0), 0u);
  const HANDLE handle = database.Handle();
  database.Close();
  EXPECT_EQ(database.Handle(), nullptr);
  EXPECT_EQ(CeSeekDatabaseEx(handle, CEDB_SEEK_BEGINNING, 0, 0, nullptr), 0u);

  DWORD before = 0;
  DWORD after = 0;
  ASSERT_TRUE(GetProcessHandleCount(GetCurrentProcess(), &before));
  for (int i = 0; i < 100; ++i) EXPECT_EQ(Shown(), "Work 1\n");
  ASSERT_TRUE(GetProcessHandleCount(GetCurrentProcess(), &after));
  EXPECT_LT(after, before + 10);
}

TEST_F(PimCategories, TheSampleDeviceHasElevenCategories) {
  PimCategorySource source(folder, L"" SAMPLE_VOLUME);
  machine.catalog.Rebuild(source, L"All");
  EXPECT_EQ(machine.catalog.Categories().size(), 11u);
  EXPECT_TRUE(machine.catalog.FindCategory(L"Ideas")->pimFlag);
}

}  // namespace
}  // namespace tidewell
