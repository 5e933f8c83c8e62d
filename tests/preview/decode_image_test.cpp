// Pictures from files, through the system's own decoders.
#include "preview/windows/decode_image.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>

#include "platform/memory/memory_files.h"
#include "platform/windows/imaging.h"
#include "platform/windows/windows_files.h"

namespace tidewell {
namespace {

class Decode : public testing::Test {
 protected:
  Decode() {
    for (const auto& entry : std::filesystem::directory_iterator(PICTURES)) {
      std::ifstream file(entry.path(), std::ios::binary);
      const std::string bytes{std::istreambuf_iterator<char>(file), {}};
      pictures.Put(L"\\" + entry.path().filename().wstring() + L".Png",
                   std::as_bytes(std::span(bytes)));
      names.push_back(entry.path().filename().wstring());
    }
  }
  // Nothing when there is no picture.
  std::vector<Argb> Points(Files& files, const std::wstring& path) {
    const auto image = DecodeImage(files, imaging.Factory(), path);
    DIBSECTION facts{};
    if (!image || !GetObjectW(image->Handle(), sizeof facts, &facts)) return {};
    const auto* first = static_cast<const Argb*>(facts.dsBm.bmBits);
    return {first, first + image->Width() * image->Height()};
  }

  Imaging imaging;
  MemoryFiles pictures;
  std::vector<std::wstring> names;
};

TEST_F(Decode, GivesAPictureOfWholeFilesAlone) {
  ASSERT_GT(names.size(), 20u);
  for (const std::wstring& name : names) {
    const bool isGood = name.find(L"whole") != name.npos && name.find(L"_but_") == name.npos;
    EXPECT_EQ(!Points(pictures, L"\\" + name + L".Png").empty(), isGood)
        << testing::PrintToString(name);
  }
  pictures.Put(L"\\large.png", std::vector<std::byte>((16u << 20) + 1));
  EXPECT_FALSE(DecodeImage(pictures, imaging.Factory(), L"\\large.png"));
  EXPECT_FALSE(DecodeImage(pictures, imaging.Factory(), L"\\absent.gif"));
  EXPECT_FALSE(DecodeImage(pictures, nullptr, L"\\whole_gif.Png"));
}

TEST_F(Decode, KeepsTheTransparency) {
  const std::vector<Argb> clearing = {0xFFFF0000, 0x80800000, 0};
  EXPECT_EQ(Points(pictures, L"\\whole_png.Png"), clearing);
  EXPECT_EQ(Points(pictures, L"\\whole_png_palette.Png"), clearing);
  const auto gif = Points(pictures, L"\\whole_gif.Png");
  ASSERT_EQ(gif.size(), 3u);
  EXPECT_EQ(std::vector({gif[0], gif[1] >> 24, gif[2]}),
            std::vector<Argb>({0xFFFF0000, 0, 0xFF0000FF}));
}

TEST_F(Decode, ABitmapOf32BitsIsClearWhereItSaysSo) {
  WindowsFiles files;
  wchar_t path[MAX_PATH] = {};
  GetTempPathW(MAX_PATH, path);
  const std::wstring file = std::wstring(path) + L"tidewell.bmp";
  const std::map<std::vector<Argb>, std::vector<Argb>> drawn = {
      {{0x00FF0000, 0x000000FF}, {0xFFFF0000, 0xFF0000FF}},
      {{0x80FF0000, 0xFF0000FF}, {0x80800000, 0xFF0000FF}}};
  for (const auto& [stored, expected] : drawn) {
    const BITMAPFILEHEADER head = {0x4D42, 62, 0, 0, 54};
    const BITMAPINFOHEADER info = {40, 2, 1, 1, 32, BI_RGB, 8, 0, 0, 0, 0};
    const auto stream = files.OpenForWriting(file).stream;
    stream->Write(std::as_bytes(std::span(&head, 1)));
    stream->Write(std::as_bytes(std::span(&info, 1)));
    stream->Write(std::as_bytes(std::span(stored)));
    ASSERT_EQ(stream->Close(), FileStatus::kOk);
    EXPECT_EQ(Points(files, file), expected);
  }
  files.Remove(file);
}

}  // namespace
}  // namespace tidewell
