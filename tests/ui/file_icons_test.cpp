#include "ui/file_icons.h"

#include <gtest/gtest.h>

namespace tidewell {
namespace {

TEST(FileIconsTest, EqualIconsAreKeptOnceAndWhatIsNotThereGetsThatOfItsKind) {
  FileIcons icons;
  const int folder = icons.Load(L"\\no such folder", true);
  const int text = icons.Load(L"\\no such file.txt", false);
  EXPECT_NE(folder, FileIcons::kNone);
  EXPECT_NE(text, FileIcons::kNone);
  EXPECT_NE(folder, text);
  EXPECT_EQ(icons.Load(L"\\" + std::wstring(300, L'n') + L".txt", false), text);
  EXPECT_EQ(icons.Load(L"\\windows", true), folder);
  EXPECT_EQ(ImageList_GetImageCount(icons.Images()), 2);

  icons.Clear();
  EXPECT_EQ(ImageList_GetImageCount(icons.Images()), 0);
  EXPECT_EQ(icons.Load(L"\\no such file.txt", false), 0);
}

}  // namespace
}  // namespace tidewell
