#include "ui/windows/path_dialog.h"

#include <gtest/gtest.h>

#include "platform/text.h"
#include "tests/support/test_device.h"
#include "tests/support/window_support.h"
#include "tests/ui/dialog_driver.h"

namespace tidewell {
namespace {

HWND FolderLine() {
  return ControlOf(WC_STATICW);
}

// The folder and its rows, the note in the list's place, and whether nothing can be selected.
std::wstring Shown() {
  std::wstring shown = CaptionOf(FolderLine()) + L":" + RowsShown();
  const HWND note = ControlOf(WC_STATICW, 1);
  if (IsWindowVisible(note)) shown += L" (" + CaptionOf(note) + L")";
  const HWND bar = SHFindMenuBar(FrontDialog());
  if (!SendMessageW(bar, TB_ISBUTTONENABLED, IDOK, 0)) shown += L" -";
  return shown;
}

class PathDialogTest : public testing::Test, protected TestDevice {
 protected:
  PathDialogTest() {
    for (const wchar_t* path :
         {L"\\My Documents\\Skins\\Blue\\", L"\\My Documents\\Skins\\Red\\", L"\\Windows\\",
          L"\\My Documents\\Sounds\\chime.wav", L"\\My Documents\\Sounds\\bell.wav"}) {
      files.Put(path);
    }
  }

  std::optional<std::wstring> Folder(const std::wstring& present) {
    return ChooseFolder(dialog, L"Select the skin folder", present);
  }
  std::optional<std::wstring> File(const std::wstring& present) {
    return ChooseFile(dialog, L"Select a sound", present, L"*.wav");
  }

  DialogContext dialog{nullptr, machine, language, scale};
  DialogDriver driver{Shown};
};

TEST_F(PathDialogTest, IsWalkedWithKeysAlone) {
  driver.Play({
      {[] { EXPECT_EQ(CaptionOf(FrontDialog()), L"Select the skin folder"); },
       L"My Device: My Documents, Windows"},
      {Key(VK_DOWN), L"My Device: >My Documents, Windows"},
      {Key(VK_RETURN), L"\\My Documents: Up one level, Skins, Sounds"},
      {Key(VK_END), L"\\My Documents: Up one level, Skins, >Sounds"},
      {Key(VK_RETURN), L"\\My Documents\\Sounds: Up one level (No entries)"},
      {Key(VK_LEFT), L"\\My Documents: Up one level, Skins, >Sounds"},
      {Key(VK_BACK), L"My Device: >My Documents, Windows"},
      {Key(VK_DOWN), L"My Device: My Documents, >Windows"},
      {TapLeftKey, L""},
  });
  EXPECT_EQ(Folder(L""), L"\\Windows");
}

TEST_F(PathDialogTest, OneTapOpensAFolderAndTheSecondOfADoubleTapNothingMore) {
  driver.Play({
      {DoubleTapRow(1), L"\\My Documents\\Skins: Up one level, Blue, Red"},
      {TapRow(0), L"\\My Documents: Up one level, >Skins, Sounds"},
      {TapRightKey, L""},
  });
  EXPECT_EQ(Folder(L"\\My Documents"), std::nullopt);
  // Closing is cancelling, but not below a message of the dialog's own.
  const auto close = [](bool below) {
    return [=] {
      EnableWindow(FrontDialog(), !below);
      PostMessageW(FrontDialog(), WM_CLOSE, 0, 0);
    };
  };
  driver.Play({{close(true), L"\\Windows: Up one level (No entries)"}, {close(false), L""}});
  EXPECT_EQ(Folder(L"\\Windows"), std::nullopt);
}

TEST_F(PathDialogTest, AFileIsMarkedByATapAndTakenByTheSoftKeyOrASecondTap) {
  driver.Play({
      {TapLeftKey, L"\\My Documents\\Sounds: Up one level, bell.wav, chime.wav -"},
      {TapRow(2), L"\\My Documents\\Sounds: Up one level, bell.wav, >chime.wav"},
      {TapLeftKey, L""},
  });
  EXPECT_EQ(File(L"\\My Documents\\Sounds"), L"\\My Documents\\Sounds\\chime.wav");
  driver.Play({
      {nullptr, L"\\My Documents\\Sounds: Up one level, bell.wav, >chime.wav"},
      {DoubleTapRow(1), L""},
  });
  EXPECT_EQ(File(L"\\My Documents\\Sounds\\chime.wav"), L"\\My Documents\\Sounds\\bell.wav");
}

TEST_F(PathDialogTest, ShowsFiveThousandEntriesAndFindsOneByItsFirstLetters) {
  for (int i = 0; i < 5000; ++i) files.Put(L"\\Card\\" + FormatDecimal(10000 + i) + L".wav");
  const auto typeLetters = [] {
    for (const wchar_t letter : {L'1', L'2', L'3'}) PostMessageW(List(), WM_CHAR, letter, 1);
  };
  driver.Play({{typeLetters, L"\\Card: >12300.wav"}, {Key(VK_ESCAPE), L""}});
  EXPECT_EQ(File(L"\\Card"), std::nullopt);
}

TEST_F(PathDialogTest, FillsWhateverScreenItIsTurnedToAndShowsTheEndOfALongPath) {
  const std::wstring longest = L"\\" + std::wstring(255, L'n') + L"\\Skins";
  files.Put(longest + L"\\");
  const auto expectItFills = [] {
    const RECT list = PlaceInDialog(List());
    EXPECT_LE(PlaceInDialog(FolderLine()).bottom, list.top);
    EXPECT_EQ(list.right, 320);
    EXPECT_EQ(list.bottom, 188);
    EXPECT_EQ(ListView_GetColumnWidth(List(), 0), ClientArea(List()).right);
  };
  driver.Play({
      {[] { SetWindowPos(FrontDialog(), nullptr, 0, 0, 320, 188, 0); },
       L"...\\Skins: Up one level (No entries)"},
      {expectItFills, L""},
      {TapLeftKey, L""},
  });
  EXPECT_EQ(Folder(longest), longest);
}

}  // namespace
}  // namespace tidewell
