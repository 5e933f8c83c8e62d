#include "ui/path_dialog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/memory/memory_machine.h"
#include "platform/text.h"
#include "resources/text/text_ids.h"
#include "tests/ui/dialog_driver.h"

namespace tidewell {
namespace {

using testing::ElementsAre;
using testing::EndsWith;

HWND FolderLine() {
  return ControlOf(WC_STATICW);
}
HWND Note() {
  return ControlOf(WC_STATICW, 1);
}

bool LeftKeyIsEnabled() {
  return SendMessageW(SHFindMenuBar(FrontDialog()), TB_ISBUTTONENABLED, IDOK, 0) != 0;
}

class PathDialogTest : public testing::Test {
 protected:
  PathDialogTest() {
    memory.files.Put(L"\\My Documents\\Skins\\Blue\\");
    memory.files.Put(L"\\My Documents\\Skins\\Red\\");
    memory.files.Put(L"\\My Documents\\Sounds\\chime.wav");
    memory.files.Put(L"\\My Documents\\Sounds\\bell.wav");
    memory.files.Put(L"\\My Documents\\Sounds\\note.txt");
    memory.files.Put(L"\\Windows\\");
  }

  std::optional<std::wstring> Folder(const std::wstring& present) {
    return ChooseFolder(context, L"Select the skin folder", present);
  }
  std::optional<std::wstring> File(const std::wstring& present) {
    return ChooseFile(context, L"Select a sound", present, L"*.wav");
  }

  MemoryMachine memory;
  Machine machine = memory.Door();
  ScreenScale scale{96, 96, false};
  DialogContext context{nullptr, machine, nullptr, scale};
  DialogDriver driver;
};

TEST_F(PathDialogTest, ShowsTitlePlaceAndEntriesWithTheFocusInTheList) {
  driver.Then([] {
    EXPECT_EQ(TextOfWindow(FrontDialog()), L"Select the skin folder");
    EXPECT_EQ(TextOfWindow(FolderLine()), L"\\My Documents\\Skins");
    EXPECT_THAT(RowsOf(ListOf()), ElementsAre(L"Up one level", L"Blue", L"Red"));
    EXPECT_EQ(MarkedRow(ListOf()), std::nullopt);
    EXPECT_EQ(GetFocus(), ListOf());
    TapSoftKey(0);
  });
  EXPECT_EQ(Folder(L"\\My Documents\\Skins"), L"\\My Documents\\Skins");
}

TEST_F(PathDialogTest, IsWalkedWithKeysAlone) {
  driver.Then([] {
    EXPECT_EQ(TextOfWindow(FolderLine()), L"My Device");
    PressKey(VK_DOWN);
  });
  driver.Then([] { PressKey(VK_RETURN); });
  driver.Then([] {
    EXPECT_EQ(MarkedRow(ListOf()), std::nullopt);
    PressKey(VK_DOWN);
    PressKey(VK_DOWN);
  });
  driver.Then([] { PressKey(VK_RETURN); });
  driver.Then([] {
    EXPECT_EQ(TextOfWindow(FolderLine()), L"\\My Documents\\Sounds");
    PressKey(VK_LEFT);
  });
  driver.Then([] {
    EXPECT_EQ(MarkedRow(ListOf()), 2);
    PressKey(VK_BACK);
  });
  driver.Then([] {
    EXPECT_THAT(RowsOf(ListOf()), ElementsAre(L"My Documents", L"Windows"));
    EXPECT_EQ(MarkedRow(ListOf()), 0);
    PressKey(VK_DOWN);
  });
  driver.Then([] { TapSoftKey(0); });
  EXPECT_EQ(Folder(L""), L"\\Windows");
}

TEST_F(PathDialogTest, OneTapOpensAFolderAndTheSecondOfADoubleTapNothingMore) {
  driver.Then([] { TapRow(1); });
  driver.Then([] {
    EXPECT_THAT(RowsOf(ListOf()), ElementsAre(L"Up one level", L"Blue", L"Red"));
    TapRow(0);
  });
  driver.Then([] {
    EXPECT_EQ(MarkedRow(ListOf()), 1);
    DoubleTapRow(1);
  });
  driver.Then([] {
    EXPECT_EQ(TextOfWindow(FolderLine()), L"\\My Documents\\Skins");
    EXPECT_EQ(MarkedRow(ListOf()), std::nullopt);
    TapSoftKey(0);
  });
  EXPECT_EQ(Folder(L"\\My Documents"), L"\\My Documents\\Skins");
}

TEST_F(PathDialogTest, ATapMarksAFileAndTheSoftKeyTakesIt) {
  driver.Then([] {
    EXPECT_FALSE(LeftKeyIsEnabled());
    PressKey(VK_RETURN);
    TapSoftKey(0);
  });
  driver.Then([] { TapRow(2); });
  driver.Then([] {
    EXPECT_EQ(MarkedRow(ListOf()), 2);
    EXPECT_TRUE(LeftKeyIsEnabled());
    TapSoftKey(0);
  });
  EXPECT_EQ(File(L"\\My Documents\\Sounds"), L"\\My Documents\\Sounds\\chime.wav");
}

TEST_F(PathDialogTest, StartsAtThePresentFileAndADoubleTapTakesAnother) {
  driver.Then([] {
    EXPECT_EQ(MarkedRow(ListOf()), 2);
    EXPECT_TRUE(LeftKeyIsEnabled());
    DoubleTapRow(1);
  });
  EXPECT_EQ(File(L"\\My Documents\\Sounds\\chime.wav"), L"\\My Documents\\Sounds\\bell.wav");
}

TEST_F(PathDialogTest, IsCancelledByTheRightKeyAndByEscape) {
  driver.Then([] { TapSoftKey(1); });
  EXPECT_EQ(Folder(L"\\Windows"), std::nullopt);
  driver.Then([] { PressKey(VK_ESCAPE); });
  EXPECT_EQ(File(L"\\Windows"), std::nullopt);
}

TEST_F(PathDialogTest, TellsThatAFolderIsEmpty) {
  driver.Then([] {
    EXPECT_EQ(TextOfWindow(Note()), L"No entries");
    EXPECT_TRUE(IsWindowVisible(Note()));
    PressKey(VK_LEFT);
  });
  driver.Then([] {
    EXPECT_FALSE(IsWindowVisible(Note()));
    PressKey(VK_ESCAPE);
  });
  EXPECT_EQ(Folder(L"\\Windows"), std::nullopt);
}

TEST_F(PathDialogTest, SpeaksTheUsersLanguage) {
  memory.libraries.Put(L"\\german.dll", {{IDS_FOLDER_UP, L"Eine Ebene höher"},
                                         {IDS_FOLDER_EMPTY, L"Keine Einträge"}});
  const auto german = memory.libraries.Load(L"\\german.dll");
  context.language = german.get();
  driver.Then([] {
    EXPECT_THAT(RowsOf(ListOf()), ElementsAre(L"Eine Ebene höher"));
    EXPECT_EQ(TextOfWindow(Note()), L"Keine Einträge");
    PressKey(VK_ESCAPE);
  });
  Folder(L"\\Windows");
}

TEST_F(PathDialogTest, ShowsFiveThousandEntriesAndFindsOneByItsFirstLetters) {
  for (int i = 0; i < 5000; ++i) {
    memory.files.Put(L"\\Card\\" + FormatDecimal(10000 + i) + L".wav");
  }
  driver.Then([] {
    EXPECT_EQ(ListView_GetItemCount(ListOf()), 5001);
    PressKey(VK_END);
  });
  driver.Then([] {
    EXPECT_EQ(MarkedRow(ListOf()), 5000);
    for (const wchar_t letter : {L'1', L'2', L'3'}) PostMessageW(ListOf(), WM_CHAR, letter, 1);
  });
  driver.Then([] { TapSoftKey(0); });
  EXPECT_EQ(File(L"\\Card"), L"\\Card\\12300.wav");
}

TEST_F(PathDialogTest, ALongPathShowsItsEnd) {
  const std::wstring longest = L"\\" + std::wstring(255, L'n');
  memory.files.Put(longest + L"\\Skins\\");
  driver.Then([] {
    EXPECT_EQ(TextOfWindow(FolderLine()), L"...\\Skins");
    PressKey(VK_LEFT);
  });
  driver.Then([] {
    EXPECT_THAT(TextOfWindow(FolderLine()), EndsWith(L"n..."));
    TapSoftKey(0);
  });
  EXPECT_EQ(Folder(longest + L"\\Skins"), longest + L"\\Skins");
}

TEST_F(PathDialogTest, FillsWhateverScreenItIsTurnedTo) {
  driver.Then([] { SetWindowPos(FrontDialog(), nullptr, 0, 0, 320, 188, 0); });
  driver.Then([] {
    const RECT line = PlaceIn(FolderLine(), FrontDialog());
    const RECT list = PlaceIn(ListOf(), FrontDialog());
    EXPECT_LE(line.bottom, list.top);
    EXPECT_EQ(list.right - list.left, 320);
    EXPECT_EQ(list.bottom, 188);
    EXPECT_EQ(ListView_GetColumnWidth(ListOf(), 0), 318);
    PressKey(VK_ESCAPE);
  });
  Folder(L"\\My Documents");
}

}  // namespace
}  // namespace tidewell
