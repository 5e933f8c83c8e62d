#include "ui/path_dialog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/memory/memory_machine.h"
#include "platform/text.h"
#include "tests/support/window_support.h"
#include "tests/ui/dialog_driver.h"

namespace tidewell {
namespace {

using testing::ElementsAre;

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

TEST_F(PathDialogTest, IsWalkedWithKeysAlone) {
  driver.Then([] {
    EXPECT_EQ(CaptionOf(FrontDialog()), L"Select the skin folder");
    EXPECT_EQ(CaptionOf(FolderLine()), L"My Device");
    EXPECT_EQ(GetFocus(), List());
    Press(VK_DOWN);
  });
  driver.Then([] { Press(VK_RETURN); });
  driver.Then([] {
    EXPECT_THAT(RowsOfList(), ElementsAre(L"Up one level", L"Skins", L"Sounds"));
    EXPECT_EQ(MarkedRow(), -1);
    Press(VK_DOWN);
    Press(VK_DOWN);
  });
  driver.Then([] { Press(VK_RETURN); });
  driver.Then([] {
    EXPECT_EQ(CaptionOf(FolderLine()), L"\\My Documents\\Sounds");
    EXPECT_EQ(CaptionOf(Note()), L"No entries");
    EXPECT_TRUE(IsWindowVisible(Note()));
    Press(VK_LEFT);
  });
  driver.Then([] {
    EXPECT_FALSE(IsWindowVisible(Note()));
    EXPECT_EQ(MarkedRow(), 2);
    Press(VK_BACK);
  });
  driver.Then([] {
    EXPECT_EQ(MarkedRow(), 0);
    Press(VK_DOWN);
  });
  driver.Then([] { TapLeftKey(); });
  EXPECT_EQ(Folder(L""), L"\\Windows");
}

TEST_F(PathDialogTest, OneTapOpensAFolderAndTheSecondOfADoubleTapNothingMore) {
  driver.Then([] { TapRow(1); });
  driver.Then([] {
    EXPECT_EQ(CaptionOf(FolderLine()), L"\\My Documents\\Skins");
    TapRow(0);
  });
  driver.Then([] { DoubleTapRow(1); });
  driver.Then([] {
    EXPECT_EQ(CaptionOf(FolderLine()), L"\\My Documents\\Skins");
    EXPECT_EQ(MarkedRow(), -1);
    TapLeftKey();
  });
  EXPECT_EQ(Folder(L"\\My Documents"), L"\\My Documents\\Skins");
}

TEST_F(PathDialogTest, AFileIsMarkedByATapAndTakenByTheSoftKeyOrASecondTap) {
  driver.Then([] {
    EXPECT_FALSE(LeftKeyIsEnabled());
    Press(VK_RETURN);
    TapLeftKey();
  });
  driver.Then([] { TapRow(2); });
  driver.Then([] {
    EXPECT_TRUE(LeftKeyIsEnabled());
    TapLeftKey();
  });
  EXPECT_EQ(File(L"\\My Documents\\Sounds"), L"\\My Documents\\Sounds\\chime.wav");

  driver.Then([] {
    EXPECT_EQ(MarkedRow(), 2);
    DoubleTapRow(1);
  });
  EXPECT_EQ(File(L"\\My Documents\\Sounds\\chime.wav"), L"\\My Documents\\Sounds\\bell.wav");
}

TEST_F(PathDialogTest, IsCancelledByTheRightKeyAndByEscape) {
  driver.Then([] { TapRightKey(); });
  EXPECT_EQ(Folder(L"\\Windows"), std::nullopt);
  driver.Then([] { Press(VK_ESCAPE); });
  EXPECT_EQ(File(L"\\Windows"), std::nullopt);
}

TEST_F(PathDialogTest, ShowsFiveThousandEntriesAndFindsOneByItsFirstLetters) {
  for (int i = 0; i < 5000; ++i) {
    memory.files.Put(L"\\Card\\" + FormatDecimal(10000 + i) + L".wav");
  }
  driver.Then([] { Press(VK_END); });
  driver.Then([] {
    EXPECT_EQ(MarkedRow(), 5000);
    for (const wchar_t letter : {L'1', L'2', L'3'}) PostMessageW(List(), WM_CHAR, letter, 1);
  });
  driver.Then([] { TapLeftKey(); });
  EXPECT_EQ(File(L"\\Card"), L"\\Card\\12300.wav");
}

TEST_F(PathDialogTest, FillsWhateverScreenItIsTurnedToAndShowsTheEndOfALongPath) {
  const std::wstring longest = L"\\" + std::wstring(255, L'n') + L"\\Skins";
  memory.files.Put(longest + L"\\");
  driver.Then([] { SetWindowPos(FrontDialog(), nullptr, 0, 0, 320, 188, 0); });
  driver.Then([] {
    EXPECT_EQ(CaptionOf(FolderLine()), L"...\\Skins");
    const RECT list = PlaceInDialog(List());
    EXPECT_LE(PlaceInDialog(FolderLine()).bottom, list.top);
    EXPECT_EQ(list.right, 320);
    EXPECT_EQ(list.bottom, 188);
    EXPECT_EQ(ListView_GetColumnWidth(List(), 0), ClientRect(List()).right);
    TapLeftKey();
  });
  EXPECT_EQ(Folder(longest), longest);
}

}  // namespace
}  // namespace tidewell
