#include "categories/windows/pim_categories.h"

#include <gtest/gtest.h>

#include <cstring>

#include "pages/windows/category_images.h"
#include "platform/pim_properties.h"
#include "platform/text.h"
#include "platform/windows/windows_files.h"
#include "tests/support/test_device.h"
#include "tests/support/utf8.h"
#include "win32/gdi.h"

namespace tidewell {
namespace {

constexpr Color kOdd = Rgb(51, 102, 204);

// A bitmap of one odd pixel.
std::vector<std::byte> TinyBitmap() {
  const BITMAPFILEHEADER file = {0x4D42, sizeof(file) + sizeof(BITMAPINFOHEADER) + 4, 0, 0,
                                 sizeof(file) + sizeof(BITMAPINFOHEADER)};
  const BITMAPINFOHEADER info = {sizeof(info), 1, 1, 1, 24, BI_RGB, 4, 0, 0, 0, 0};
  std::vector<std::byte> bytes(file.bfSize);
  std::memcpy(bytes.data(), &file, sizeof file);
  std::memcpy(bytes.data() + sizeof file, &info, sizeof info);
  const std::uint8_t pixel[] = {0xCC, 0x66, 0x33};
  std::memcpy(bytes.data() + file.bfOffBits, pixel, sizeof pixel);
  return bytes;
}

class PimCategories : public testing::Test, protected TestDevice {
 protected:
  PimCategories() {
    wchar_t temporary[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, temporary);
    folder = JoinPath(temporary, L"TidewellCategories");
    windowsFiles.MakeFolder(folder);
  }
  ~PimCategories() override {
    for (const wchar_t* name : {L"pim.vol", L"Work.bmp"}) {
      windowsFiles.Remove(JoinPath(folder, name));
    }
    RemoveDirectoryW(folder.c_str());
  }
  std::wstring Volume() const { return JoinPath(folder, L"pim.vol"); }
  void PutFile(const wchar_t* name, std::span<const std::byte> bytes) {
    const auto stream = windowsFiles.OpenForWriting(JoinPath(folder, name)).stream;
    ASSERT_TRUE(stream && stream->Write(bytes));
  }
  void Put(std::string_view text) { PutFile(L"pim.vol", std::as_bytes(std::span(text))); }
  // Reads the volume anew: names, ids, flags and icons, a category a line.
  std::string Shown() {
    PimCategorySource source(windowsFiles, folder, Volume());
    catalog.Rebuild(source, L"All");
    std::string text;
    for (const auto& category : catalog.Categories()) {
      auto& icon = static_cast<BitmapIcon&>(*category->bitmap);
      text += Utf8(category->name) + ' ' + std::to_string(category->pimId) +
              (category->pimFlag ? " flag" : "") + (icon.Handle() ? " icon" : "") + '\n';
    }
    return text;
  }

  WindowsFiles windowsFiles;
  std::wstring folder;
};

TEST_F(PimCategories, TheDatabaseTellsNameIdAndFlagAndTheFolderTheIcon) {
  const std::vector<std::byte> whole = TinyBitmap();
  PutFile(L"Work.bmp", whole);
  Put("7 0 Work\n"
      "327688 1 Home\n"
      "9 1 work\n"
      "65534 2 caf\xC3\xA9\n"
      "131071 1 Id 65535 in its low half\n"
      "3 1\n"
      "- 1 No id\n"
      "2 - No flag\n");
  EXPECT_EQ(Shown(), "caf\xC3\xA9 65534\nHome 8 flag\nNo flag 2\nWork 7 icon\n");
  CategoryImages images(context.scale);
  const MemoryBitmap screen(WindowDc(nullptr).Dc(), 16, 16);
  ImageList_Draw(images.Images(), images.Add(catalog.FindCategory(L"Work")->bitmap.get()),
                 screen.Dc(), 0, 0, ILD_NORMAL);
  EXPECT_EQ(GetPixel(screen.Dc(), 8, 8), kOdd) << "a list of categories has all colors";
  PutFile(L"Work.bmp", std::span(whole).first(57));
  EXPECT_EQ(Shown(), "caf\xC3\xA9 65534\nHome 8 flag\nNo flag 2\nWork 7\n") << "it is cut off";
}

TEST_F(PimCategories, AVolumeThatIsMissingOrTooLargeGivesNone) {
  EXPECT_EQ(Shown(), "");
  Put("1 0 Work\n" + std::string(256 * 1024, '#'));
  EXPECT_EQ(Shown(), "");
}

}  // namespace
}  // namespace tidewell
