// The full-screen dialogs, worked by keys and taps.
#include <aygshell.h>
#include <gtest/gtest.h>

#include "platform/text.h"
#include "tests/support/test_device.h"
#include "tests/support/window_support.h"
#include "tests/ui/dialog_driver.h"
#include "ui/color_picker_model.h"
#include "ui/windows/color_picker.h"
#include "ui/windows/file_name_dialog.h"
#include "ui/windows/font_dialog.h"
#include "ui/windows/path_dialog.h"

namespace tidewell {
namespace {

HWND Item(int id) {
  return GetDlgItem(FrontDialog(), id);
}
HWND FolderLine() {
  return ControlOf(WC_STATICW);
}

// Of the dialogs with a list its rows: below the name to type, with a cursor while it has the
// focus, or below the folder, with the note in the list's place and whether nothing can be
// selected.
std::wstring ShownList() {
  if (const HWND name = ControlOf(WC_EDITW)) {
    return CaptionOf(name) + (GetFocus() == name ? L"_:" : L":") + RowsShown();
  }
  std::wstring shown = CaptionOf(FolderLine()) + L":" + RowsShown();
  const HWND note = ControlOf(WC_STATICW, 1);
  if (IsWindowVisible(note)) shown += L" (" + CaptionOf(note) + L")";
  const HWND bar = SHFindMenuBar(FrontDialog());
  return shown + (SendMessageW(bar, TB_ISBUTTONENABLED, IDOK, 0) ? L"" : L" -");
}

// The picker's view, numbers and digits; the font dialog's size and checked boxes; and the number
// of the control with the focus. A list dialog's rows. Or a message box's text.
std::wstring Shown() {
  if (List()) return ShownList();
  if (!Item(100)) return CaptionOf(FrontDialog()) + L": " + CaptionOf(ControlOf(WC_EDITW));
  std::wstring shown;
  if (Item(130)) {
    shown = FormatDecimal(static_cast<int>(SendMessageW(Item(100), TCM_GETCURSEL, 0, 0)));
    for (const int id : {130, 131, 132, 102}) shown += L" " + CaptionOf(Item(id));
  } else {
    shown = CaptionOf(Item(101));
    for (int id = 110; id < 114; ++id) {
      if (SendMessageW(Item(id), BM_GETCHECK, 0, 0)) shown += L" " + FormatDecimal(id - 110);
    }
  }
  return shown + L" @" + FormatDecimal(GetDlgCtrlID(GetFocus()));
}

std::function<void()> Type(const std::wstring& text) {
  return [text] { SetWindowTextW(List() ? ControlOf(WC_EDITW) : GetFocus(), text.c_str()); };
}
std::function<void()> Command(int id) {
  return [id] { PostMessageW(FrontDialog(), WM_COMMAND, static_cast<WPARAM>(id), 0); };
}

class Dialogs : public testing::Test, protected TestDevice {
 protected:
  Color Pick(Color color, bool allowsDefault, std::initializer_list<DialogDriver::Step> steps) {
    driver.Play(steps);
    const int confirmed = RunColorPicker(dialog, color, allowsDefault);
    EXPECT_EQ(confirmed, color == kColorCancelled ? 0 : 1);
    return color;
  }

  DialogContext dialog{nullptr, machine, language, scale};
  DialogDriver driver{Shown};
};

TEST_F(Dialogs, AColorIsChosenInEachViewWithKeysAlone) {
  EXPECT_EQ(Pick(0x332211, true,
                 {{Key(VK_END), L"0 255 34 51 FF2233 @120"},
                  {Key(VK_DOWN), L"0 255 34 51 FF2233 @130"},
                  {Type(L"256"), L""},
                  {Key(VK_DOWN), L"Invalid value: Valid values are between 0-255"},
                  {Command(IDOK), L"0 255 34 51 FF2233 @121"},
                  {Command(1023), L"1 255 34 51 FF2233 @102"},
                  {Type(L"ff80"), L""},
                  {Key(VK_DOWN), L"1 255 128 51 FF8033 @100"},
                  {Key(VK_RIGHT), L"2 255 128 51 FF8033 @0"},
                  {Key(VK_DOWN), L"2 255 128 51 FF8033 @10"},
                  {Key(VK_RIGHT), L"2 255 128 51 FF8033 @11"},
                  {Key(VK_RETURN), L"2 102 102 255 6666FF @11"},
                  {Key(VK_UP), L""},
                  {Key(VK_UP), L"2 102 102 255 6666FF @100"},
                  {TapLeftKey, L""}}),
            0xFF6666u);
}

TEST_F(Dialogs, TheSwatchesOfTheKeysNumbersAreChosenAndLeftLikeAnyOther) {
  const auto tap = [](int id) { return [=] { PostTap(Item(id), {4, 4}); }; };
  EXPECT_EQ(Pick(0, false,
                 {{Command(1024), L"2 0 0 0 000000 @0"},
                  {tap(IDOK), L"2 204 204 255 CCCCFF @1"},
                  {tap(IDCANCEL), L"2 153 204 255 99CCFF @2"},
                  {Key(VK_ESCAPE), L""}}),
            kColorCancelled);
  // As the dialog's loop says it where no control has the focus.
  const auto cancel = [] {
    PostMessageW(FrontDialog(), WM_COMMAND, IDCANCEL, reinterpret_cast<LPARAM>(Item(IDCANCEL)));
  };
  EXPECT_EQ(Pick(5, false, {{cancel, L""}}), kColorCancelled);
  EXPECT_EQ(Pick(5, false, {{Command(1020), L""}}), kColorCancelled);
}

TEST_F(Dialogs, PassedFieldsKeepTheDefaultAndANumberBeingTypedIsConfirmedWithTheRest) {
  const auto expectMenu = [](int entries, UINT marked) {
    return [=] {
      const auto bar = SendMessageW(SHFindMenuBar(FrontDialog()), SHCMBM_GETMENU, 0, 0);
      const HMENU menu = GetSubMenu(reinterpret_cast<HMENU>(bar), 1);
      EXPECT_EQ(GetMenuItemCount(menu), entries);
      EXPECT_TRUE(GetMenuState(menu, marked, MF_BYCOMMAND) & MF_CHECKED);
    };
  };
  const auto expectBand = [] {
    UpdateWindow(FrontDialog());
    SendMessageW(FrontDialog(), WM_HSCROLL, TB_THUMBTRACK, LPARAM(Item(120)));
    RECT area{};
    GetUpdateRect(FrontDialog(), &area, FALSE);
    EXPECT_EQ(area.top, ClientArea(FrontDialog()).bottom - 24);
  };
  EXPECT_EQ(Pick(kNoColor, true,
                 {{Key(VK_DOWN), L""},
                  {Type(L"7"), L""},
                  {Command(1021), L"0 255 255 255 FFFFFF @130"},
                  {Command(1023), L""},
                  {Command(1024), L""},
                  {expectMenu(6, 1024), L""},
                  {TapLeftKey, L""}}),
            kNoColor);
  EXPECT_EQ(Pick(255, false,
                 {{expectMenu(5, 1022), L""},
                  {Command(1021), L""},
                  {expectBand, L"0 255 0 0 FF0000 @120"},
                  {Key(VK_DOWN), L""},
                  {Type(L"999"), L""},
                  {TapLeftKey, L"Invalid value: Valid values are between 0-255"},
                  {Command(IDOK), L"0 255 0 0 FF0000 @130"},
                  {Type(L"16"), L""},
                  {TapLeftKey, L""}}),
            16u);
}

TEST_F(Dialogs, AFontIsEditedWithKeysAndKeepsAColorThatWasConfirmedBeforeACancel) {
  LogFont font{.height = 12, .weight = 400, .faceName = L"Tahoma"};
  Color color = kNoColor;
  driver.Play({{[] { EXPECT_EQ(SendMessageW(Item(101), CB_GETMINVISIBLE, 0, 0), 5); }, L"12 @101"},
               {Key(VK_RIGHT), L"13 @101"},
               {Key(VK_DOWN), L""},
               {Key(VK_RETURN), L"13 0 @110"},
               {TapLeftKey, L""}});
  EXPECT_EQ(RunFontDialog(dialog, font, color), 1);
  const LogFont edited{.height = 13, .weight = 700, .faceName = L"Tahoma"};
  EXPECT_EQ(font, edited);

  driver.Play({{Key(VK_LEFT), L"12 0 @101"},
               {Key(VK_UP), L"12 0 @103"},
               {Key(VK_RETURN), L"0 255 255 255 FFFFFF @120"},
               {Key(VK_HOME), L""},
               {TapLeftKey, L"12 0 @103"},
               {TapRightKey, L""}});
  EXPECT_EQ(RunFontDialog(dialog, font, color), 0);
  EXPECT_EQ(font, edited);
  EXPECT_EQ(color, 0xFFFF00u);
}

class FileNameDialogTest : public Dialogs {
 protected:
  FileNameDialogTest() {
    request.title = L"Export TW Settings";
    request.folder = L"\\My Documents";
    request.extension = L"twsb";
    request.typeLabel = L"TW Settings Backup (twsb)";
    request.initialName = L"first";
    for (const wchar_t* name : {L"zoo.twsb\\", L"may.twsb", L"april.twsb", L"letter.txt"}) {
      files.Put(L"\\My Documents\\" + std::wstring(name));
    }
  }

  // The path that the dialog confirms once these steps are played; empty when it is cancelled.
  std::wstring Run(std::initializer_list<DialogDriver::Step> steps) {
    driver.Play(steps);
    request.resultPath.clear();
    const int confirmed = RunFileNameDialog(dialog, request);
    EXPECT_EQ(confirmed, request.resultPath.empty() ? 0 : 1);
    return request.resultPath;
  }

  FileNameRequest request;
};

TEST_F(FileNameDialogTest, ShowsTheRequestAndConfirmsTheNameByTheLeftKeyOrReturn) {
  const auto expectCaptions = [] {
    EXPECT_EQ(CaptionOf(FrontDialog()), L"Export TW Settings");
    EXPECT_EQ(CaptionOf(ControlOf(WC_EDITW, 1)), L"TW Settings Backup (twsb)");
    EXPECT_EQ(CaptionOf(ControlOf(WC_STATICW, 2)), L"\\My Documents");
    SetWindowPos(FrontDialog(), nullptr, 0, 26, 240, 188, 0);
  };
  const auto expectItFills = [this] {
    const DialogPlace wanted = LayOutFileNameDialog(240, 188, true, scale).list;
    const RECT list = PlaceInDialog(List());
    EXPECT_EQ((DialogPlace{list.left, list.top, list.right - list.left, list.bottom - list.top}),
              wanted);
  };
  EXPECT_EQ(Run({{expectCaptions, L"first: zoo.twsb, april.twsb, may.twsb"},
                 {expectItFills, L""},
                 {TapLeftKey, L""}}),
            L"\\My Documents\\first.twsb");
  EXPECT_EQ(Run({{[] { SetFocus(ControlOf(WC_EDITW)); }, L""}, {Key(VK_RETURN), L""}}),
            L"\\My Documents\\first.twsb");
}

TEST_F(FileNameDialogTest, RefusesAMissingAndAnIllegalNameAndStaysOpen) {
  const std::pair<std::wstring, std::wstring> cases[] = {
      {L"", L"File name value is missing"}, {L"a/b", L"File name include illegal characters"}};
  for (const auto& [name, message] : cases) {
    EXPECT_EQ(Run({{Type(name), L""},
                   {TapLeftKey, L"File Name Error: " + message},
                   {Command(IDOK), name + L": zoo.twsb, april.twsb, may.twsb"},
                   {TapRightKey, L""}}),
              L"");
  }
}

TEST_F(FileNameDialogTest, ActivatingTakesAFileAsItStandsAndNothingElse) {
  EXPECT_EQ(Run({{Key(VK_UP), L"first_: zoo.twsb, april.twsb, may.twsb"},
                 {Key(VK_DOWN), L""},
                 {Key(VK_RETURN), L"first: zoo.twsb, april.twsb, may.twsb"},
                 {DoubleTapRow(0), L"first: >zoo.twsb, april.twsb, may.twsb"},
                 {Key(VK_UP), L"first: >zoo.twsb, april.twsb, may.twsb"},
                 {Key(VK_DOWN), L"first: zoo.twsb, >april.twsb, may.twsb"},
                 {Key(VK_RETURN), L""}}),
            L"\\My Documents\\april.twsb");
  EXPECT_EQ(Run({{DoubleTapRow(2), L""}}), L"\\My Documents\\may.twsb");
}

TEST_F(FileNameDialogTest, AMarkedFileNamesItselfInAFieldThatIsFree) {
  request.initialName.clear();
  EXPECT_EQ(Run({{TapRow(1), L"april: zoo.twsb, >april.twsb, may.twsb"},
                 {TapRow(2), L"may: zoo.twsb, april.twsb, >may.twsb"},
                 {Type(L"june"), L""},
                 {TapRow(1), L"june: zoo.twsb, >april.twsb, may.twsb"},
                 {TapLeftKey, L""}}),
            L"\\My Documents\\june.twsb");
}

class PathDialogTest : public Dialogs {
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
