#include "app/about_box.h"

#include <aygshell.h>
#include <gtest/gtest.h>

#include "tests/support/window_support.h"
#include "ui/picture.h"

namespace tidewell {

namespace {

constexpr wchar_t kDialogClass[] = L"#32770";
constexpr LONG kBarHeight = 80;  // at 192 dots per inch

TEST(AboutBox, TellsTheVersionOfThisProgramAndJoinsWhatThereIsOfItsBuild) {
  AboutRecord record = AboutTidewell(nullptr, nullptr);
  EXPECT_EQ(record.caption, L"About Tidewell");
  EXPECT_EQ(record.version, L"Tidewell 5.5 Public Beta 2");
  EXPECT_EQ(record.logoId, 281);
  EXPECT_EQ(record.menuBarId, 174);
  EXPECT_EQ(BuildLine(record), L"04/17/2009, WM5/WM6 Build");
  record.buildSuffix = false;
  EXPECT_EQ(BuildLine(record), L"04/17/2009");
  record.buildDate.clear();
  EXPECT_EQ(BuildLine(record), L"");
  record.buildSuffix = true;
  EXPECT_EQ(BuildLine(record), L"WM5/WM6 Build");
}

class AboutBoxTest : public testing::Test {
 protected:
  // Shows the box, lets `look` see and close it, and returns when it is closed.
  void Show(std::function<void(HWND)> look) {
    bool shown = false;
    const InModalLoop whenShown([&] {
      const HWND dialog = FindOwnWindow(kDialogClass);
      UpdateWindow(dialog);
      look(dialog);
      shown = true;
    });
    ShowAboutBox(parent.Get(), AboutTidewell(GetModuleHandleW(nullptr), pictures),
                 ScreenScale(192, 192, false));
    EXPECT_TRUE(shown);
    EXPECT_EQ(FindOwnWindow(kDialogClass), nullptr);
  }

  TestWindow parent{0x14000800, static_cast<DWORD>(WS_EX_CAPTIONOKBTN), kDefaultPlace};
  HMODULE pictures = LoadLibraryA(TIDEWELL_PICTURES);
};

TEST_F(AboutBoxTest, CoversTheProgramUntilOkOrDoneIsTapped) {
  Show([&](HWND dialog) {
    EXPECT_EQ(CaptionOf(dialog), L"About Tidewell");
    EXPECT_FALSE(IsWindowEnabled(parent.Get()));
    const RECT box = WindowRect(dialog);
    const RECT program = WindowRect(parent.Get());
    EXPECT_TRUE(EqualRect(&box, &program));
    EXPECT_NE(FindStrip(dialog, L"DeviceTitleStrip"), nullptr);
    PostMessageW(dialog, WM_COMMAND, IDOK, 0);
  });
  EXPECT_TRUE(IsWindowEnabled(parent.Get()));
  Show([&](HWND dialog) { Tap(dialog, {9, ClientRect(dialog).bottom - 9}); });
}

TEST_F(AboutBoxTest, LogoAndTextsStandBelowEachOther) {
  const Picture logo(pictures, 281);
  ASSERT_TRUE(logo);
  Show([&](HWND dialog) {
    const Screenshot box(dialog);
    EXPECT_GE(box.FirstDrawnRow(0), 12);
    EXPECT_LT(box.FirstDrawnRow(0), 12 + logo.Height());
    const int middle = box.Width() / 2;
    EXPECT_EQ(box.At(middle - logo.Width() / 2, 12), RGB(255, 255, 255)) << "red is the key";
    const int version = box.FirstDrawnRow(12 + logo.Height() + 4);
    EXPECT_LT(version, 12 + logo.Height() + 4 + 24);
    const int build = box.FirstDrawnRow(version + 28);
    EXPECT_LT(build, version + 28 + 24);
    EXPECT_GT(box.FirstDrawnRow(build + 28), box.Height() - kBarHeight - 2) << "nothing follows";
    PostMessageW(dialog, WM_COMMAND, IDOK, 0);
  });
}

TEST_F(AboutBoxTest, AMissingLibraryLeavesTheTexts) {
  pictures = nullptr;
  Show([&](HWND dialog) {
    const int first = Screenshot(dialog).FirstDrawnRow(0);
    EXPECT_TRUE(first >= 12 + 4 && first < 12 + 4 + 24) << first;
    PostMessageW(dialog, WM_COMMAND, IDOK, 0);
  });
}

}  // namespace

}  // namespace tidewell
