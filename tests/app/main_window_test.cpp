#include "app/main_window.h"

#include "app/resource.h"
#include "program_fixture.h"

namespace tidewell {

namespace {

TEST_F(ProgramTest, ListsTheGroupsInOrderInAWindowOfADevicesStyle) {
  Start();
  EXPECT_EQ(FindWindowW(L"TW_OPTIONS", L"TW Options"), Window());
  EXPECT_EQ(static_cast<DWORD>(GetWindowLongW(Window(), GWL_STYLE)), 0x14000800u);
  EXPECT_NE(static_cast<DWORD>(GetWindowLongW(Window(), GWL_EXSTYLE)) & 0x80000000u, 0u);
  EXPECT_EQ(Captions(), (std::vector<std::wstring>{
                            L"text 617", L"text 618", L"text 619", L"text 1259", L"text 1432",
                            L"text 1260", L"text 620", L"text 621", L"text 622", L"text 624",
                            L"text 625", L"text 626", L"About Tidewell"}));
  EXPECT_EQ(Commands(), (std::vector{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}));
  EXPECT_EQ(program->List().Selected(), 0u);
  EXPECT_EQ(program->Bar().Command(CommandBar::kLeftSlot), 0);
  EXPECT_EQ(program->Bar().Command(CommandBar::kRightSlot), 1);
}

TEST_F(ProgramTest, WithoutLibrariesTheListStillWorks) {
  SetDword(L"MyVgaMode", 0);
  device.libraries = MemoryLibraries();
  Start();
  EXPECT_EQ(Captions().front(), L"");
  EXPECT_EQ(Captions().back(), L"About Tidewell");
  TapBar(true);
  EXPECT_EQ(Commands(), (std::vector{21, 22, 23}));
  answer = IDYES;
  RunRow(2);
  EXPECT_FALSE(IsOpen());
}

TEST_F(ProgramTest, TheListFillsTheWindowAboveTheBar) {
  for (const std::uint32_t vgaMode : {0u, 1u}) {
    SetDword(L"MyVgaMode", vgaMode);
    Start();
    const auto height = [&] {
      return ClientRect(Window()).bottom -
             const_cast<CommandList&>(program->List()).Pointer().Scroller().View().height;
    };
    EXPECT_EQ(height(), vgaMode ? 80 : 40);
    EXPECT_EQ(SendMessageW(Window(), WM_SIZE, 0, MAKELPARAM(200, 180)), 1);
    MoveWindow(Window(), 0, 60, 220, 190, TRUE);
    EXPECT_EQ(height(), vgaMode ? 80 : 40);
    program.reset();
    PumpMessages();
  }
}

TEST_F(ProgramTest, ToolsComeAndGoByTheBar) {
  Start();
  TapBar(true);
  ASSERT_EQ(Commands(), (std::vector{21, 22, 23}));
  EXPECT_EQ(Captions(),
            (std::vector<std::wstring>{L"Export Settings", L"Import Settings", L"Exit Settings"}));
  EXPECT_EQ(program->Bar().Command(CommandBar::kLeftSlot), std::nullopt);
  EXPECT_EQ(program->Bar().Command(CommandBar::kRightSlot), 2);
  TapBar(false);
  ASSERT_TRUE(IsOpen()) << "the left button is gone";
  TapBar(true);
  EXPECT_EQ(Commands().size(), 13u);

  // The soft keys press the bar.
  SendMessageW(Window(), WM_COMMAND, ID_RIGHT_BUTTON, 0);
  EXPECT_EQ(Commands().size(), 3u);
  SendMessageW(Window(), WM_COMMAND, ID_LEFT_BUTTON, 0);
  ASSERT_TRUE(IsOpen());
  SendMessageW(Window(), WM_COMMAND, ID_RIGHT_BUTTON, 0);
  SendMessageW(Window(), WM_COMMAND, ID_LEFT_BUTTON, 0);
  EXPECT_FALSE(IsOpen());
}

// The broadcast, as a listening window meets it.
class DoneTest : public ProgramTest {
 protected:
  DoneTest() {
    listener.onMessage = [this](const TestWindow::Message& message) {
      if (message.id != changed) return;
      heard.emplace_back(message.wParam, message.lParam);
      savedWhenHeard = HasValue(L"OnClick");
    };
  }

  TestWindow listener{WS_POPUP, 0};
  const UINT changed = RegisterWindowMessageW(L"VelmontTidewellSettingsChanged");
  std::vector<std::pair<WPARAM, LPARAM>> heard;
  bool savedWhenHeard = false;
};

TEST_F(DoneTest, SavesTellsTheItemAndEnds) {
  for (const bool byTap : {false, true}) {
    heard.clear();
    Start();
    program->Settings().root.OnClick.Set(program->Settings().root.OnClick.Value() + 1);
    if (byTap) {
      TapBar(false);
    } else {
      SendMessageW(Window(), WM_COMMAND, IDOK, 0);
    }
    EXPECT_FALSE(IsOpen());
    PumpMessages();
    EXPECT_EQ(heard, (std::vector<std::pair<WPARAM, LPARAM>>{{0, 0}}));
    EXPECT_TRUE(savedWhenHeard);
  }
}

TEST_F(DoneTest, KeepsTheCategoriesAndTheFiltersFile) {
  constexpr wchar_t kFiltersFile[] = L"\\Program Files\\Velmont\\Tidewell\\TWFilters.txt";
  categories = {{L"Work", 1, false}, {L"Home", 2, false}};
  device.files.Put(kFiltersFile, "an older one");
  Start();
  program->Categories().FindCategory(L"Work")->color = 0x0000FF;
  SendMessageW(Window(), WM_COMMAND, IDOK, 0);
  EXPECT_TRUE(HasValue(L"CatColor.Work", L"\\Categories"));
  EXPECT_FALSE(HasValue(L"CatColor.Home", L"\\Categories"));
  EXPECT_GT(device.files.Contents(kFiltersFile)->size(), 1000u);
}

TEST_F(DoneTest, WritesNothingWhenNothingWasChanged) {
  Start();
  registry.Meter().Reset();
  SendMessageW(Window(), WM_COMMAND, IDOK, 0);
  EXPECT_EQ(registry.CountWrites(), 0);
}

TEST_F(DoneTest, ExitAsksAndYesLeavesWithoutSaving) {
  Start();
  program->Settings().root.OnClick.Set(1);
  registry.Meter().Reset();
  TapBar(true);
  RunRow(2);
  EXPECT_EQ(asked, std::vector<std::wstring>{L"text 613|text 614|4"});
  ASSERT_TRUE(IsOpen());
  EXPECT_EQ(Commands(), (std::vector{21, 22, 23})) << "No keeps the tools";
  answer = IDYES;
  RunRow(2);
  EXPECT_FALSE(IsOpen());
  PumpMessages();
  EXPECT_EQ(registry.CountWrites(), 0);
  EXPECT_TRUE(heard.empty());
}

TEST_F(DoneTest, ADragThatEndsOverTheBarIsNoTapOnIt) {
  Start();
  const LONG bottom = ClientRect(Window()).bottom;
  PostMessageW(Window(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 100));
  PostMessageW(Window(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(5, bottom - 5));
  PostMessageW(Window(), WM_LBUTTONUP, 0, MAKELPARAM(5, bottom - 5));
  PumpMessages();
  EXPECT_TRUE(IsOpen());
}

TEST_F(ProgramTest, EachGroupOpensItsPage) {
  Start();
  RunRow(3);
  EXPECT_EQ(CaptionOf(Window()), L"TW Options") << "a group without a page changes nothing";
  EXPECT_EQ(Commands().size(), 13u);
  hasPages = true;
  for (int row = 0; row < 12; ++row) {
    RunRow(row);
    ASSERT_EQ(pagesAsked.back(), row);
    EXPECT_EQ(captionsSeen.back(), L"") << "the host's caption is empty before the page is made";
    EXPECT_EQ(CaptionOf(Window()), L"");
    const HWND page = pageWindow;
    SendMessageW(Window(), kClosePageMessage, 0, 0);
    EXPECT_FALSE(IsWindow(page));
    EXPECT_EQ(pagesDestroyed, row + 1);
    EXPECT_EQ(CaptionOf(Window()), L"TW Options");
  }
}

TEST_F(DoneTest, DoneClosesAPageFirst) {
  hasPages = true;
  Start();
  RunRow(0);
  SendMessageW(Window(), WM_COMMAND, IDOK, 0);
  ASSERT_TRUE(IsOpen());
  EXPECT_EQ(pagesDestroyed, 1);
  SendMessageW(Window(), WM_COMMAND, IDOK, 0);
  EXPECT_FALSE(IsOpen());
  PumpMessages();
  EXPECT_EQ(heard.size(), 1u);

  Start();
  RunRow(0);
  DestroyWindow(Window());
  EXPECT_EQ(pagesDestroyed, 2) << "a page still open goes with the window";
}

TEST_F(DoneTest, ABackupGoesOutAndComesBack) {
  device.files.MakeFolder(L"\\My Documents");
  SetDword(L"OnClick", 2);
  Start();
  TapBar(true);
  RunRow(0);
  EXPECT_TRUE(asked.empty()) << "a cancelled dialog says nothing";

  backup = L"\\My Documents\\a.twsb";
  RunRow(0);
  EXPECT_EQ(asked, std::vector<std::wstring>{L"text 607 \"" + backup + L"\"|text 608|0"});
  EXPECT_TRUE(device.files.Find(backup));
  ASSERT_TRUE(IsOpen());

  SetDword(L"OnClick", 1);
  program->Settings().root.IndentItems.Set(1);
  RunRow(1);
  EXPECT_EQ(asked.back(), L"text 611|text 612|0");
  EXPECT_FALSE(IsOpen());
  PumpMessages();
  EXPECT_EQ(heard.size(), 1u);
  EXPECT_TRUE(savedWhenHeard);
  EXPECT_FALSE(HasValue(L"IndentItems")) << "edits of before are not saved over the import";
  EXPECT_TRUE(device.files.Find(L"\\My Documents\\TW_BeforeImport.twsb"));
  EXPECT_EQ(backupsAsked.back(), L"Import TW Settings|\\My Documents||twsb");
}

TEST_F(DoneTest, AFileThatIsNoBackupIsRefusedAndTheProgramGoesOn) {
  Start();
  TapBar(true);
  for (const wchar_t* path : {L"\\absent.twsb", L"\\header.twsb"}) {
    device.files.Put(L"\\header.twsb", std::string_view("[\0", 2));
    backup = path;
    RunRow(1);
    EXPECT_EQ(asked.back(), L"text 609|text 610|0") << path;
    EXPECT_TRUE(IsOpen());
  }
  EXPECT_TRUE(heard.empty());
}

}  // namespace

}  // namespace tidewell
