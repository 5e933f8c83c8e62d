#include "app/main_window.h"

#include <algorithm>

#include "app/about_box.h"
#include "app/resource.h"
#include "app/single_instance.h"
#include "program_fixture.h"
#include "ui/windows/picture.h"

namespace tidewell {
namespace {

const std::vector kTools{21, 22, 23};

TEST_F(ProgramTest, ToolsComeAndGoByTheBarAndTheSoftKeys) {
  Start();
  TapBar(true);
  ASSERT_EQ(Commands(), kTools);
  EXPECT_EQ(Captions(),
            (std::vector<std::wstring>{L"Export Settings", L"Import Settings", L"Exit Settings"}));
  TapBar(false);
  SendMessageW(Window(), WM_COMMAND, ID_LEFT_BUTTON, 0);
  ASSERT_TRUE(IsOpen()) << "the left button is gone";
  RunRow(2);
  EXPECT_EQ(dialogs.shown, std::vector<std::wstring>{L"text 614: text 613 [yes]"});
  ASSERT_TRUE(IsOpen()) << "the exit was answered with no";

  SendMessageW(Window(), WM_COMMAND, ID_RIGHT_BUTTON, 0);
  EXPECT_EQ(Commands(), (std::vector{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}));
  EXPECT_EQ(Captions().back(), L"About Tidewell");
  SendMessageW(Window(), WM_COMMAND, ID_LEFT_BUTTON, 0);
  EXPECT_FALSE(IsOpen());
}

// The broadcast, as a listening window meets it.
class DoneTest : public ProgramTest {
 protected:
  void Done() {
    SendMessageW(Window(), WM_COMMAND, IDOK, 0);
    PumpMessages();
  }
  int CountBroadcasts() const { return listener.Count(kBroadcast); }

  const UINT kBroadcast = RegisterWindowMessageW(L"VelmontTidewellSettingsChanged");
  TestWindow listener{WS_POPUP, 0};
};

constexpr wchar_t kFiltersFile[] = L"\\Program Files\\Velmont\\Tidewell\\TWFilters.txt";

TEST_F(DoneTest, SavesTheSettingsTheCategoriesAndTheFiltersFile) {
  categories = {{L"Work", 1, false}, {L"Home", 2, false}};
  files.Put(kFiltersFile, "an older one");
  Start();
  program->Settings().root.OnClick.Set(1);
  program->Categories().FindCategory(L"Work")->color = 0x0000FF;
  bool isTold = false;
  const auto watchTheQueue = [&](auto) {
    MSG message;
    isTold = isTold || PeekMessageW(&message, listener.Get(), kBroadcast, kBroadcast, PM_NOREMOVE);
  };
  recorded.Calls().Watch(watchTheQueue);
  recordedFiles.Calls().Watch(watchTheQueue);
  Done();
  EXPECT_FALSE(isTold) << "before everything was written";
  EXPECT_EQ(CountBroadcasts(), 1);
  EXPECT_TRUE(Stored(SettingKey::kRoot, L"OnClick"));
  EXPECT_TRUE(Stored(SettingKey::kCategories, L"CatColor.Work"));
  EXPECT_FALSE(Stored(SettingKey::kCategories, L"CatColor.Home"));
  EXPECT_GT(files.Contents(kFiltersFile)->size(), 1000u);
}

// The system swallows what goes wrong while it has a window made.
struct BreakingLibraries final : ResourceLibraries {
  std::unique_ptr<ResourceLibrary> Load(const std::wstring&) override {
    RaiseException(EXCEPTION_ACCESS_VIOLATION, 0, 0, nullptr);
    return nullptr;
  }
};

TEST_F(DoneTest, AStartThatBrokeOffSaysSoAndSavesAndTellsNothing) {
  BreakingLibraries breaking;
  Put(SettingKey::kRoot, L"dHeightLimitLandscape", 1);
  files.Put(kFiltersFile, "an older one");
  for (ResourceLibraries* libraries : {static_cast<ResourceLibraries*>(&breaking),
                                       static_cast<ResourceLibraries*>(&memory.libraries)}) {
    dialogs.shown.clear();
    MainWindowParts parts = Parts();
    parts.openCategories = [&](const std::wstring& path) {
      breaking.Load(path);
      return nullptr;
    };
    StartOn({recorded, files, memory.locale, *libraries, memory.system}, std::move(parts));
    EXPECT_FALSE(program->IsComplete());
    Done();
    EXPECT_TRUE(IsOpen());
    program->GiveUp();
    EXPECT_FALSE(IsOpen());
    const std::wstring said = libraries == &breaking ? L"The start failed and nothing was changed: "
                                                       L"restart the device."
                                                     : L"text 2020";
    EXPECT_EQ(dialogs.shown, std::vector{L"TW Options: " + said});
    EXPECT_EQ(recorded.CountWrites(), 0);
    EXPECT_EQ(files.Contents(kFiltersFile)->size(), 12u);
    EXPECT_EQ(CountBroadcasts(), 0);
  }
}

TEST_F(DoneTest, ADragThatEndsOverTheBarIsNoTapOnIt) {
  Start();
  const LONG bottom = ClientArea(Window()).bottom;
  PostMessageW(Window(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 100));
  PostMessageW(Window(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(5, bottom - 5));
  PostMessageW(Window(), WM_LBUTTONUP, 0, MAKELPARAM(5, bottom - 5));
  PumpMessages();
  EXPECT_TRUE(IsOpen());
}

TEST_F(ProgramTest, EachGroupOpensItsPage) {
  EXPECT_FALSE(BringRunningInstanceForward());
  hasPages = true;
  Start();
  for (int row = 0; row < 12; ++row) {
    RunRow(row);
    EXPECT_EQ(pageAsked, row);
    EXPECT_EQ(captionSeen, L"") << "the host's caption is empty before the page is made";
    EXPECT_TRUE(BringRunningInstanceForward()) << "whatever its caption";
    SendMessageW(Window(), kClosePageMessage, 0, 0);
    EXPECT_EQ(pagesDestroyed, row + 1);
    EXPECT_EQ(CaptionOf(Window()), L"TW Options");
  }
}

TEST_F(DoneTest, DoneClosesAPageFirstAndTheWindowsEndThePageToo) {
  hasPages = true;
  Start();
  RunRow(0);
  Done();
  ASSERT_TRUE(IsOpen());
  EXPECT_EQ(pagesDestroyed, 1);
  EXPECT_EQ(CountBroadcasts(), 0);
  RunRow(0);
  for (const HWND disabled : {Window(), pageWindow}) {
    EnableWindow(disabled, FALSE);
    SendMessageW(Window(), WM_CLOSE, 0, 0);
    Done();
    ASSERT_TRUE(IsOpen()) << "a dialog is open";
    EXPECT_EQ(pagesDestroyed, 1);
    EnableWindow(disabled, TRUE);
  }
  program->Settings().root.OnClick.Set(1);
  SendMessageW(Window(), WM_CLOSE, 0, 0);
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(pagesDestroyed, 2);
  EXPECT_FALSE(Stored(SettingKey::kRoot, L"OnClick")) << "closed from outside, nothing is saved";
  PumpMessages();
  EXPECT_EQ(CountBroadcasts(), 0);
}

TEST_F(DoneTest, ABackupGoesOutAndComesBack) {
  files.MakeFolder(L"\\My Documents");
  files.Put(kFiltersFile);
  Put(SettingKey::kRoot, L"OnClick", 2);
  Start();
  TapBar(true);
  RunRow(0);
  EXPECT_TRUE(dialogs.shown.empty()) << "a cancelled dialog says nothing";
  const std::wstring backup = L"\\My Documents\\a.twsb";
  dialogs.answer = backup;
  RunRow(0);
  EXPECT_EQ(dialogs.shown, std::vector<std::wstring>{L"text 608: text 607 \"" + backup + L"\""});
  ASSERT_TRUE(IsOpen());

  program->Settings().root.IndentItems.Set(1);
  RunRow(1);
  EXPECT_EQ(dialogs.named.title, L"Import TW Settings");
  EXPECT_EQ(dialogs.named.folder, L"\\My Documents");
  EXPECT_EQ(dialogs.named.extension, L"twsb");
  EXPECT_FALSE(dialogs.named.listsFolders);
  EXPECT_EQ(dialogs.shown.back(), L"text 612: text 611");
  EXPECT_FALSE(IsOpen());
  PumpMessages();
  EXPECT_EQ(CountBroadcasts(), 1);
  EXPECT_FALSE(Stored(SettingKey::kRoot, L"IndentItems"))
      << "edits of before are not saved over the import";
  EXPECT_TRUE(files.Find(L"\\My Documents\\TW_BeforeImport_2008_03_14_090500.twsb"));
}

TEST_F(DoneTest, WhatAnImportDidNotDoIsSaidAndTheProgramGoesOn) {
  const std::wstring outside = L"text 2037: text 2034 \"HKEY_CURRENT_USER\\\\A\"\n\ntext 2035 [no]";
  const std::wstring backup = L"\\My Documents\\a.twsb";
  dialogs.answer = backup;
  Start();
  TapBar(true);
  RunRow(1);
  files.Put(backup, BytesOf(L"\n[Software\\Velmont\\Tidewell]\n"));
  files.SetWriteProtected(true);
  RunRow(0);
  RunRow(1);
  EXPECT_EQ(dialogs.shown, (std::vector<std::wstring>{
                               L"text 610: text 609\n\ntext 2031 text 2070",
                               L"text 608: text 607 \"" + backup + L"\"\n\ntext 2030 text 2071",
                               L"text 2037: text 2036 text 2071\n\ntext 2074 [no]"}));
  dialogs.shown.clear();
  files.SetWriteProtected(false);
  files.Put(backup, BytesOf(L"\n[Software\\Velmont\\Tidewell]\n\n[\\A]\n"));
  RunRow(1);
  EXPECT_EQ(dialogs.shown, std::vector{outside});
  dialogs.shown.clear();
  dialogs.agrees = true;
  RunRow(1);
  EXPECT_EQ(dialogs.shown,
            (std::vector<std::wstring>{outside,
                                       L"text 610: text 609\n\ntext 2032 text 2033 "
                                       L"\"TW_BeforeImport_2008_03_14_090500.twsb\""}));
  EXPECT_TRUE(IsOpen());
  files.Put(backup, BytesOf(L"\n[Software\\Velmont\\Tidewell]\n"));
  files.SetFreeBytes(0);
  RunRow(0);
  RunRow(1);
  EXPECT_EQ(dialogs.shown[2], L"text 608: text 607 \"" + backup + L"\"\n\ntext 2030 text 2072");
  EXPECT_EQ(dialogs.shown.back(), L"text 612: text 611\n\ntext 2073 text 2070") << "no such folder";
}

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

// ---- The about box

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
