// What the program asks the machine for when it starts, and that it lets go of it.
#include "app/single_instance.h"
#include "program_fixture.h"

namespace tidewell {
namespace {

TEST_F(ProgramTest, TheLibrariesAndTheCategoriesFollowTheSettingsAndAreLetGo) {
  const struct {
    int dpi;
    std::uint32_t vgaMode;
    const wchar_t* pictures;
  } cases[] = {
      {131, 0, L"\\LowDpiRes.dll"}, {144, 0, L"\\HighDpiRes.dll"}, {96, 1, L"\\HighDpiRes.dll"}};
  const std::wstring folder = L"\\Program Files\\Velmont\\Tidewell";
  for (const auto& c : cases) {
    SCOPED_TRACE(c.dpi);
    memory.libraries = {};
    memory.libraries.Put(kEnglishLibrary, {});
    memory.libraries.Put(folder + c.pictures, {});
    memory.system.screen.dpiX = memory.system.screen.dpiY = c.dpi;
    Put(SettingKey::kRoot, L"MyVgaMode", c.vgaMode);
    MainWindowParts parts = Parts();
    std::wstring icons;
    parts.openCategories = [&](const std::wstring& iconsFolder) {
      icons = iconsFolder;
      return std::make_unique<ListedCategories>(categories);
    };
    StartOn(memory.Door(), std::move(parts));
    EXPECT_EQ(memory.libraries.LoadedCount(), 2);
    EXPECT_EQ(icons, folder + L"\\CategoryIcons");
    DestroyWindow(Window());
    EXPECT_EQ(memory.libraries.LoadedCount(), 0);
    EXPECT_TRUE(PumpMessages()) << "the message loop ends";
  }
}

TEST_F(ProgramTest, TheWindowFillsItsPlaceWithoutAFrameAndAnExitWritesAndTellsNothing) {
  const TestWindow full(0x14000800, static_cast<DWORD>(WS_EX_CAPTIONOKBTN), kDefaultPlace);
  Put(SettingKey::kRoot, L"dHeightLimitLandscape", 1);  // which a save repairs
  Start();
  const RECT place = WindowRect(Window());
  const RECT wanted = WindowRect(full.Get());
  EXPECT_TRUE(EqualRect(&place, &wanted));
  EXPECT_EQ(ClientArea(Window()).bottom, place.bottom - place.top);
  EXPECT_EQ(FindWindowW(L"TW_OPTIONS", L"TW Options"), Window());
  dialogs.agrees = true;
  TapBar(true);
  RunRow(2);
  PumpMessages();
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(recorded.CountWrites(), 0);
  EXPECT_EQ(full.Count(RegisterWindowMessageW(L"VelmontTidewellSettingsChanged")), 0);
}

TEST_F(ProgramTest, ARunningInstanceIsFoundAlsoWhileAPageHasTakenItsCaption) {
  EXPECT_FALSE(BringRunningInstanceForward());
  hasPages = true;
  Start();
  EXPECT_TRUE(BringRunningInstanceForward());
  RunRow(0);
  ASSERT_EQ(CaptionOf(Window()), L"");
  EXPECT_TRUE(BringRunningInstanceForward());
}

}  // namespace
}  // namespace tidewell
