#include "app/about_box.h"

#include <aygshell.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/support/window_support.h"
#include "ui/windows/picture.h"

namespace tidewell {
namespace {

constexpr LONG kBarHeight = 80;  // at 192 dots per inch

TEST(AboutBox, TellsTheVersionOfThisProgramAndJoinsWhatThereIsOfItsBuild) {
  AboutRecord record = AboutTidewell(nullptr, nullptr);
  EXPECT_EQ(record.version, L"Tidewell 5.5 Public Beta 2");
  EXPECT_EQ(BuildLine(record), L"04/17/2009, WM5/WM6 Build");
  record.buildSuffix = false;
  EXPECT_EQ(BuildLine(record), L"04/17/2009");
}

TEST(AboutBox, LogoAndTextsStandBelowEachOtherUntilDoneIsTapped) {
  const TestWindow parent(0x14000800, static_cast<DWORD>(WS_EX_CAPTIONOKBTN), kDefaultPlace);
  const HMODULE pictures = LoadLibraryA(TIDEWELL_PICTURES);
  const Picture logo(pictures, 281);
  ASSERT_TRUE(logo);
  const InModalLoop look([&] {
    const HWND dialog = FindOwnWindow(L"#32770");
    UpdateWindow(dialog);
    EXPECT_FALSE(IsWindowEnabled(parent.Get()));
    const Screenshot box(dialog);
    EXPECT_GE(box.FirstDrawnRow(0), 12);
    EXPECT_LT(box.FirstDrawnRow(0), 12 + logo.Height());
    const int left = std::max(0, (box.Width() - logo.Width()) / 2);
    EXPECT_EQ(box.At(left, 12), RGB(255, 255, 255)) << "red is the key";
    const int version = box.FirstDrawnRow(12 + logo.Height() + 4);
    const int build = box.FirstDrawnRow(version + 28);
    EXPECT_LT(version, 12 + logo.Height() + 4 + 24);
    EXPECT_LT(build, version + 28 + 24);
    EXPECT_GT(box.FirstDrawnRow(build + 28), box.Height() - kBarHeight - 2) << "nothing follows";
    Tap(dialog, {9, box.Height() - 9});
  });
  ShowAboutBox(parent.Get(), AboutTidewell(GetModuleHandleW(nullptr), pictures),
               ScreenScale(192, 192, false));
  EXPECT_TRUE(IsWindowEnabled(parent.Get()));
}

}  // namespace
}  // namespace tidewell
